#include "AutomationHost.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;
using AdoTest::number;

namespace {

using AutomationReading = AdoTest::AutomationHost;

TEST_F(AutomationReading, FindsTheNextRecord)
{
    const auto find = [&](const char16_t *condition, const QVariant &skip = {},
                          const QVariant &direction = {}, const QVariant &start = {}) {
        call("Find", Q_ARG(QString, QString::fromUtf16(condition)), Q_ARG(QVariant, skip),
             Q_ARG(QVariant, direction), Q_ARG(QVariant, start));
        return get("AbsolutePosition").toInt();
    };
    EXPECT_EQ(find(u"name LIKE 'l%'"), 1) << "the current record counts";
    EXPECT_EQ(find(u"name LIKE 'l%'", 1), 3);
    const QVariant third = get("Bookmark");
    EXPECT_EQ(find(u"name LIKE 'l%'", 1), ADODB::adPosEOF);
    EXPECT_EQ(find(u"id < 3", 0, -1, third), 2);
    EXPECT_EQ(find(u"id > 90", {}, -1, 2), ADODB::adPosBOF);
    EXPECT_EQ(find(u"id = 2", {}, {}, 1), 2);
    EXPECT_EQ(lastError(), 0);
    find(u"id = 2 AND age = 3");
    EXPECT_EQ(lastError(), number(ADODB::adErrInvalidArgument));
    find(u"id = 2", {}, 5);
    EXPECT_EQ(lastError(), number(ADODB::adErrInvalidArgument));
    call("MoveLast");
    call("MoveNext");
    find(u"id = 2");
    EXPECT_EQ(lastError(), number(ADODB::adErrNoCurrentRecord));
}

TEST_F(AutomationReading, GetRowsGivesTheValuesOfManyRecords)
{
    const auto rows = [&](const QVariant &count = {}, const QVariant &start = {},
                          const QVariant &fields = {}) {
        return ask<QVariant>(host, "GetRows", Q_ARG(QVariant, count), Q_ARG(QVariant, start),
                             Q_ARG(QVariant, fields))
            .toList();
    };
    EXPECT_EQ(rows(2, {}, QVariantList{u"name"_s, 0}),
              (QVariantList{QVariantList{u"Li"_s, u"O'Brien"_s}, QVariantList{1, 2}}));
    EXPECT_EQ(get("AbsolutePosition"), QVariant(3)) << "the first that was not read";
    EXPECT_EQ(rows({}, {}, u"age"_s), (QVariantList{QVariantList{7, 31}}));
    EXPECT_TRUE(get("EOF").toBool());
    EXPECT_EQ(rows(), QVariantList{});
    EXPECT_EQ(lastError(), number(ADODB::adErrNoCurrentRecord));
    EXPECT_EQ(rows(-1, 1).size(), 5);
    EXPECT_EQ(rows({}, 1, u"nothing"_s), QVariantList{});
    EXPECT_EQ(lastError(), number(ADODB::adErrItemNotFound));
    EXPECT_EQ(rows(-7, 1), QVariantList{});
    EXPECT_EQ(lastError(), number(ADODB::adErrInvalidArgument));
}

TEST_F(AutomationReading, GetStringGivesTheSameAsText)
{
    const QVariant none;
    const auto text = [&](const QVariant &rows, const QVariant &column, const QVariant &row,
                          const QVariant &null) {
        return ask<QString>(host, "GetString", Q_ARG(QVariant, none), Q_ARG(QVariant, rows),
                            Q_ARG(QVariant, column), Q_ARG(QVariant, row), Q_ARG(QVariant, null));
    };
    EXPECT_EQ(text(1, none, none, none), u"1\tLi\t20\t2001-02-03\t<2 字节>\r"_s);
    EXPECT_EQ(text(none, u","_s, u";"_s, u"-"_s),
              u"2,O'Brien,-,-,-;3,lisa,7,1999-12-31,-;4,Wang,31,2020-01-01,-;"_s);
    call("MoveFirst");
    EXPECT_EQ(ask<QString>(host, "GetString", Q_ARG(QVariant, QVariant(3))), QString());
    EXPECT_EQ(lastError(), number(ADODB::adErrFeatureNotAvailable));
}

TEST_F(AutomationReading, SaysWhatItSupportsAndItsStatus)
{
    const auto supports = [&](qint32 bits) { return ask<bool>(host, "Supports", Q_ARG(qint32, bits)); };
    EXPECT_TRUE(supports(ADODB::adBookmark | ADODB::adFind | ADODB::adAddNew | ADODB::adDelete));
    EXPECT_FALSE(supports(ADODB::adUpdateBatch));
    EXPECT_FALSE(supports(ADODB::adFind | ADODB::adSeek));
    EXPECT_EQ(get("Status"), QVariant(qint32{ADODB::adRecUnmodified}));
    recordset->Fields().Item(1).PutValue(u"x"_s);
    EXPECT_EQ(get("Status"), QVariant(qint32{ADODB::adRecModified}));
    call("CancelUpdate");
    call("AddNew");
    EXPECT_EQ(get("Status"), QVariant(qint32{ADODB::adRecNew}));
    call("CancelUpdate");
    call("Delete", Q_ARG(qint32, 1));
    EXPECT_EQ(get("Status"), QVariant(qint32{ADODB::adRecDeleted}));
    call("MoveLast");
    call("MoveNext");
    EXPECT_EQ(lastError(), 0);
    get("Status");
    EXPECT_EQ(lastError(), number(ADODB::adErrNoCurrentRecord));
    for (const char *refused : {"Requery", "UpdateBatch", "CancelBatch", "NextRecordset"}) {
        call(refused);
        EXPECT_EQ(lastError(), number(ADODB::adErrFeatureNotAvailable)) << refused;
    }

    const auto readOnly = database.open(u"SELECT * FROM t"_s, ADODB::adLockReadOnly);
    EXPECT_FALSE(ask<bool>(automation(readOnly), "Supports", Q_ARG(qint32, ADODB::adUpdate)));
}

TEST_F(AutomationReading, NamesTheConnectionWithoutItsPassword)
{
    const auto connection = database.connect();
    const auto opened = std::make_shared<ADODB::Recordset>();
    opened->Open(u"SELECT * FROM t"_s, connection);
    auto *object = automation(opened)->property("ActiveConnection").value<QObject *>();
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->property("State"), QVariant(1));
    EXPECT_EQ(automation(opened)->property("ActiveConnection").value<QObject *>(), object);
    const auto closed = std::make_shared<ADODB::Recordset>();
    EXPECT_EQ(automation(closed)->property("ActiveConnection").value<QObject *>(), nullptr);
}

