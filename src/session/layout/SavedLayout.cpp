#include "session/layout/SavedLayout.h"

#include "ado/values/DisplayFormat.h"
#include "language/JsonFault.h"
#include "session/layout/LayoutTexts.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cmath>
#include <optional>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int version = 1;

QString wrong(const QString &what)
{
    return LayoutTexts::NotALayout.arg(what);
}

// No value unless it is a whole number from `least` to `most`.
std::optional<int> wholeNumber(const QJsonValue &value, int least, int most)
{
    const double number = value.toDouble(std::nan(""));
    if (!(number >= least && number <= most) || number != std::floor(number))
        return std::nullopt;
    return static_cast<int>(number);
}

std::variant<SavedLayout::Column, QString> columnFrom(const QJsonValue &value, const QString &place)
{
    const QJsonObject object = value.toObject();
    SavedLayout::Column column{object.value("field"_L1).toString()};
    if (column.field.isEmpty())
        return wrong(place + u".field"_s);
    if (const QJsonValue width = object.value("width"_L1); !width.isUndefined()) {
        const auto twips = wholeNumber(width, 1, SavedLayout::widest);
        if (!twips)
            return wrong(place + u".width"_s);
        column.width = *twips;
    }
    const QJsonValue hidden = object.value("hidden"_L1);
    if (!hidden.isUndefined() && !hidden.isBool())
        return wrong(place + u".hidden"_s);
    column.isHidden = hidden.toBool();
    const QJsonValue format = object.value("format"_L1);
    if (!format.isUndefined() && (!format.isString() || !ADODB::DisplayFormat::fromText(format.toString())))
        return wrong(place + u".format"_s);
    column.format = format.toString();
    return column;
}

} // namespace

QString SavedLayout::toText() const
{
    QJsonArray array;
    for (const Column &column : columns) {
        QJsonObject object{{u"field"_s, column.field}};
        if (column.width > 0)
            object.insert("width"_L1, column.width);
        if (column.isHidden)
            object.insert("hidden"_L1, true);
        if (!column.format.isEmpty())
            object.insert("format"_L1, column.format);
        array.append(object);
    }
    QJsonObject whole{{u"layout"_s, version}, {u"columns"_s, array}, {u"frozen"_s, frozen}};
    if (showsNulls)
        whole.insert("nulls"_L1, true);
    return QString::fromUtf8(QJsonDocument(whole).toJson(QJsonDocument::Compact));
}

std::variant<SavedLayout, QString> SavedLayout::fromText(const QString &text)
{
    if (text.trimmed().isEmpty())
        return LayoutTexts::Empty;
    if (text.size() > longestText)
        return LayoutTexts::TooLong;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError) {
        const JsonFault fault = jsonFault(text, error);
        return LayoutTexts::NotJson.arg(fault.place, fault.reason);
    }
    const QJsonObject whole = document.object();
    if (!wholeNumber(whole.value("layout"_L1), version, version))
        return wrong(u"layout"_s);
    if (!whole.value("columns"_L1).isArray())
        return wrong(u"columns"_s);
    SavedLayout layout;
    bool isAllHidden = true;
    const QJsonArray array = whole.value("columns"_L1).toArray();
    for (const QJsonValue value : array) {
        auto column = columnFrom(value, u"columns[%1]"_s.arg(layout.columns.size()));
        if (const auto *reason = std::get_if<QString>(&column))
            return *reason;
        layout.columns.push_back(std::get<Column>(std::move(column)));
        isAllHidden = isAllHidden && layout.columns.back().isHidden;
    }
    if (isAllHidden)
        return layout.columns.empty() ? wrong(u"columns"_s) : LayoutTexts::AllHidden;
    if (const QJsonValue frozen = whole.value("frozen"_L1); !frozen.isUndefined()) {
        const auto count = wholeNumber(frozen, 0, static_cast<int>(layout.columns.size()));
        if (!count)
            return wrong(u"frozen"_s);
        layout.frozen = *count;
    }
    const QJsonValue nulls = whole.value("nulls"_L1);
    if (!nulls.isUndefined() && !nulls.isBool())
        return wrong(u"nulls"_s);
    layout.showsNulls = nulls.toBool();
    return layout;
}

} // namespace KOVAVSFDataGridLib
