#include "filter/saved/SavedFilters.h"

#include "filter/FilterTexts.h"
#include "language/JsonFault.h"

#include <QtCore/QJsonDocument>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int version = 1;

QString wrong(const QString &what)
{
    return FilterTexts::NotFilters.arg(what);
}

bool isListOrMissing(const QJsonValue &value)
{
    return value.isArray() || value.isUndefined();
}

} // namespace

const BuiltFilter *SavedFilters::find(const QString &name) const
{
    const auto found = std::ranges::find(m_named, name, &Named::name);
    return found == m_named.end() ? nullptr : &found->filter;
}

QString SavedFilters::nameOf(const QString &typed)
{
    return typed.simplified().left(longestName).trimmed();
}

bool SavedFilters::keep(const QString &name, const BuiltFilter &filter)
{
    remove(name);
    if (m_named.size() >= mostNamed)
        return false;
    const auto place = std::ranges::lower_bound(
        m_named, name,
        [](const QString &left, const QString &right) {
            return QString::localeAwareCompare(left, right) < 0;
        },
        &Named::name);
    m_named.insert(place, {name, filter});
    return true;
}

void SavedFilters::rename(const QString &name, const QString &newName)
{
    const BuiltFilter *const found = find(name);
    if (!found || name == newName)
        return;
    const BuiltFilter filter = *found;
    remove(name);
    keep(newName, filter);
}

void SavedFilters::remove(const QString &name)
{
    m_named.removeIf([&](const Named &named) { return named.name == name; });
}

void SavedFilters::noteUsed(const BuiltFilter &filter)
{
    m_recent.removeOne(filter);
    m_recent.prepend(filter);
    if (m_recent.size() > mostRecent)
        m_recent.removeLast();
}

QString SavedFilters::toText() const
{
    QJsonArray namedFilters;
    for (const Named &named : m_named) {
        QJsonObject json = toJson(named.filter);
        json.insert(u"name"_s, named.name);
        namedFilters.append(json);
    }
    QJsonArray recentFilters;
    for (const BuiltFilter &filter : m_recent)
        recentFilters.append(toJson(filter));
    const QJsonObject whole{
        {u"filters"_s, version}, {u"named"_s, namedFilters}, {u"recent"_s, recentFilters}};
    return QString::fromUtf8(QJsonDocument(whole).toJson(QJsonDocument::Compact));
}

std::variant<SavedFilters, QString> SavedFilters::fromText(const QString &text)
{
    if (text.trimmed().isEmpty())
        return FilterTexts::NoFiltersText();
    if (text.size() > longestText)
        return FilterTexts::FiltersTooLong();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError) {
        const JsonFault fault = jsonFault(text, error);
        return FilterTexts::FiltersNotJson.arg(fault.place, fault.reason);
    }
    const QJsonObject whole = document.object();
    if (whole["filters"_L1].toInt() != version)
        return wrong(u"filters"_s);
    if (!isListOrMissing(whole["named"_L1]) || whole["named"_L1].toArray().size() > mostNamed)
        return wrong(u"named"_s);
    if (!isListOrMissing(whole["recent"_L1]) || whole["recent"_L1].toArray().size() > mostRecent)
        return wrong(u"recent"_s);
    SavedFilters filters;
    int place = 0;
    for (const QJsonValue json : whole["named"_L1].toArray()) {
        const QString name = json["name"_L1].toString();
        if (name.isEmpty() || name != nameOf(name) || filters.find(name))
            return wrong(u"named[%1].name"_s.arg(place));
        const auto filter = builtFilterOf(json);
        if (!filter)
            return wrong(u"named[%1]"_s.arg(place));
        filters.keep(name, *filter);
        ++place;
    }
    for (const QJsonValue json : whole["recent"_L1].toArray()) {
        const auto filter = builtFilterOf(json);
        if (!filter)
            return wrong(u"recent[%1]"_s.arg(filters.m_recent.size()));
        filters.m_recent.append(*filter);
    }
    return filters;
}

} // namespace KOVAVSFDataGridLib
