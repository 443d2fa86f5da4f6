// Every table of the sample files, compared with what mdb-export prints of it.
#include "AccessSamples.h"
#include "Printing.h"

#include "ado/Error.h"
#include "ado/values/NumericTypes.h"

#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QStringList>
#include <gtest/gtest.h>

using namespace AdoTest;
using namespace ADODB;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QChar cellEnd(0x1f);
constexpr QChar rowEnd(0x1e);

QString printed(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments, QIODevice::ReadOnly);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString textOf(const Recordset &recordset, qint64 record, int column)
{
    const DataTypeEnum type = recordset.Fields().Item(column).Type();
    const QVariant value = recordset.CellValue(record, column);
    if (type == adBoolean)
        return value.toBool() ? u"1"_s : u"0"_s;
    if (type == adLongVarBinary || type == adVarBinary)
        return QString::fromLatin1(value.toByteArray().toHex().toUpper());
    QString text = recordset.CellText(record, column);
    // mdb-export counts the characters of a GUID as bytes, and omits its last dash.
    constexpr qsizetype lastDash = 24;
    return type == adGUID && !text.isEmpty()
               ? QString::fromLatin1(text.remove(lastDash, 1).toLatin1().toHex().toUpper())
               : text;
}

// mdb-export writes numbers with the zeros and digits of their storage.
bool isSame(const QString &shown, const QString &exported, DataTypeEnum type)
{
    if (!isNumericType(type) || shown.isEmpty() || exported.isEmpty())
        return shown == exported;
    bool isShownNumber = false;
    bool isExportedNumber = false;
    const double a = shown.toDouble(&isShownNumber);
    const double b = exported.toDouble(&isExportedNumber);
    return isShownNumber && isExportedNumber && std::abs(a - b) <= 1e-7 * std::abs(b);
}

class AccessSamplesTest : public testing::TestWithParam<const char *>
{
};

} // namespace

TEST_P(AccessSamplesTest, EveryTableReadsAsMdbExportPrintsIt)
{
    const QTemporaryDir folder;
    const QString path = samplePath(QLatin1StringView(GetParam()), folder);
    if (path.isEmpty() || QStandardPaths::findExecutable(u"mdb-export"_s).isEmpty())
        GTEST_SKIP() << GetParam() << " or mdb-export is not here";
    const auto connection = openAccess(path);
    const QStringList tables = printed(u"mdb-tables"_s, {u"-1"_s, path}).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_FALSE(tables.isEmpty());
    for (const QString &table : tables) {
        SCOPED_TRACE(qUtf8Printable(table));
        const QString dates = u"%Y-%m-%d %H:%M:%S"_s;
        QStringList rows =
            printed(u"mdb-export"_s, {u"-Q"_s, u"-H"_s, u"-d"_s, QString(cellEnd), u"-R"_s, QString(rowEnd),
                                      u"-D"_s, dates, u"-T"_s, dates, u"-b"_s, u"hex"_s, path, table})
                .split(rowEnd);
        rows.removeLast();
        const auto recordset = query(connection, u"SELECT * FROM ["_s + table + u']');
        ASSERT_EQ(recordset->RecordCount(), rows.size());
        for (qint64 record = 1; record <= recordset->RecordCount(); ++record) {
            const QStringList cells = rows[record - 1].split(cellEnd);
            ASSERT_EQ(cells.size(), recordset->Fields().Count());
            for (int column = 0; column < cells.size(); ++column) {
                const DataTypeEnum type = recordset->Fields().Item(column).Type();
                const QString shown = textOf(*recordset, record, column);
                ASSERT_TRUE(isSame(shown, cells[column], type))
                    << "record " << record << ", " << recordset->Fields().Item(column).Name().toStdString()
                    << ": " << shown.left(300).toStdString() << " for "
                    << cells[column].left(300).toStdString();
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Files, AccessSamplesTest,
                         testing::Values("nwind.mdb", "sample.accdb", writtenSample));
