#pragma once

#include "query/fields/FieldChooser.h"

#include <QtCore/QPointer>
#include <QtGui/QIcon>

class QWidget;

namespace KOVAVSFDataGridLib {

// Asks the user with the two selection dialogs, modally above a window, or above the one that is modal
// already.
class DialogFieldChooser final : public FieldChooser
{
public:
    // The pictures of the commands that open the dialogs; a null one leaves a dialog its own.
    struct Pictures
    {
        QIcon fields;
        QIcon sort;
    };

    // `parent` is not owned and may go before the chooser does.
    explicit DialogFieldChooser(QWidget *parent = nullptr, Pictures pictures = {{}, {}});
    ~DialogFieldChooser() override;

    std::optional<QString> ChooseVisibleFields(const QString &title, const QList<OfferedField> &allFields,
                                               const QStringList &partFields) override;
    std::optional<QString> ChooseSort(const QString &title, const QList<OfferedField> &allFields,
                                      const QStringList &sortTerms) override;

private:
    QWidget *windowBelow() const;

    QPointer<QWidget> m_parent;
    Pictures m_pictures;
};

} // namespace KOVAVSFDataGridLib