TEST_F(AutomationReading, GivesTheSizeOfAValue)
{
    const auto size = [&](const QString &field) {
        return ask<QObject *>(host, "Fields", Q_ARG(QString, field))->property("ActualSize").toInt();
    };
    EXPECT_EQ(size(u"id"_s), 4);
    EXPECT_EQ(size(u"name"_s), 4);
    EXPECT_EQ(size(u"p"_s), 2);
    call("MoveNext");
    EXPECT_EQ(size(u"age"_s), 0);
}

TEST_F(AutomationReading, SavesTheVisitedRecordsAsXml)
{
    put("Filter", u"id < 3"_s);
    const QString path = database.filePath(u"saved.xml"_s);
    const auto save = [&](qint32 format) { call("Save", Q_ARG(QString, path), Q_ARG(qint32, format)); };
    save(0);
    EXPECT_EQ(lastError(), number(ADODB::adErrFeatureNotAvailable));
    save(1);
    EXPECT_EQ(lastError(), 0);
    save(1);
    EXPECT_EQ(lastError(), number(ADODB::adErrWriteFile)) << "the file exists";

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QStringList rows;
    QStringList types;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == u"row") {
            QStringList values;
            for (const auto name : {"id"_L1, "name"_L1, "c3"_L1, "p"_L1})
                values += attributes.value(name).toString();
            rows += values.join(u'|') + (attributes.hasAttribute("age"_L1) ? u" with age"_s : QString());
        } else if (xml.name() == u"datatype") {
            types += attributes.value(u"uuid:C2F41010-65B3-11d1-A29F-00AA00C14882"_s, u"type"_s).toString();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(rows, (QStringList{u"1|Li|2001-02-03|0aff with age"_s, u"2|O'Brien||"_s}));
    EXPECT_EQ(types.join(u' '), u"int string int date bin.hex"_s);
}

TEST_F(AutomationReading, SavesTheVisitedRecordsAsCsv)
{
    database.execute(u"INSERT INTO t VALUES (5, 'a \"b\", c', NULL, NULL, NULL), (6, '', 1, NULL, NULL),"
                     "(7, '两\n行', 2, NULL, NULL);"_s);
    const auto opened = database.open(u"SELECT id, name, age AS \"a,ge\", p FROM t"_s);
    auto *object = automation(opened);
    object->setProperty("Filter", u"id < 3 OR id > 4"_s);
    const QString path = database.filePath(u"saved.csv"_s);
    object->Save(path, ADODB::adPersistProviderSpecific);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().toStdString(), "\xEF\xBB\xBF"
                                            "id,name,\"a,ge\",p\r\n"
                                            "1,Li,20,0aff\r\n"
                                            "2,O'Brien,,\r\n"
                                            "5,\"a \"\"b\"\", c\",,\r\n"
                                            "6,\"\",1,\r\n"
                                            "7,\"两\n行\",2,\r\n");
}

} // namespace
