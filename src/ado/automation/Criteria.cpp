#include "ado/automation/Criteria.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/Texts.h"
#include "ado/ValueText.h"
#include "ado/values/FieldValue.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>
#include <utility>

namespace ADODB {

using namespace Qt::Literals::StringLiterals;

namespace {

// A date as ADO's documents write it (month/day/year), a time (12:30 PM), or both, in the form in which
// databases store them. Any other text is returned as it is. `dayOfTimes` is that of a time alone.
QString isoMoment(const QString &text, const QString &dayOfTimes)
{
    static const QRegularExpression written(
        u"^(?:(?:(\\d{1,2})/(\\d{1,2})/(\\d{4})|(\\d{4}-\\d\\d-\\d\\d))(?:$|[\\sT]\\s*))?"
        "(?:(\\d{1,2}):(\\d\\d)(?::(\\d\\d(?:\\.\\d+)?))?(?:\\s*([AP])M)?)?$"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = written.match(text);
    if (!match.hasMatch() || text.isEmpty())
        return text;
    const auto twoDigits = [](int number) { return u"%1"_s.arg(number, 2, 10, QLatin1Char('0')); };
    const auto part = [&](int number) { return match.captured(number).toInt(); };
    QString date = match.hasCaptured(4) ? match.captured(4) : dayOfTimes;
    if (match.hasCaptured(3))
        date = u"%1-%2-%3"_s.arg(match.captured(3), twoDigits(part(1)), twoDigits(part(2)));
    if (!match.hasCaptured(5))
        return date;
    int hour = part(5);
    if (const QString half = match.captured(8).toUpper(); !half.isEmpty()) {
        if (hour < 1 || hour > 12)
            return text; // no hour of half a day
        hour = hour % 12 + (half == u"P" ? 12 : 0);
    }
    const QString seconds = match.hasCaptured(7) ? match.captured(7) : u"00"_s;
    const QString time = u"%1:%2:%3"_s.arg(twoDigits(hour), match.captured(6), seconds);
    return date.isEmpty() ? time : date + u' ' + time;
}

} // namespace

// A recursive descent parser. Every syntax error is the same error. The whole text is in every message.
class CriteriaParser
{
public:
    using Kind = Criteria::Kind;
    using Node = Criteria::Node;

    CriteriaParser(const QString &text, const Recordset &recordset, QString error)
        : m_text(text), m_recordset(recordset), m_error(std::move(error))
    {
    }

    Node all() { return ended(alternatives()); }
    Node one() { return ended(comparison()); }

private:
    // Limits the recursion for nested parentheses.
    static constexpr int deepest = 100;

    [[noreturn]] void fail() const { throw Error(adErrInvalidArgument, m_error.arg(m_text)); }

    void skipBlanks()
    {
        while (m_at < m_text.size() && m_text[m_at].isSpace())
            ++m_at;
    }
    QChar next() const { return m_at < m_text.size() ? m_text[m_at] : QChar(); }

    static bool isWordPart(QChar c) { return c.isLetterOrNumber() || c == u'_'; }
    QString word()
    {
        const qsizetype begin = m_at;
        while (m_at < m_text.size() && isWordPart(m_text[m_at]))
            ++m_at;
        return m_text.sliced(begin, m_at - begin);
    }
    // Skips the next word if it is the expected one.
    bool passed(QStringView expected)
    {
        skipBlanks();
        const qsizetype begin = m_at;
        if (word().compare(expected, Qt::CaseInsensitive) == 0)
            return true;
        m_at = begin;
        return false;
    }
    // The text up to the delimiter. A doubled delimiter means the character itself.
    QString quoted(QChar delimiter)
    {
        QString content;
        while (++m_at < m_text.size()) {
            if (m_text[m_at] == delimiter) {
                ++m_at;
                if (next() != delimiter || delimiter == u'#')
                    return content;
            }
            content += m_text[m_at];
        }
        fail();
    }

    Node ended(Node node)
    {
        skipBlanks();
        if (m_at < m_text.size())
            fail();
        return node;
    }

    Node joined(Kind kind, QStringView word, Node (CriteriaParser::*part)())
    {
        Node node = (this->*part)();
        if (!passed(word))
            return node;
        Node whole;
        whole.kind = kind;
        whole.parts.push_back(std::move(node));
        do
            whole.parts.push_back((this->*part)());
        while (passed(word));
        return whole;
    }
    Node alternatives() { return joined(Kind::Or, u"OR", &CriteriaParser::conditions); }
    Node conditions() { return joined(Kind::And, u"AND", &CriteriaParser::condition); }
    Node condition()
    {
        skipBlanks();
        if (next() != u'(')
            return comparison();
        if (++m_depth > deepest)
            fail();
        ++m_at;
        Node node = alternatives();
        skipBlanks();
        if (next() != u')')
            fail();
        ++m_at;
        --m_depth;
        return node;
    }

    Node comparison()
    {
        Node node;
        node.column = field();
        node.as = comparedAs(m_recordset.Fields().Item(node.column).Type());
        node.kind = comparator();
        node.value = value(node);
        if (node.as == ComparedAs::Times && node.kind != Kind::Like && node.value.isValid())
            node.instant = instant(node);
        const bool isOrder = node.kind != Kind::Equal && node.kind != Kind::NotEqual;
        if (isOrder && !node.value.isValid())
            fail();
        return node;
    }

    int field()
    {
        skipBlanks();
        QString name;
        if (next() == u'[') {
            const qsizetype end = m_text.indexOf(u']', m_at);
            if (end < 0)
                fail();
            name = m_text.sliced(m_at + 1, end - m_at - 1);
            m_at = end + 1;
        } else {
            name = word();
        }
        if (name.isEmpty())
            fail();
        return m_recordset.Fields().Item(name).Index();
    }

