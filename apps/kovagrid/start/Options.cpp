#include "start/Options.h"

#include "HostTexts.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const QStringList dbTypes{u"access"_s, u"oracle"_s, u"sqlserver"_s};
const QStringList tableTypes{u"table"_s, u"view"_s, u"sql"_s};
const QStringList languages{u"zh"_s, u"en"_s};
bool isNumber(const QString &text)
{
    bool ok = false;
    text.toInt(&ok);
    return ok;
}

// The number after --print is optional, which QCommandLineParser doesn't support.
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

void addOptions(QCommandLineParser &parser)
{
    for (const QString &name : {u"connection"_s, u"db-type"_s, u"sql"_s, u"part"_s, u"sort"_s,
                                u"table-type"_s, u"do"_s, u"print"_s, u"screenshot"_s, u"size"_s, u"lang"_s})
        parser.addOption(QCommandLineOption(name, {}, u"value"_s));
    parser.addOption(QCommandLineOption(u"dark"_s));
}

} // namespace

QString Options::language(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.parse(QStringList{u"kovagrid"_s} + withExplicitPrintRows(arguments));
    return parser.value(u"lang"_s);
}

std::optional<Options> Options::parse(const QStringList &arguments, QString &error)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(QStringList{u"kovagrid"_s} + withExplicitPrintRows(arguments))) {
        error = parser.errorText();
        return {};
    }
    if (!parser.positionalArguments().isEmpty()) {
        error = HostTexts::UnexpectedArgument().arg(parser.positionalArguments().constFirst());
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
            error = HostTexts::BadSize();
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
            error = HostTexts::BadChoice().arg(name, names.join(u", "));
        return index >= 0;
    };
    qint32 language = 0;
    if (!choice(u"lang"_s, languages, language, 0) || !choice(u"db-type"_s, dbTypes, options.dbType, 1) ||
        !choice(u"table-type"_s, tableTypes, options.tableType, 0))
        return {};

    if (options.print && parser.value(u"print"_s) != u"all") {
        bool ok = false;
        const int rows = parser.value(u"print"_s).toInt(&ok);
        if (!ok || rows < 0) {
            error = HostTexts::BadRows();
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
