#include "ado/providers/access/functions/AccessTextFunctions.h"

#include "ado/providers/access/functions/AccessCall.h"
#include "ado/providers/access/sql/AccessCollation.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB::AccessTextFunctions {

namespace {

void concatenate(AccessCall &call)
{
    QString text;
    bool isNull = true;
    for (int i = 0; i < call.count(); ++i) {
        isNull = isNull && call.isNull(i);
        text += call.text(i);
    }
    if (!isNull)
        call.answer(text);
}

void len(AccessCall &call)
{
    call.answer(qint64{call.text(0).size()});
}

void mid(AccessCall &call)
{
    const qint64 start = call.integer(1);
    const qint64 count = call.count() > 2 ? call.integer(2) : -1;
    if (start < 1 || (call.count() > 2 && count < 0))
        return call.fail("Mid");
    call.answer(call.text(0).mid(start - 1, count));
}

void left(AccessCall &call)
{
    call.answer(call.text(0).left(std::max<qint64>(call.integer(1), 0)));
}

void right(AccessCall &call)
{
    call.answer(call.text(0).right(std::max<qint64>(call.integer(1), 0)));
}

void upper(AccessCall &call)
{
    call.answer(call.text(0).toUpper());
}

void lower(AccessCall &call)
{
    call.answer(call.text(0).toLower());
}

void inStr(AccessCall &call)
{
    const int text = call.count() == 2 ? 0 : 1;
    const qint64 start = text == 0 ? 1 : call.integer(0);
    call.answer(qint64{call.text(text).indexOf(call.text(text + 1), std::max<qint64>(start, 1) - 1,
                                               Qt::CaseInsensitive)} +
                1);
}

void inStrRev(AccessCall &call)
{
    call.answer(qint64{call.text(0).lastIndexOf(call.text(1), -1, Qt::CaseInsensitive)} + 1);
}

void compare(AccessCall &call)
{
    const int order = AccessCollation::compareTexts(call.text(0).toUtf8(), call.text(1).toUtf8());
    call.answer(qint64{order > 0} - qint64{order < 0});
}

void convert(AccessCall &call)
{
    enum Way : qint64 { Upper = 1, Lower = 2, Proper = 3 };
    const QString text = call.text(0);
    QString result = call.integer(1) == Upper ? text.toUpper() : text.toLower();
    if (call.integer(1) == Proper) {
        for (qsizetype i = 0; i < result.size(); ++i) {
            if (i == 0 || !result.at(i - 1).isLetterOrNumber())
                result[i] = result.at(i).toUpper();
        }
    } else if (call.integer(1) != Upper && call.integer(1) != Lower) {
        return call.fail("StrConv");
    }
    call.answer(result);
}

void reverse(AccessCall &call)
{
    QString text = call.text(0);
    std::reverse(text.begin(), text.end());
    call.answer(text);
}

void repeat(AccessCall &call, const QString &letter)
{
    constexpr qint64 most = 0x3fffffff;
    const qint64 count = call.integer(0);
    if (count < 0 || count > most || letter.isEmpty())
        return call.fail("String");
    call.answer(QString(count, letter.front()));
}

void space(AccessCall &call)
{
    repeat(call, u" "_s);
}

void string(AccessCall &call)
{
    repeat(call, call.text(1));
}

void code(AccessCall &call)
{
    const QString text = call.text(0);
    if (text.isEmpty())
        return call.fail("Asc");
    call.answer(qint64{text.front().unicode()});
}

void letter(AccessCall &call)
{
    call.answer(QString(QChar(static_cast<char16_t>(call.integer(0)))));
}

void toText(AccessCall &call)
{
    call.answer(call.text(0));
}

} // namespace

void install(sqlite3 *db)
{
    AccessCall::offer<concatenate>(db, "access_concat", -1);
    AccessCall::offer<AccessCall::strict<len>>(db, "Len", 1);
    AccessCall::offer<AccessCall::strict<mid>>(db, "Mid", 2);
    AccessCall::offer<AccessCall::strict<mid>>(db, "Mid", 3);
    AccessCall::offer<AccessCall::strict<left>>(db, "Left", 2);
    AccessCall::offer<AccessCall::strict<right>>(db, "Right", 2);
    AccessCall::offer<AccessCall::strict<upper>>(db, "UCase", 1);
    AccessCall::offer<AccessCall::strict<lower>>(db, "LCase", 1);
    AccessCall::offer<AccessCall::strict<inStr>>(db, "InStr", 2);
    AccessCall::offer<AccessCall::strict<inStr>>(db, "InStr", 3);
    AccessCall::offer<AccessCall::strict<inStrRev>>(db, "InStrRev", 2);
    AccessCall::offer<AccessCall::strict<compare>>(db, "StrComp", 2);
    AccessCall::offer<AccessCall::strict<compare>>(db, "StrComp", 3);
    AccessCall::offer<AccessCall::strict<convert>>(db, "StrConv", 2);
    AccessCall::offer<AccessCall::strict<reverse>>(db, "StrReverse", 1);
    AccessCall::offer<AccessCall::strict<space>>(db, "Space", 1);
    AccessCall::offer<AccessCall::strict<string>>(db, "String", 2);
    AccessCall::offer<AccessCall::strict<code>>(db, "Asc", 1);
    AccessCall::offer<AccessCall::strict<code>>(db, "AscW", 1);
    AccessCall::offer<AccessCall::strict<letter>>(db, "Chr", 1);
    AccessCall::offer<AccessCall::strict<letter>>(db, "ChrW", 1);
    AccessCall::offer<AccessCall::strict<toText>>(db, "CStr", 1);
}

} // namespace ADODB::AccessTextFunctions
