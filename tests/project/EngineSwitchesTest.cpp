// Only sql/ and ado/ check which engine it is and what the host declares. The other rooms ask these how
// something is written or done.
#include "Rooms.h"

#include <QtCore/QDirIterator>
#include <QtCore/QRegularExpression>
#include <gtest/gtest.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// The lines that decide by an engine or a declared type. Values that only are handed on or stored are none.
QStringList switchesIn(const QStringList &lines)
{
    static const QRegularExpression decision(
        u"\\bEngine::[A-Z]|(?:[=!]=|\\bcase) *db(?:Access|Oracle|SQLServer)\\b|"
        "\\bdb(?:Access|Oracle|SQLServer) *[=!]="_s);
    QStringList found;
    for (const QString &line : lines) {
        const QString code = line.section(u"//"_s, 0, 0);
        if (decision.match(code).hasMatch())
            found += line.trimmed();
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
    const QStringList wrong{u"if (dialect.engine == Engine::SQLite)"_s, u"case dbOracle:"_s,
                            u"return type != dbAccess;"_s, u"const bool is = dbSQLServer == type;"_s};
    const QStringList right{u"AllDBType type = dbAccess;"_s, u"Engine engine = mode.engine;"_s,
                            u"m_type->addItem(name, KOVAVSFDataGrid::dbOracle); // == dbOracle"_s};
    EXPECT_EQ(switchesIn(wrong + right), wrong);
}
