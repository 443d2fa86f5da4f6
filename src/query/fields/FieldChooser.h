#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace KOVAVSFDataGridLib {

struct OfferedField
{
    QString name;       // as the user reads it
    QString written;    // as statements write it
    qint32 adoType = 0; // 0 when it isn't known
};

// Lets the user choose. Each function returns when the user is done; nothing, or an empty text, means
// cancelled.
class FieldChooser
{
public:
    FieldChooser() = default;
    virtual ~FieldChooser() = default;
    Q_DISABLE_COPY_MOVE(FieldChooser)

    // The fields to show out of `allFields`, comma-separated as a SELECT list. `partFields` are those shown
    // now; `title` is the table's name.
    virtual std::optional<QString> ChooseVisibleFields(const QString &title,
                                                       const QList<OfferedField> &allFields,
                                                       const QStringList &partFields) = 0;

    // The sort, comma-separated as ORDER BY takes it. `sortTerms` are the terms of the present one, each a
    // field with or without " DESC".
    virtual std::optional<QString> ChooseSort(const QString &title, const QList<OfferedField> &allFields,
                                              const QStringList &sortTerms) = 0;
};

} // namespace KOVAVSFDataGridLib
