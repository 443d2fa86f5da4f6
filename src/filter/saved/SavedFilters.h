#pragma once

#include "filter/conditions/BuiltFilter.h"

#include <variant>

namespace KOVAVSFDataGridLib {

// The filters that a user has saved for a table by name, and the last ones used, as a small JSON text:
//
//   {"filters":1,
//    "named":[{"name":"本月的订单","rows":[{"field":"日期","operator":"equals","value":"本月"}]}],
//    "recent":[{"condition":"金额 > 5"}]}
//
// Values are stored as typed, so that relative days stay relative.
class SavedFilters
{
public:
    static constexpr qsizetype longestText = 1000000; // characters
    static constexpr qsizetype longestName = 100;     // characters
    static constexpr qsizetype mostNamed = 500;
    static constexpr qsizetype mostRecent = 10;

    struct Named
    {
        QString name;
        BuiltFilter filter;

        bool operator==(const Named &) const = default;
    };

    // In the order of their names.
    const QList<Named> &named() const { return m_named; }
    // The one used last comes first.
    const QList<BuiltFilter> &recent() const { return m_recent; }
    const BuiltFilter *find(const QString &name) const;

    // A trimmed name, cut to the maximum length. Empty if it is not valid.
    static QString nameOf(const QString &typed);

    // Replaces a filter with that name. If there are too many, returns false and changes nothing.
    bool keep(const QString &name, const BuiltFilter &filter);
    // Replaces any filter with the new name.
    void rename(const QString &name, const QString &newName);
    void remove(const QString &name);
    void noteUsed(const BuiltFilter &filter);

    QString toText() const;
    // Parses the filters, or returns the reason why the text is invalid, for the user.
    static std::variant<SavedFilters, QString> fromText(const QString &text);

    bool operator==(const SavedFilters &) const = default;

private:
    QList<Named> m_named;
    QList<BuiltFilter> m_recent;
};

} // namespace KOVAVSFDataGridLib