    Kind comparator()
    {
        if (passed(u"LIKE"))
            return Kind::Like;
        static constexpr std::array<std::pair<QStringView, Kind>, 6> signs{{{u"<>", Kind::NotEqual},
                                                                            {u"<=", Kind::LessOrEqual},
                                                                            {u">=", Kind::GreaterOrEqual},
                                                                            {u"=", Kind::Equal},
                                                                            {u"<", Kind::Less},
                                                                            {u">", Kind::Greater}}};
        const QStringView rest = QStringView(m_text).sliced(m_at);
        for (const auto &[sign, kind] : signs) {
            if (rest.startsWith(sign)) {
                m_at += sign.size();
                return kind;
            }
        }
        fail();
    }

    QVariant value(const Node &node)
    {
        skipBlanks();
        QString text;
        const bool isDate = next() == u'#';
        if (isDate) {
            text = quoted(u'#');
        } else if (next() == u'\'') {
            text = quoted(u'\'');
        } else {
            while (m_at < m_text.size() && !m_text[m_at].isSpace() && m_text[m_at] != u')')
                text += m_text[m_at++];
            if (text.compare("NULL"_L1, Qt::CaseInsensitive) == 0)
                return {};
            if (text.isEmpty())
                fail();
        }
        const DataTypeEnum type = m_recordset.Fields().Item(node.column).Type();
        const bool isTimeField = node.as == ComparedAs::Times;
        if (isDate && (!isTimeField || node.kind == Kind::Like))
            throw Error(adErrInvalidArgument, Texts::dateCriteria().arg(m_text));
        if (node.kind == Kind::Like || isTimeField)
            return text;
        bool fits = false;
        const QVariant value = FieldValue::convert(text, type, &fits);
        return fits ? value : text;
    }

    Instant instant(const Node &node)
    {
        const DataTypeEnum type = m_recordset.Fields().Item(node.column).Type();
        // An automation date without a day is on its day 0.
        const QString dayOfTimes = type == adDate ? u"1899-12-30"_s : QString();
        const auto instant = Instant::ofText(isoMoment(node.value.toString().trimmed(), dayOfTimes).toUtf8());
        if (!instant || instant->hasDay != (type != adDBTime))
            fail();
        return *instant;
    }

    const QString &m_text;
    const Recordset &m_recordset;
    const QString m_error;
    qsizetype m_at = 0;
    int m_depth = 0;
};

namespace {

// * and % match any text; all other characters match themselves.
bool isLike(QStringView text, QStringView pattern)
{
    // For backtracking: the last wildcard, and where the text after it was last tried.
    qsizetype at = 0;
    qsizetype in = 0;
    qsizetype wildcard = -1;
    qsizetype retry = 0;
    while (at < text.size()) {
        if (in < pattern.size() && (pattern[in] == u'*' || pattern[in] == u'%')) {
            wildcard = in++;
            retry = at;
        } else if (in < pattern.size() && pattern[in].toCaseFolded() == text[at].toCaseFolded()) {
            ++in;
            ++at;
        } else if (wildcard >= 0) {
            in = wildcard + 1;
            at = ++retry;
        } else {
            return false;
        }
    }
    return std::all_of(pattern.begin() + in, pattern.end(), [](QChar c) { return c == u'*' || c == u'%'; });
}

} // namespace

Criteria Criteria::parse(const QString &text, const Recordset &recordset)
{
    Criteria criteria;
    criteria.m_root = CriteriaParser(text, recordset, Texts::badCriteria()).all();
    return criteria;
}

Criteria Criteria::parseComparison(const QString &text, const Recordset &recordset)
{
    Criteria criteria;
    criteria.m_root = CriteriaParser(text, recordset, Texts::badFindCriteria()).one();
    return criteria;
}

bool Criteria::matches(const Recordset &recordset, qint64 record) const
{
    return matches(m_root, recordset, record);
}

bool Criteria::matches(const Node &node, const Recordset &recordset, qint64 record)
{
    const auto isMet = [&](const Node &part) { return matches(part, recordset, record); };
    if (node.kind == Kind::And)
        return std::all_of(node.parts.begin(), node.parts.end(), isMet);
    if (node.kind == Kind::Or)
        return std::any_of(node.parts.begin(), node.parts.end(), isMet);
    return compares(node, recordset.CellValue(record, node.column));
}

bool Criteria::compares(const Node &node, const QVariant &cell)
{
    if (!node.value.isValid()) // only = and <> accept Null
        return cell.isValid() == (node.kind == Kind::NotEqual);
    if (!cell.isValid())
        return false; // a comparison with Null is false
    if (node.kind == Kind::Like)
        return isLike(ValueText(cell), node.value.toString());
    std::optional<int> order;
    if (!node.instant)
        order = compareValues(cell, node.value, node.as);
    else if (const auto instant =
                 Instant::of(cell)) // without a time zone in the condition, what is shown counts
        order = (node.instant->offset ? *instant : instant->local()).compare(*node.instant);
    if (!order)
        return node.kind == Kind::NotEqual; // no date, so it has no order
    switch (node.kind) {
    case Kind::Equal:
        return *order == 0;
    case Kind::NotEqual:
        return *order != 0;
    case Kind::Less:
        return *order < 0;
    case Kind::LessOrEqual:
        return *order <= 0;
    case Kind::Greater:
        return *order > 0;
    case Kind::GreaterOrEqual:
        return *order >= 0;
    default:
        Q_UNREACHABLE();
    }
}

} // namespace ADODB
