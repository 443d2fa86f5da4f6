#pragma once

#include <QtDesigner/QExtensionFactory>

namespace KOVAVSFDataGridLib {

// Gives each grid on a form its task menu.
class GridTaskMenuFactory final : public QExtensionFactory
{
    Q_OBJECT

public:
    using QExtensionFactory::QExtensionFactory;

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;
};

} // namespace KOVAVSFDataGridLib
