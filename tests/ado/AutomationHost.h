#pragma once

#include "TestDatabase.h"

#include "ado/Error.h"
#include "ado/automation/RecordsetObject.h"

#include <QtTest/QSignalSpy>
#include <gtest/gtest.h>

namespace AdoTest {

using namespace Qt::Literals::StringLiterals;

inline const QString people =
    u"CREATE TABLE t(id INTEGER PRIMARY KEY, name TEXT, age INTEGER, \"born on\" DATE, p BLOB);"
    "INSERT INTO t VALUES (1, 'Li', 20, '2001-02-03', x'0aff'), (2, 'O''Brien', NULL, NULL, NULL),"
    "(3, 'lisa', 7, '1999-12-31', NULL), (4, 'Wang', 31, '2020-01-01', NULL);"_s;

inline qint32 number(ADODB::ErrorValueEnum error)
{
    return ADODB::Error::hresult(error);
}

// A result as a script sees it: an object with names, and the errors of its calls.
class AutomationHost : public testing::Test
{
protected:
    QVariant get(const char *name) const { return host->property(name); }
    void put(const char *name, const QVariant &value) const { host->setProperty(name, value); }
    template<typename... Arguments>
    void call(const char *method, Arguments... arguments) const
    {
        EXPECT_TRUE(QMetaObject::invokeMethod(host, method, arguments...)) << method;
    }
    template<typename Result, typename... Arguments>
    Result ask(QObject *object, const char *method, Arguments... arguments) const
    {
        Result result{};
        const QReturnArgument<Result> answer(QMetaType::fromType<Result>().name(), result);
        EXPECT_TRUE(QMetaObject::invokeMethod(object, method, answer, arguments...)) << method;
        return result;
    }
    static QVariant value(QObject *object, const QString &field)
    {
        QObject *found = nullptr;
        QMetaObject::invokeMethod(object, "Fields", Q_RETURN_ARG(QObject *, found), Q_ARG(QString, field));
        return found ? found->property("Value") : QVariant();
    }
    // The ids of all records from the first to the last.
    static QString walked(QObject *object)
    {
        QStringList ids;
        if (object->property("RecordCount").toInt() > 0)
            QMetaObject::invokeMethod(object, "MoveFirst");
        for (; !object->property("EOF").toBool() && ids.size() < 10;
             QMetaObject::invokeMethod(object, "MoveNext"))
            ids += value(object, u"id"_s).toString();
        return ids.join(u' ');
    }
    QString walked() const { return walked(host); }
    qint32 lastError()
    {
        const qint32 found = errors.isEmpty() ? 0 : errors.last()[0].toInt();
        errors.clear();
        return found;
    }

    const TestDatabase database{people};
    const std::shared_ptr<ADODB::Recordset> recordset = database.open(u"SELECT * FROM t ORDER BY id"_s);
    QObject *const host = automation(recordset);
    QSignalSpy errors{host, SIGNAL(HostError(qint32, QString))};
};

} // namespace AdoTest
