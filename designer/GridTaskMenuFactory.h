#pragma once

#include <QtDesigner/QExtensionFactory>

namespace KOVAVSFDataGridLib {

// Creates the task menu of each grid on a form.
class GridTaskMenuFactory final : public QExtensionFactory
{
    Q_OBJECT

public:
    using QExtensionFactory::QExtensionFactory;

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;
};

} // namespace KOVAVSFDataGridLib
