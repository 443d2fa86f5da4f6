#include "TestDatabase.h"
#include "Throwing.h"

#include "ado/Adodc.h"
#include "ado/Error.h"
#include "ado/automation/ConnectionObject.h"
#include "ado/automation/Guarded.h"
#include "ado/automation/RecordsetObject.h"
#include "ado/automation/StreamObject.h"

#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>

using namespace Qt::Literals::StringLiterals;
using AdoTest::TestDatabase;

namespace {

const QString script = u"CREATE TABLE t(id INTEGER PRIMARY KEY, 名称 TEXT, p BLOB);"
                       "INSERT INTO t VALUES (1, '甲', x'ff00'), (2, NULL, NULL), (3, '丙', NULL);"_s;

// From here on only names are used, as in a script.
QVariant get(QObject *object, const char *name)
{
    EXPECT_GE(object->metaObject()->indexOfProperty(name), 0) << name;
    return object->property(name);
}

QObject *field(QObject *recordset, const QString &name)
{
    QObject *answer = nullptr;
    EXPECT_TRUE(QMetaObject::invokeMethod(recordset, "Fields", Q_RETURN_ARG(QObject *, answer),
                                          Q_ARG(QString, name)));
    return answer;
}

void call(QObject *object, const char *method)
{
    EXPECT_TRUE(QMetaObject::invokeMethod(object, method)) << method;
}

TEST(Automation, WalksAResultKnowingOnlyNames)
{
    const TestDatabase database(script);
    const auto recordset = database.open(u"SELECT * FROM t ORDER BY id"_s);
    QObject *host = automation(recordset);
    QStringList seen;
    call(host, "MoveFirst");
    while (!get(host, "EOF").toBool()) {
        seen +=
            get(field(host, u"ID"_s), "Value").toString() + get(field(host, u"名称"_s), "Value").toString();
        call(host, "MoveNext");
    }
    EXPECT_EQ(seen.join(u' '), u"1甲 2 3丙"_s);
    EXPECT_FALSE(get(host, "BOF").toBool());
    EXPECT_EQ(get(host, "RecordCount"), QVariant(3));
    EXPECT_TRUE(host->setProperty("AbsolutePosition", 2));
    EXPECT_EQ(get(host, "AbsolutePosition"), QVariant(2));
    EXPECT_FALSE(get(field(host, u"名称"_s), "Value").isValid());
    EXPECT_TRUE(QMetaObject::invokeMethod(host, "Move", Q_ARG(qint32, 1)));
    EXPECT_EQ(get(host, "AbsolutePosition"), QVariant(3));

    auto *fields = get(host, "Fields").value<QObject *>();
    ASSERT_EQ(get(fields, "Count"), QVariant(3));
    QStringList names;
    for (qint32 i = 0; i < 3; ++i) {
        QObject *item = nullptr;
        EXPECT_TRUE(
            QMetaObject::invokeMethod(fields, "Item", Q_RETURN_ARG(QObject *, item), Q_ARG(qint32, i)));
        names += get(item, "Name").toString() + get(item, "Type").toString();
        QObject *same = nullptr;
        EXPECT_TRUE(QMetaObject::invokeMethod(host, "Fields", Q_RETURN_ARG(QObject *, same),
                                              Q_ARG(QVariant, QVariant(i))));
        EXPECT_EQ(item, same) << "one object per field";
    }
    EXPECT_EQ(names.join(u' '), u"id3 名称202 p205"_s);
}

TEST(Automation, EditsByNames)
{
    const TestDatabase database(script);
    const auto recordset = database.open(u"SELECT * FROM t ORDER BY id"_s);
    QObject *host = automation(recordset);
    EXPECT_TRUE(field(host, u"名称"_s)->setProperty("Value", u"改"_s));
    EXPECT_EQ(get(host, "EditMode"), QVariant(1));
    call(host, "Update");
    EXPECT_EQ(database.ask(u"SELECT 名称 FROM t WHERE id = 1"_s), u"改"_s);
    call(host, "AddNew");
    EXPECT_TRUE(field(host, u"名称"_s)->setProperty("Value", u"新"_s));
    call(host, "Update");
    EXPECT_EQ(get(host, "RecordCount"), QVariant(4));
    EXPECT_EQ(get(field(host, u"id"_s), "Value"), QVariant(4));
    EXPECT_TRUE(QMetaObject::invokeMethod(host, "Delete", Q_ARG(qint32, 1)));
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM t"_s), u"3"_s);
}

TEST(Automation, DoesNotCloseOverAPendingEdit)
{
    const TestDatabase database(script);
    const auto recordset = database.open(u"SELECT * FROM t ORDER BY id"_s);
    QObject *host = automation(recordset);
    QSignalSpy errors(host, SIGNAL(HostError(qint32, QString)));
    for (const char *begin : {"AddNew", "MoveFirst"}) {
        call(host, begin);
        EXPECT_TRUE(field(host, u"名称"_s)->setProperty("Value", u"改"_s));
        call(host, "Close");
        ASSERT_EQ(errors.size(), 1);
        EXPECT_EQ(errors.takeFirst()[0], QVariant(ADODB::Error::hresult(ADODB::adErrIllegalOperation)));
        EXPECT_EQ(get(field(host, u"名称"_s), "Value"), QVariant(u"改"_s));
        call(host, "CancelUpdate");
    }
    call(host, "Close");
    EXPECT_TRUE(errors.isEmpty());
    EXPECT_EQ(recordset->State(), ADODB::adStateClosed);
}

TEST(Automation, ReportsWhatSomebodyElseWrote)
{
    const TestDatabase database(script);
    const auto recordset = database.open(u"SELECT * FROM t ORDER BY id"_s);
    QObject *host = automation(recordset);
    QSignalSpy errors(host, SIGNAL(HostError(qint32, QString)));
    QObject *name = field(host, u"名称"_s);
    EXPECT_TRUE(name->setProperty("Value", u"我"_s));
    database.execute(u"UPDATE t SET 名称 = '他' WHERE id = 1"_s);
    call(host, "Update");
    ASSERT_EQ(errors.size(), 1);
    EXPECT_EQ(errors[0][0], QVariant(qint32{ADODB::dbErrConcurrency}));
    EXPECT_EQ(get(name, "UnderlyingValue"), QVariant(u"甲"_s)) << "nobody has asked yet";
    EXPECT_TRUE(QMetaObject::invokeMethod(host, "Resync", Q_ARG(qint32, 1), Q_ARG(qint32, 1)));
    EXPECT_EQ(get(name, "UnderlyingValue"), QVariant(u"他"_s));
    EXPECT_EQ(get(name, "OriginalValue"), QVariant(u"甲"_s));
    EXPECT_EQ(get(name, "Value"), QVariant(u"我"_s));
    call(host, "Resync");
    EXPECT_EQ(get(name, "Value"), QVariant(u"他"_s));
    EXPECT_EQ(get(name, "OriginalValue"), QVariant(u"他"_s));
    EXPECT_EQ(errors.size(), 1);
    EXPECT_TRUE(QMetaObject::invokeMethod(host, "Resync", Q_ARG(qint32, 3)));
    EXPECT_EQ(errors.size(), 2) << "only the current record";
    EXPECT_TRUE(QMetaObject::invokeMethod(host, "Resync", Q_ARG(qint32, 1), Q_ARG(qint32, 7)));
    EXPECT_EQ(errors.size(), 3);
    database.execute(u"DELETE FROM t WHERE id = 1"_s);
    call(host, "Resync");
    EXPECT_EQ(errors.size(), 4);
}

TEST(Automation, ReportsFailuresByASignalAndAnswersNeutrally)
{
    const TestDatabase database(script);
    const auto recordset = database.open(u"SELECT * FROM t"_s);
    QObject *host = automation(recordset);
    QSignalSpy errors(host, SIGNAL(HostError(qint32, QString)));
    EXPECT_EQ(field(host, u"nothing"_s), nullptr);
    ASSERT_EQ(errors.size(), 1);
    EXPECT_EQ(errors[0][0], QVariant(static_cast<qint32>(0x800A0CC1)));
    EXPECT_TRUE(errors[0][1].toString().contains(u"nothing"));

    QObject *none = host;
    EXPECT_TRUE(QMetaObject::invokeMethod(host, "Fields", Q_RETURN_ARG(QObject *, none),
                                          Q_ARG(QVariant, QVariant())));
    EXPECT_EQ(none, nullptr);
    ASSERT_EQ(errors.size(), 2);
    errors.removeLast();

    call(host, "MovePrevious");
    call(host, "MovePrevious");
    ASSERT_EQ(errors.size(), 2);
    EXPECT_EQ(errors[1][0], QVariant(static_cast<qint32>(0x800A0BCD)));
    EXPECT_FALSE(get(field(host, u"id"_s), "Value").isValid());
    EXPECT_EQ(errors.size(), 3);
    host->setProperty("AbsolutePage", 77);
    EXPECT_EQ(errors.size(), 4);
    call(host, "Close");
    EXPECT_EQ(get(host, "RecordCount"), QVariant(0));
    EXPECT_EQ(errors.size(), 5);
    EXPECT_EQ(get(host, "State"), QVariant(0));
}

TEST(Automation, EndsAWalkOverAClosedRecordset)
{
    const TestDatabase database(script);
    const auto recordset = database.open(u"SELECT * FROM t"_s);
    QObject *host = automation(recordset);
    QSignalSpy errors(host, SIGNAL(HostError(qint32, QString)));
    EXPECT_EQ(get(host, "EOF"), QVariant(false));
    EXPECT_EQ(get(host, "BOF"), QVariant(false));
    call(host, "Close");
    EXPECT_EQ(get(host, "EOF"), QVariant(true));
    EXPECT_EQ(get(host, "BOF"), QVariant(true));
    ASSERT_EQ(errors.size(), 2) << "it is told nevertheless";
    EXPECT_EQ(errors[0][0], QVariant(static_cast<qint32>(0x800A0E78)));
}

TEST(Automation, WritesAStreamFromBytesAsFromAVariant)
{
    ADODB::StreamObject streamObject;
    QObject *stream = &streamObject;
    QSignalSpy errors(stream, SIGNAL(HostError(qint32, QString)));
    stream->setProperty("Type", 1);
    call(stream, "Open");
    const QByteArray bytes("\xff\0a", 3);
    EXPECT_TRUE(QMetaObject::invokeMethod(stream, "Write", Q_ARG(QByteArray, bytes)));
    EXPECT_TRUE(QMetaObject::invokeMethod(stream, "Write", Q_ARG(QVariant, QVariant(bytes))));
    stream->setProperty("Position", 0);
    QVariant read;
    EXPECT_TRUE(QMetaObject::invokeMethod(stream, "Read", Q_RETURN_ARG(QVariant, read), Q_ARG(qint32, -1)));
    EXPECT_EQ(read.toByteArray(), bytes + bytes);
    EXPECT_EQ(errors.size(), 0);
}

TEST(Automation, OpensThroughAConnectionObject)
{
    const TestDatabase database(script);
    ADODB::ConnectionObject connectionObject(std::make_shared<ADODB::Connection>());
    QObject *connection = &connectionObject;
    QSignalSpy errors(connection, SIGNAL(HostError(qint32, QString)));
    connection->setProperty("ConnectionString", u"Data Source=/nowhere/at all.db"_s);
    call(connection, "Open");
    EXPECT_EQ(errors.size(), 1);
    connection->setProperty("ConnectionString", database.connectionString());
    call(connection, "Open");
    EXPECT_EQ(get(connection, "State"), QVariant(1));
    QString written;
    EXPECT_TRUE(QMetaObject::invokeMethod(connection, "WrittenName", Q_RETURN_ARG(QString, written),
                                          Q_ARG(QString, u"order"_s)));
    EXPECT_EQ(written, u"[order]"_s);

    const auto recordset = std::make_shared<ADODB::Recordset>();
    QObject *host = automation(recordset);
    QSignalSpy hostErrors(host, SIGNAL(HostError(qint32, QString)));
    host->setProperty("CursorLocation", 3);
    host->setProperty("PageSize", 2);
    const auto open = [&](QObject *through) {
        return QMetaObject::invokeMethod(host, "Open", Q_ARG(QString, u"SELECT * FROM t"_s),
                                         Q_ARG(QObject *, through), Q_ARG(qint32, 1), Q_ARG(qint32, 3),
                                         Q_ARG(qint32, 1));
    };
    EXPECT_TRUE(open(host));
    EXPECT_EQ(hostErrors.size(), 1) << "a recordset is no connection";
    EXPECT_TRUE(open(connection));
    EXPECT_EQ(get(host, "PageCount"), QVariant(2));
    EXPECT_EQ(get(host, "Source"), QVariant(u"SELECT * FROM t"_s));
    EXPECT_EQ(get(host, "LockType"), QVariant(3));
    call(connection, "Close");
    EXPECT_EQ(get(connection, "State"), QVariant(0));
}

TEST(Automation, LivesAsLongAsTheRecordset)
{
    const TestDatabase database(script);
    auto recordset = database.open(u"SELECT * FROM t"_s);
    const QPointer<QObject> host = automation(recordset);
    EXPECT_EQ(automation(recordset), host);
    ADODB::Adodc adodc;
    adodc.PutRecordset(recordset);
    EXPECT_EQ(adodc.property("Recordset").value<QObject *>(), host);
    const QPointer<QObject> id = field(host, u"id"_s);
    recordset->Close();
    recordset->Open(u"SELECT 名称 FROM t"_s, database.connect());
    EXPECT_EQ(get(id, "Name"), QVariant(u"名称"_s)) << "a field's object stands for its column";
    adodc.PutRecordset(nullptr);
    recordset.reset();
    EXPECT_TRUE(host.isNull());
    EXPECT_TRUE(id.isNull());
}

TEST(Automation, ReportsNothingAboutAnObjectThatItsCallerDeleted)
{
    // An object whose call notifies somebody who deletes it, and then fails.
    auto *object = new ADODB::StreamObject;
    int told = 0;
    QObject::connect(object, &ADODB::StreamObject::HostError, [&] { ++told; });
    const QPointer<QObject> alive(object);
    EXPECT_EQ(ADODB::guarded(object,
                             [&]() -> int {
                                 delete object;
                                 throw ADODB::Error(ADODB::dbErrFailed, u"too late"_s);
                             }),
              0);
    EXPECT_FALSE(alive);
    EXPECT_EQ(told, 0);
}

TEST(Automation, SavesAPictureByNames)
{
    const TestDatabase database(script);
    const auto recordset = database.open(u"SELECT p FROM t WHERE id = 1"_s);
    ADODB::StreamObject streamObject;
    QObject *stream = &streamObject;
    QSignalSpy errors(stream, SIGNAL(HostError(qint32, QString)));
    stream->setProperty("Type", 1);
    call(stream, "Open");
    const QVariant picture = get(field(automation(recordset), u"p"_s), "Value");
    EXPECT_TRUE(QMetaObject::invokeMethod(stream, "Write", Q_ARG(QVariant, picture)));
    EXPECT_EQ(get(stream, "Size"), QVariant(2));
    const QString path = database.filePath(u"PicRecord.bmp"_s);
    const auto save = [&](qint32 options) {
        EXPECT_TRUE(
            QMetaObject::invokeMethod(stream, "SaveToFile", Q_ARG(QString, path), Q_ARG(qint32, options)));
    };
    save(1);
    save(2);
    EXPECT_EQ(errors.size(), 0);
    save(1);
    EXPECT_EQ(errors.size(), 1);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("\xff\0", 2));
    call(stream, "Close");
    EXPECT_EQ(get(stream, "State"), QVariant(0));
}

} // namespace
