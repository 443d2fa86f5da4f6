#pragma once

#include "filter/conditions/BuiltFilter.h"

#include <variant>

namespace KOVAVSFDataGridLib {

// The filters that a user keeps for a table, under names, and those that he used last, as a small JSON text:
//
//   {"filters":1,
//    "named":[{"name":"本月的订单","rows":[{"field":"日期","operator":"equals","value":"本月"}]}],
//    "recent":[{"condition":"金额 > 5"}]}
//
// Values are in the words that were typed, so that relative days stay relative.
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
    // The one used last is the first.
    const QList<BuiltFilter> &recent() const { return m_recent; }
    const BuiltFilter *find(const QString &name) const;

    // A name without blanks around it, as long as it may be. An empty one names nothing.
    static QString nameOf(const QString &typed);

    // Replaces a filter of that name. False, and nothing is changed, when there are too many.
    bool keep(const QString &name, const BuiltFilter &filter);
    // Replaces a filter that has the new name.
    void rename(const QString &name, const QString &newName);
    void remove(const QString &name);
    void noteUsed(const BuiltFilter &filter);

    QString toText() const;
    // The filters of a text, or why it has none, for the user to read.
    static std::variant<SavedFilters, QString> fromText(const QString &text);

    bool operator==(const SavedFilters &) const = default;

private:
    QList<Named> m_named;
    QList<BuiltFilter> m_recent;
};

} // namespace KOVAVSFDataGridLib
