#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QStringList>

#include <optional>
#include <stdexcept>

namespace KovaTest {

inline QString textOf(const QJsonValue &value)
{
    if (!value.isString())
        throw std::invalid_argument("a text was expected");
    return value.toString();
}

inline qint32 NumberOf(const QJsonValue &value)
{
    if (!value.isDouble())
        throw std::invalid_argument("a number was expected");
    return value.toInt();
}

inline bool FlagOf(const QJsonValue &value)
{
    if (!value.isBool())
        throw std::invalid_argument("true or false was expected");
    return value.toBool();
}

inline QJsonArray ListOf(const QJsonValue &value)
{
    if (!value.isArray())
        throw std::invalid_argument("a list was expected");
    return value.toArray();
}

inline QJsonObject ObjectOf(const QJsonValue &value)
{
    if (!value.isObject())
        throw std::invalid_argument("an object was expected");
    return value.toObject();
}

inline QStringList TextsOf(const QJsonValue &value)
{
    QStringList texts;
    for (const QJsonValue &text : ListOf(value))
        texts.append(textOf(text));
    return texts;
}

// The arguments of a call. Reading one that is missing or of another kind throws; optional ones have a
// default.
class Arguments
{
public:
    explicit Arguments(QJsonArray values) : m_values(std::move(values)) {}

    qsizetype Count() const { return m_values.size(); }
    QJsonValue At(qsizetype index) const
    {
        if (index >= m_values.size())
            throw std::invalid_argument("an argument is missing");
        return m_values.at(index);
    }
    QString Text(qsizetype index) const { return textOf(At(index)); }
    QString OptionalText(qsizetype index) const { return index < Count() ? Text(index) : QString(); }
    qint32 Number(qsizetype index) const { return NumberOf(At(index)); }
    bool Flag(qsizetype index) const { return FlagOf(At(index)); }
    QStringList Texts(qsizetype index) const { return TextsOf(At(index)); }

    std::optional<qint32> NumberOrNull(qsizetype index) const
    {
        return At(index).isNull() ? std::nullopt : std::optional(Number(index));
    }
    std::optional<QString> TextOrNull(qsizetype index) const
    {
        return At(index).isNull() ? std::nullopt : std::optional(Text(index));
    }

private:
    QJsonArray m_values;
};

} // namespace KovaTest
