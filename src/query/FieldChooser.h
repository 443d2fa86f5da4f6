#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace KOVAVSFDataGridLib {

// Lets the user choose. Each function returns when the user is done; nothing, or an empty text, means
// cancelled.
class FieldChooser
{
public:
    FieldChooser() = default;
    virtual ~FieldChooser() = default;
    Q_DISABLE_COPY_MOVE(FieldChooser)

    // The fields to show out of `allFields`, comma-separated as they stand behind SELECT. `partFields` are
    // those shown now; `title` is the table's name.
    virtual std::optional<QString> ChooseVisibleFields(const QString &title, const QStringList &allFields,
                                                       const QStringList &partFields) = 0;

    // The sort, comma-separated as it stands behind ORDER BY. `sortTerms` are the terms of the present one,
    // each a field with or without " DESC".
    virtual std::optional<QString> ChooseSort(const QString &title, const QStringList &allFields,
                                              const QStringList &sortTerms) = 0;
};

} // namespace KOVAVSFDataGridLib
