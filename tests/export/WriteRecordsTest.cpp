// Records that two threads write: in their order, whatever their size, and to an end whatever happens.
#include "ExportRecords.h"

#include "ado/Error.h"
#include "export/WriteRecords.h"

#include <gtest/gtest.h>

#include <limits>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 manyRecords = 40000;

// Texts of one record each, of which it remembers how they came.
class Listing final : public RecordWriter
{
public:
    void begin(const ExportColumns &) override {}
    void row(const std::vector<ADODB::RawValue> &) override { ADD_FAILURE() << "by another way"; }
    void end() override { isEnded = true; }
    std::unique_ptr<RowTexts> newRowTexts() const override
    {
        class Texts final : public RowTexts
        {
            void append(QByteArray &text, const std::vector<ADODB::RawValue> &cells) override
            {
                text +=
                    QByteArray::number(cells.at(0).integer) + ':' + cells.at(1).bytes.toByteArray() + '\n';
            }
        };
        return std::make_unique<Texts>();
    }
    void add(QByteArrayView added) override
    {
        if (text.size() > refusesAfter)
            throw ADODB::Error(ADODB::adErrWriteFile, u"full"_s);
        text += added;
        longest = std::max(longest, added.size());
    }

    QByteArray text;
    qsizetype longest = 0;
    qsizetype refusesAfter = std::numeric_limits<qsizetype>::max();
    bool isEnded = false;
};

// Every 997th record is a hundred thousand times as long as the others, and there are 30 of them at the end.
struct WriteRecordsTest : testing::Test
{
    WriteRecordsTest()
    {
        records.open(
            u"WITH N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < %1) SELECT I, CASE WHEN "
            "I % 997 = 0 OR I > %1 - 30 THEN replace(hex(zeroblob(150000)), '0', 'x') ELSE 'abc' END "
            "AS T FROM N"_s.arg(manyRecords));
    }
    bool write(const std::function<bool(qint64)> &shouldContinue)
    {
        return writeRecords(*records.recordset, records.all(), records.columns(), listing, shouldContinue);
    }

    ExportRecords records;
    Listing listing;
};

} // namespace

TEST_F(WriteRecordsTest, KeepsTheirOrderWhereSomeAreLong)
{
    qint64 asked = 0;
    qint64 last = -1;
    EXPECT_TRUE(write([&](qint64 written) {
        EXPECT_GT(written, last);
        last = written;
        ++asked;
        return true;
    }));
    EXPECT_TRUE(listing.isEnded);
    EXPECT_GT(asked, 4) << "between some megabytes";
    EXPECT_LT(listing.longest, 1 << 20) << "long ones are not gathered";
    const QList<QByteArray> lines = listing.text.split('\n');
    ASSERT_EQ(lines.size(), manyRecords + 1);
    for (qint64 i = 1; i <= manyRecords; ++i) {
        const bool isLong = i % 997 == 0 || i > manyRecords - 30;
        const QByteArray &line = lines.at(i - 1);
        ASSERT_TRUE(line.startsWith(QByteArray::number(i) + ':')) << i;
        ASSERT_TRUE(line.endsWith(isLong ? "xxx" : ":abc")) << i;
    }
}

TEST_F(WriteRecordsTest, EndsWhenAskedTo)
{
    EXPECT_FALSE(write([](qint64 written) { return written < 1000; }));
    EXPECT_FALSE(listing.isEnded);
    EXPECT_GE(listing.text.count('\n'), 1000);
    EXPECT_LT(listing.text.count('\n'), manyRecords);
}

TEST_F(WriteRecordsTest, EndsWhenTheWriterThrows)
{
    listing.refusesAfter = 3 << 20;
    EXPECT_THROW(write([](qint64) { return true; }), ADODB::Error);
    EXPECT_FALSE(listing.isEnded);
}

// The host may change the records while it is asked.
TEST_F(WriteRecordsTest, EndsAtARecordThatIsGone)
{
    EXPECT_THROW(write([&](qint64 written) {
                     if (written > 0 && records.recordset->State() == ADODB::adStateOpen)
                         records.recordset->Close();
                     return true;
                 }),
                 ADODB::Error);
    EXPECT_FALSE(listing.isEnded);
}
