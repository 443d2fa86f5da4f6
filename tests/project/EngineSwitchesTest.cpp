// Only sql/ and ado/ check which engine it is and what the host declares. The other rooms ask these how
// something is written or done.
#include "Rooms.h"

#include <QtCore/QDirIterator>
#include <QtCore/QRegularExpression>
#include <gtest/gtest.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// What decides by an engine or a declared type, in any spelling. Values that only are handed on or stored do
// not, nor do texts that only contain an engine's name.
QRegularExpression decision()
{
    const QString type = u"(?:\\w+::)*db(?:Access|Oracle|SQLServer)\\b"_s;
    const QString compared = u"(?:[=!]=|<=>|(?<![<>-])[<>](?![<>])=?)"_s;
    const QString name = u"(?:\\w+\\()?u?\"(?:Microsoft )?(?:SQLite3?|PostgreSQL|Postgres|MySQL|MariaDB|SQL "
                         "Server|Oracle|Access)\"(?:_\\w+)?"_s;
    const QString asked = u"(?:contains|(?:starts|ends)With|compare|indexOf|(?:is|has)[A-Z]\\w*|equals?|find|"
                          "QRegularExpression)\\("_s;
    return QRegularExpression(
        QStringList{
            u"\\bEngine::[A-Z]"_s,
            u"\\busing (?:enum (?:\\w+::)*(?:Engine|AllDBType)|\\w+ = (?:\\w+::)*Engine)\\b"_s,
            u"<(?:\\w+::)*Engine>\\(|\\bEngine[({] *\\d"_s,
            u"\\bengine(?:Name|Named)\\("_s, // whose answer is good for nothing else
            u"(?:[=!]=|<=>)\\s*\\("_s + type,
            compared + u"\\s*"_s + type,
            type + u"\\)?\\s*"_s + compared,
            u"\\bcase\\s+"_s + type,
            u"\\w*(?:dbType(?:\\(\\))?|database)\\s*"_s + compared + u"\\s*\\d"_s,
            u"[=!]=\\s*"_s + name,
            name + u"\\)?\\s*[=!]="_s,
            asked + u"(?:[\\w.()]+,\\s*)*"_s + name,
        }
            .join(u'|'),
        QRegularExpression::CaseInsensitiveOption);
}

// The lines in which such a decision begins.
QStringList switchesIn(const QStringList &lines)
{
    static const QRegularExpression wanted = decision();
    QString code;
    for (const QString &line : lines)
        code += line.section(u"//"_s, 0, 0) + u'\n';
    QStringList found;
    for (const QRegularExpressionMatch &match : wanted.globalMatch(code)) {
        const QString line = lines.at(QStringView(code).first(match.capturedStart()).count(u'\n')).trimmed();
        if (!found.endsWith(line))
            found += line;
    }
    return found;
}

} // namespace

TEST(EngineSwitches, AreInTheRoomsOfSqlAndDataOnly)
{
    const QString top = QStringLiteral(KOVA_SOURCE_DIR);
    int files = 0;
    for (const QString &folder : {u"/src"_s, u"/apps"_s, u"/designer"_s, u"/python"_s}) {
        QDirIterator sources(top + folder, {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (sources.hasNext()) {
            const QString path = sources.next();
            if (path.startsWith(top + "/src/sql/"_L1) || path.startsWith(top + "/src/ado/"_L1))
                continue;
            EXPECT_EQ(switchesIn(linesOf(path)).join(u'\n').toStdString(), "") << path.toStdString();
            ++files;
        }
    }
    EXPECT_GT(files, 300) << "sources are not found any more";
}

// The check itself is checked.
TEST(EngineSwitches, AreFoundOut)
{
    const QStringList wrong{u"if (dialect.engine == Engine::SQLite)"_s,
                            u"case dbOracle:"_s,
                            u"return type != dbAccess;"_s,
                            u"const bool is = dbSQLServer == type;"_s,
                            u"t == AllDBType::dbOracle"_s,
                            u"case AllDBType::dbOracle:"_s,
                            u"t == KOVAVSFDataGridLib::dbOracle"_s,
                            u"if (d.database > dbAccess)"_s,
                            u"if (dbAccess < d.database && x)"_s,
                            u"isLarge = type>=KOVAVSFDataGridLib::AllDBType::dbSQLServer;"_s,
                            u"return type == (dbOracle);"_s,
                            u"using enum Engine;"_s,
                            u"using enum KOVAVSFDataGridLib::AllDBType;"_s,
                            u"using Kind = KOVAVSFDataGridLib::Engine;"_s,
                            u"if (engine == static_cast<Engine>(1))"_s,
                            u"if (m_dbType == 2)"_s,
                            u"if (grid->DBType() != 1)"_s,
                            u"name.contains(u\"MySQL\"_s)"_s,
                            u"if (name == u\"SQLite\"_s)"_s,
                            u"if (\"oracle\"_L1 == name)"_s,
                            u"name.compare(QStringLiteral(\"PostgreSQL\"), Qt::CaseInsensitive)"_s,
                            u"isEngine(engine, \"SQL Server\"_L1)"_s,
                            u"const QString engine = connection->EngineName();"_s};
    const QStringList right{u"AllDBType type = dbAccess;"_s,
                            u"Engine engine = mode.engine;"_s,
                            u"m_type->addItem(name, KOVAVSFDataGrid::dbOracle); // == dbOracle"_s,
                            u"mode->show(static_cast<qint32>(dbOracle));"_s,
                            u"provider = u\"SQLite\"_s;"_s,
                            u"if (head.startsWith(\"SQLite format 3\"))"_s,
                            u"if (a.database == b.database)"_s};
    EXPECT_EQ(switchesIn(wrong + right).join(u'\n').toStdString(), wrong.join(u'\n').toStdString());
    EXPECT_EQ(switchesIn({u"return type =="_s, u"    KOVAVSFDataGrid::dbOracle;"_s}),
              (QStringList{u"return type =="_s}));
}
