#include "start/Options.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const QStringList DbTypes{u"access"_s, u"oracle"_s, u"sqlserver"_s};
const QStringList TableTypes{u"table"_s, u"view"_s, u"sql"_s};
bool isNumber(const QString &text)
{
    bool ok = false;
    text.toInt(&ok);
    return ok;
}

// The number after --print is optional, which the parser can't express.
QStringList withExplicitPrintRows(const QStringList &arguments)
{
    QStringList result;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments.at(i) != u"--print") {
            result.append(arguments.at(i));
        } else if (i + 1 < arguments.size() && isNumber(arguments.at(i + 1))) {
            result.append(u"--print="_s + arguments.at(++i));
        } else {
            result.append(u"--print=all"_s);
        }
    }
    return result;
}

} // namespace

QString Options::usage()
{
    return u"usage: kovagrid [--connection TEXT] [--db-type access|oracle|sqlserver] [--sql TEXT] [--part "
           u"TEXT]\n"
           "                [--sort TEXT] [--table-type table|view|sql] [--do KEY[,KEY...]] [--print "
           "[ROWS]]\n"
           "                [--screenshot FILE] [--size WIDTHxHEIGHT] [--dark]\n"
           "Without --connection, it opens a sample database, which it creates on first use.\n"
           "Without a display, or with --screenshot, it prints \"Loaded N records, M fields in S s\" to\n"
           "standard output. With --print, it prints that line to standard error instead, and only the\n"
           "records to standard output."_s;
}

std::optional<Options> Options::parse(const QStringList &arguments, QString &error)
{
    QCommandLineParser parser;
    const auto add = [&parser](const QString &name) {
        parser.addOption(QCommandLineOption(name, {}, u"value"_s));
    };
    for (const QString &name : {u"connection"_s, u"db-type"_s, u"sql"_s, u"part"_s, u"sort"_s,
                                u"table-type"_s, u"do"_s, u"print"_s, u"screenshot"_s, u"size"_s})
        add(name);
    parser.addOption(QCommandLineOption(u"dark"_s));
    if (!parser.parse(QStringList{u"kovagrid"_s} + withExplicitPrintRows(arguments))) {
        error = parser.errorText();
        return {};
    }
    if (!parser.positionalArguments().isEmpty()) {
        error = u"unexpected argument: "_s + parser.positionalArguments().constFirst();
        return {};
    }

    Options options;
    options.connection = parser.value(u"connection"_s);
    options.sql = parser.value(u"sql"_s);
    options.part = parser.value(u"part"_s);
    options.sort = parser.value(u"sort"_s);
    options.screenshot = parser.value(u"screenshot"_s);
    options.print = parser.isSet(u"print"_s);
    options.isDark = parser.isSet(u"dark"_s);
    if (parser.isSet(u"size"_s)) {
        static const QRegularExpression size(u"^(\\d{2,4})x(\\d{2,4})$"_s);
        const QRegularExpressionMatch match = size.match(parser.value(u"size"_s));
        if (!match.hasMatch()) {
            error = u"--size must be WIDTHxHEIGHT"_s;
            return {};
        }
        options.size = {match.captured(1).toInt(), match.captured(2).toInt()};
    }

    const auto choice = [&](const QString &name, const QStringList &names, qint32 &value, qint32 first) {
        if (!parser.isSet(name))
            return true;
        const qsizetype index = names.indexOf(parser.value(name).toLower());
        value = static_cast<qint32>(index) + first;
        if (index < 0)
            error = u"--%1 must be one of %2"_s.arg(name, names.join(u", "));
        return index >= 0;
    };
    if (!choice(u"db-type"_s, DbTypes, options.dbType, 1) ||
        !choice(u"table-type"_s, TableTypes, options.tableType, 0))
        return {};

    if (options.print && parser.value(u"print"_s) != u"all") {
        bool ok = false;
        const int rows = parser.value(u"print"_s).toInt(&ok);
        if (!ok || rows < 0) {
            error = u"--print takes a number of rows"_s;
            return {};
        }
        options.printRows = rows;
    }
    for (const QString &key : parser.value(u"do"_s).split(u',')) {
        if (!key.trimmed().isEmpty())
            options.keys.append(key.trimmed());
    }
    return options;
}
