#pragma once

#include "query/fields/FieldChooser.h"

#include <QtCore/QPointer>
#include <QtGui/QIcon>

class QWidget;

namespace KOVAVSFDataGridLib {

// Asks the user with the two selection dialogs. They are modal above the given window, or above the current
// modal window if there is one.
class DialogFieldChooser final : public FieldChooser
{
public:
    // The pictures of the commands that open the dialogs. If one is null, the dialog keeps its default.
    struct Pictures
    {
        QIcon fields;
        QIcon sort;
    };

    // `parent` is not owned and may be destroyed before the chooser.
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
