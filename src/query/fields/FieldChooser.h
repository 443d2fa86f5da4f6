#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace KOVAVSFDataGridLib {

struct OfferedField
{
    QString name;              // as shown to the user
    QString written;           // as used in statements
    qint32 adoType = 0;        // 0 if unknown
    QString whyNotSorted = {}; // for the user; empty if a sort can have it
};

// Lets the user choose. Each function returns when the user has finished. No value or an empty text means
// cancelled.
class FieldChooser
{
public:
    FieldChooser() = default;
    virtual ~FieldChooser() = default;
    Q_DISABLE_COPY_MOVE(FieldChooser)

    // Chooses the fields to show from `allFields`; returns them as a SELECT list. `partFields` are the ones
    // shown now; `title` is the table's name.
    virtual std::optional<QString> ChooseVisibleFields(const QString &title,
                                                       const QList<OfferedField> &allFields,
                                                       const QStringList &partFields) = 0;

    // Chooses the sort; returns it as an ORDER BY list. `sortTerms` are the current terms, each a field with
    // or without " DESC".
    virtual std::optional<QString> ChooseSort(const QString &title, const QList<OfferedField> &allFields,
                                              const QStringList &sortTerms) = 0;
};

} // namespace KOVAVSFDataGridLib
