// Faults of a database file between two commands.
#include "FaultFixture.h"

#include "support/AccessWriter.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <functional>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class AccessFileFaults : public testing::Test
{
protected:
    void SetUp() override
    {
        QList<QVariantList> rows;
        for (int i = 1; i <= records; ++i)
            rows += {i, u"name %1"_s.arg(i)};
        AccessWriter writer;
        writer.addTable(u"faults"_s,
                        {{u"id"_s, ADODB::AccessType::LongInteger}, {u"name"_s, ADODB::AccessType::Text, 50}},
                        rows);
        whole = writer.file();
        writer.setPassword(u"secret"_s);
        locked = writer.file();
        write(whole);
        ASSERT_TRUE(hands.load(u"SELECT * FROM faults"_s, {}));
        openBefore = openFiles().filter(path);
    }

    void write(const QByteArray &bytes) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    // Expects one message with these words, an unchanged grid, and that all works after the file is restored.
    void expectOnlyAMessage(const std::function<void()> &fault, const QString &words)
    {
        WindowAnswers dialogs({[](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); },
                               [](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); }});
        fault();
        hands.click(u"Sort"_s);
        ASSERT_EQ(hands.messages.texts().size(), 1);
        EXPECT_TRUE(hands.messages.texts().first().contains(words))
            << qUtf8Printable(hands.messages.texts().first());
        hands.messages.clear();
        EXPECT_EQ(hands.rows(), records);
        EXPECT_EQ(hands.texts(u"name"_s).last(), u"name 1000"_s);
        EXPECT_EQ(hands.statement(), u"SELECT * FROM faults"_s);
        write(whole);
        hands.click(u"Sort"_s);
        EXPECT_EQ(hands.texts(u"id"_s).first(), u"1000"_s);
        EXPECT_TRUE(hands.messages.shown().empty());
        EXPECT_EQ(openFiles().filter(path), openBefore) << "the file is left open";
    }

    static constexpr int records = 1000;
    QTemporaryDir folder;
    const QString path = folder.filePath(u"faults.mdb"_s);
    Hands hands{u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path, KOVAVSFDataGrid::dbAccess};
    QByteArray whole;
    QByteArray locked; // encrypted with a password
    QStringList openBefore;
};

} // namespace

TEST_F(AccessFileFaults, FileGone)
{
    expectOnlyAMessage([&] { QFile::remove(path); }, u"找不到数据库文件"_s);
}

TEST_F(AccessFileFaults, FileCutOff)
{
    expectOnlyAMessage([&] { write(whole.first(whole.size() / 2 + 1)); }, u"已损坏或者不完整"_s);
}

TEST_F(AccessFileFaults, PageDamagedThatHoldsRecords)
{
    constexpr qsizetype pageSize = 4096;
    QByteArray bytes = whole;
    bytes.replace(5 * pageSize + 12, 2, "\xff\xff"); // the number of its records
    expectOnlyAMessage([&] { write(bytes); }, u"损坏"_s);
}

TEST_F(AccessFileFaults, AnotherKindOfFileInItsPlace)
{
    expectOnlyAMessage([&] { write("name;price\n"); }, u"不是 Access 数据库"_s);
}

TEST_F(AccessFileFaults, PasswordGivenToItMeanwhile)
{
    expectOnlyAMessage([&] { write(locked); }, u"密码不正确"_s);
}
