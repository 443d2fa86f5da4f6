#include "AutomationHost.h"

using namespace Qt::Literals::StringLiterals;
using AdoTest::number;

namespace {

using AutomationWalk = AdoTest::AutomationHost;

TEST_F(AutomationWalk, FilterLeavesTheRecordsThatMeetACondition)
{
    const std::pair<const char16_t *, const char16_t *> cases[] = {
        {u"age = 20", u"1"},
        {u"age<>20", u"3 4"},
        {u"AGE >= 20", u"1 4"},
        {u"age < 20 OR age > 30", u"3 4"},
        {u"age = NULL", u"2"},
        {u"age <> null", u"1 3 4"},
        {u"name = 'li'", u"1"},
        {u"name = 'O''Brien'", u"2"},
        {u"name LIKE 'L%'", u"1 3"},
        {u"name LIKE '*s*'", u"3"},
        {u"name LIKE '%a_g'", u""},
        {u"name LIKE 'w%G'", u"4"},
        {u"[born on] > #2000-01-01#", u"1 4"},
        {u"[born on] = '1999-12-31'", u"3"},
        {u"[born on] > #1/1/2000#", u"1 4"},
        {u"[born on] = #12/31/1999#", u"3"},
        {u"[born on] = '12/31/1999'", u"3"},
        {u"[born on] < #12/31/1999 12:30 PM#", u"3"},
        {u"[born on] >= #12/31/1999 12:30 AM#", u"1 4"},
        {u"id > 1 AND (name LIKE 'l*' OR age = 31)", u"3 4"},
        {u"id = 1 OR id = 2 AND age = 5", u"1"},
        {u"id > 10", u""},
    };
    for (const auto &[condition, ids] : cases) {
        put("Filter", QString::fromUtf16(condition));
        EXPECT_EQ(walked(), QString::fromUtf16(ids)) << QString::fromUtf16(condition).toStdString();
        EXPECT_EQ(get("Filter"), QVariant(QString::fromUtf16(condition)));
        EXPECT_EQ(lastError(), 0) << QString::fromUtf16(condition).toStdString();
    }
    EXPECT_TRUE(get("BOF").toBool() && get("EOF").toBool());
    EXPECT_EQ(get("RecordCount"), QVariant(0));
    call("MoveFirst");
    EXPECT_EQ(lastError(), number(ADODB::adErrNoCurrentRecord));
    EXPECT_FALSE(value(host, u"id"_s).isValid()) << "no record is current";
    errors.clear();
    put("Filter", u""_s);
    EXPECT_EQ(walked(), u"1 2 3 4"_s);
    EXPECT_EQ(get("Filter"), QVariant(0));
}

TEST_F(AutomationWalk, AWrongFilterIsRefusedAndChangesNothing)
{
    put("Filter", u"age > 10"_s);
    for (const char16_t *wrong :
         {u"age", u"age = ", u"age ! 3", u"(age = 3", u"age = 3 AND", u"age = 3 4", u"name = 'Li",
          u"[born on] > #31/12/1999#", u"[born on] > 'soon'", u"[born on] < #1/1/2000 13:00 PM#",
          u"age LIKE NULL", u"age > NULL", u"[age = 3", u"age > #2000-01-01#", u"age = #20#",
          u"name = #2000-01-01#", u"name < #Li#", u"name LIKE #L*#"}) {
        put("Filter", QString::fromUtf16(wrong));
        EXPECT_EQ(lastError(), number(ADODB::adErrInvalidArgument))
            << QString::fromUtf16(wrong).toStdString();
    }
    put("Filter", QString(200, u'(') + u"age = 3"_s);
    EXPECT_EQ(lastError(), number(ADODB::adErrInvalidArgument));
    put("Filter", u"nothing = 3"_s);
    EXPECT_EQ(lastError(), number(ADODB::adErrItemNotFound));
    put("Filter", 1);
    EXPECT_EQ(lastError(), number(ADODB::adErrFeatureNotAvailable));
    put("Filter", 77);
    EXPECT_EQ(lastError(), number(ADODB::adErrInvalidArgument));
    EXPECT_EQ(walked(), u"1 4"_s);
}

TEST_F(AutomationWalk, SortOrdersByFieldsAndKeepsTheFilter)
{
    put("Sort", u"age DESC"_s);
    EXPECT_EQ(walked(), u"4 1 3 2"_s);
    put("Sort", u"name"_s);
    EXPECT_EQ(walked(), u"1 3 2 4"_s);
    put("Filter", u"id <> 3"_s);
    EXPECT_EQ(walked(), u"1 2 4"_s);
    put("Sort", u"[born on] asc, id desc"_s);
    EXPECT_EQ(walked(), u"2 1 4"_s);
    put("Sort", u"nothing"_s);
    EXPECT_EQ(lastError(), number(ADODB::adErrItemNotFound));
    put("Sort", u"id,,name"_s);
    EXPECT_EQ(lastError(), number(ADODB::adErrInvalidArgument));
    EXPECT_EQ(get("Sort"), QVariant(u"[born on] asc, id desc"_s));
    put("Sort", u""_s);
    put("Filter", 0);
    EXPECT_EQ(walked(), u"1 2 3 4"_s);
}

TEST_F(AutomationWalk, PositionsAreThoseOfTheVisitedRecords)
{
    put("Filter", u"age > 0"_s); // 1 3 4
    put("Sort", u"id DESC"_s);
    put("PageSize", 2);
    EXPECT_EQ(get("AbsolutePosition"), QVariant(1));
    EXPECT_EQ(get("PageCount"), QVariant(2));
    put("AbsolutePosition", 2);
    EXPECT_EQ(value(host, u"id"_s), QVariant(3));
    put("AbsolutePage", 2);
    EXPECT_EQ(value(host, u"id"_s), QVariant(1));
    put("AbsolutePosition", 4);
    EXPECT_EQ(lastError(), number(ADODB::adErrInvalidArgument));
    call("MoveNext");
    EXPECT_TRUE(get("EOF").toBool());
    EXPECT_EQ(get("AbsolutePosition"), QVariant(-3));
    call("MoveNext");
    EXPECT_EQ(lastError(), number(ADODB::adErrNoCurrentRecord));
    call("MoveLast");
    call("Move", Q_ARG(qint32, -2));
    EXPECT_EQ(value(host, u"id"_s), QVariant(4));
    call("MovePrevious");
    EXPECT_TRUE(get("BOF").toBool());
    // The user's grid is on another record, which is not visited.
    put("Sort", u""_s);
    recordset->PutAbsolutePosition(2);
    EXPECT_EQ(get("AbsolutePosition"), QVariant(-1));
    call("MoveNext");
    EXPECT_EQ(value(host, u"id"_s), QVariant(3));
    recordset->PutAbsolutePosition(2);
    call("MovePrevious");
    EXPECT_EQ(value(host, u"id"_s), QVariant(1));
}

TEST_F(AutomationWalk, DeletesEachVisitedRecord)
{
    put("Filter", u"age < 30"_s);
    int deleted = 0;
    for (call("MoveFirst"); !get("EOF").toBool() && deleted < 10; call("MoveNext")) {
        call("Delete", Q_ARG(qint32, 1));
        ++deleted;
    }
    EXPECT_EQ(deleted, 2);
    EXPECT_EQ(lastError(), 0);
    EXPECT_EQ(get("RecordCount"), QVariant(0));
    put("Filter", 0);
    EXPECT_EQ(walked(), u"2 4"_s);
    EXPECT_EQ(database.ask(u"SELECT group_concat(id, ' ') FROM t"_s), u"2 4"_s);
}

TEST_F(AutomationWalk, ANewRecordIsTheLastOfTheVisited)
{
    put("Filter", u"age > 25"_s);
    call("AddNew", Q_ARG(QVariant, (QVariantList{u"name"_s, 2})),
         Q_ARG(QVariant, (QVariantList{u"New"_s, 1})));
    EXPECT_EQ(lastError(), 0);
    EXPECT_EQ(database.ask(u"SELECT age FROM t WHERE name = 'New'"_s), u"1"_s);
    EXPECT_EQ(get("AbsolutePosition"), QVariant(2));
    EXPECT_EQ(walked(), u"4 5"_s);
    put("Filter", u"age > 25"_s);
    EXPECT_EQ(walked(), u"4"_s) << "until the filter is set again";
}

TEST_F(AutomationWalk, ValuesThatCanNotBeSavedLeaveNothingPending)
{
    call("AddNew", Q_ARG(QVariant, QVariant(u"id"_s)), Q_ARG(QVariant, QVariant(1)));
    EXPECT_NE(lastError(), 0) << "the key is taken";
    EXPECT_EQ(get("EditMode"), QVariant(0));
    call("AddNew", Q_ARG(QVariant, (QVariantList{u"id"_s, u"name"_s})), Q_ARG(QVariant, QVariant(9)));
    EXPECT_EQ(lastError(), number(ADODB::adErrInvalidArgument));
    EXPECT_EQ(get("EditMode"), QVariant(0));
    call("Update", Q_ARG(QVariant, QVariant(u"name"_s)), Q_ARG(QVariant, QVariant(u"Zhao"_s)));
    EXPECT_EQ(lastError(), 0);
    EXPECT_EQ(database.ask(u"SELECT name FROM t WHERE id = 1"_s), u"Zhao"_s);
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM t"_s), u"4"_s);
}

TEST_F(AutomationWalk, ABookmarkFindsItsRecordAfterDeletions)
{
    put("AbsolutePosition", 3);
    const QVariant third = get("Bookmark");
    put("AbsolutePosition", 2);
    const QVariant second = get("Bookmark");
    call("Delete", Q_ARG(qint32, 1));
    EXPECT_FALSE(get("Bookmark").isValid());
    EXPECT_EQ(lastError(), ADODB::dbErrDeletedRow);
    put("Bookmark", third);
    EXPECT_EQ(value(host, u"id"_s), QVariant(3));
    EXPECT_EQ(get("AbsolutePosition"), QVariant(2));
    put("Bookmark", second);
    EXPECT_EQ(lastError(), ADODB::dbErrDeletedRow);
    put("Bookmark", u"x"_s);
    EXPECT_EQ(lastError(), ADODB::dbErrBadBookmark);
    put("Bookmark", third.toDouble() + 100);
    EXPECT_EQ(lastError(), ADODB::dbErrBadBookmark);
    call("MoveFirst");
    call("Move", Q_ARG(qint32, 1), Q_ARG(QVariant, third));
    EXPECT_EQ(value(host, u"id"_s), QVariant(4));
    const QVariant fourth = get("Bookmark");
    EXPECT_EQ(ask<qint32>(host, "CompareBookmarks", Q_ARG(QVariant, third), Q_ARG(QVariant, fourth)), 0);
    EXPECT_EQ(ask<qint32>(host, "CompareBookmarks", Q_ARG(QVariant, fourth), Q_ARG(QVariant, third)), 2);
    put("Filter", QVariantList{fourth, third});
    EXPECT_EQ(walked(), u"3 4"_s);
    EXPECT_EQ(lastError(), 0);
}

TEST_F(AutomationWalk, ACloneReadsTheSameRecordsAtItsOwnPlace)
{
    put("AbsolutePosition", 2);
    const QVariant second = get("Bookmark");
    auto *clone = ask<QObject *>(host, "Clone");
    ASSERT_NE(clone, nullptr);
    QSignalSpy cloneErrors(clone, SIGNAL(HostError(qint32, QString)));
    EXPECT_EQ(clone->property("AbsolutePosition"), QVariant(1));
    clone->setProperty("Filter", u"id > 1"_s);
    clone->setProperty("Bookmark", second);
    EXPECT_EQ(value(clone, u"name"_s), QVariant(u"O'Brien"_s));
    EXPECT_EQ(get("RecordCount"), QVariant(4)) << "the filter is the clone's";

    // What is changed through the other is seen.
    call("Update", Q_ARG(QVariant, QVariant(u"name"_s)), Q_ARG(QVariant, QVariant(u"Changed"_s)));
    EXPECT_EQ(value(clone, u"name"_s), QVariant(u"Changed"_s));
    put("AbsolutePosition", 1);
    call("Delete", Q_ARG(qint32, 1));
    EXPECT_EQ(value(clone, u"name"_s), QVariant(u"Changed"_s));
    EXPECT_EQ(walked(clone), u"2 3 4"_s);
    call("AddNew", Q_ARG(QVariant, QVariant(u"name"_s)), Q_ARG(QVariant, QVariant(u"New"_s)));
    EXPECT_EQ(clone->property("RecordCount"), QVariant(4));
    EXPECT_EQ(cloneErrors.size(), 0);

    // Its own changes are refused.
    QMetaObject::invokeMethod(clone, "MoveFirst");
    QMetaObject::invokeMethod(clone, "Delete", Q_ARG(qint32, 1));
    ASSERT_EQ(cloneErrors.size(), 1);
    EXPECT_EQ(cloneErrors[0][0], QVariant(number(ADODB::adErrFeatureNotAvailable)));
    EXPECT_FALSE(ask<bool>(clone, "Supports", Q_ARG(qint32, ADODB::adUpdate)));

    call("Close");
    EXPECT_EQ(walked(clone), u"2 3 4 5"_s) << "it stays open";
}

TEST_F(AutomationWalk, ACloneFollowsDeletionsWhereverItIs)
{
    const auto clone = recordset->Clone();
    const auto removeRecord = [&](qint64 record) {
        recordset->PutAbsolutePosition(record);
        recordset->Delete();
    };
    clone->PutAbsolutePosition(3);
    removeRecord(3);
    EXPECT_EQ(clone->AbsolutePosition(), ADODB::adPosUnknown);
    clone->MoveNext();
    EXPECT_EQ(clone->Fields().Item(0).Value(), QVariant(4));
    clone->MoveNext();
    EXPECT_TRUE(clone->isEOF());
    removeRecord(1);
    EXPECT_TRUE(clone->isEOF());
    recordset->AddNew();
    recordset->Fields().Item(1).PutValue(u"New"_s);
    recordset->Update();
    EXPECT_TRUE(clone->isEOF());
    clone->MovePrevious();
    EXPECT_EQ(clone->Fields().Item(1).Value(), QVariant(u"New"_s));
    clone->MoveFirst();
    clone->MovePrevious();
    removeRecord(1);
    EXPECT_TRUE(clone->isBOF());
    EXPECT_EQ(clone->RecordCount(), 2);
}

TEST_F(AutomationWalk, OpeningAgainForgetsFilterAndSort)
{
    put("Filter", u"id = 1"_s);
    put("Sort", u"id"_s);
    recordset->Close();
    EXPECT_EQ(get("Filter"), QVariant(0));
    put("Filter", u"id = 1"_s);
    EXPECT_EQ(lastError(), number(ADODB::adErrObjectClosed));
    recordset->Open(u"SELECT name AS id FROM t"_s, database.connect());
    EXPECT_EQ(get("RecordCount"), QVariant(4));
    EXPECT_EQ(get("Sort"), QVariant(u""_s));
}

} // namespace
