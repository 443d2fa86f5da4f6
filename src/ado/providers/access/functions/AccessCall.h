#pragma once

#include "ado/values/RawValue.h"

#include <QtCore/QString>

#include <sqlite3.h>

#include <new>

namespace ADODB {

// One call of a function that this provider offers to statements. Arguments are counted from 0. A call
// without an answer gives Null.
class AccessCall
{
public:
    AccessCall(sqlite3_context *context, int count, sqlite3_value **values)
        : m_context(context), m_count(count), m_values(values)
    {
    }

    int count() const { return m_count; }
    bool isNull(int index) const { return sqlite3_value_type(m_values[index]) == SQLITE_NULL; }
    // As a field with that value shows it.
    QString text(int index) const;
    // A date counts as its days since 1899-12-30, as Access computes with it.
    double number(int index) const;
    bool isDate(int index) const;
    bool hasNull() const;
    double real(int index) const { return sqlite3_value_double(m_values[index]); }
    qint64 integer(int index) const { return sqlite3_value_int64(m_values[index]); }
    bool isInteger(int index) const { return sqlite3_value_type(m_values[index]) == SQLITE_INTEGER; }
    bool isText(int index) const { return sqlite3_value_type(m_values[index]) == SQLITE_TEXT; }

    void answer(bool value) { sqlite3_result_int(m_context, value ? 1 : 0); }
    void answer(qint64 value) { sqlite3_result_int64(m_context, value); }
    void answer(double value) { sqlite3_result_double(m_context, value); }
    void answer(const QString &value);
    // The date with that number of days; Null where it is outside the years 1 to 9999.
    void answerDate(double days);
    void answerArgument(int index) { sqlite3_result_value(m_context, m_values[index]); }
    void fail(const char *words) { sqlite3_result_error(m_context, words, -1); }

    // A function that gives Null as soon as one argument is Null.
    template<void (*Function)(AccessCall &)>
    static void strict(AccessCall &call)
    {
        if (!call.hasNull())
            Function(call);
    }

    // `count` arguments, -1 for any number. `flags` are added to those of a function that always gives the
    // same answer for the same arguments.
    template<void (*Function)(AccessCall &)>
    static void offer(sqlite3 *db, const char *name, int count, int flags = SQLITE_DETERMINISTIC)
    {
        sqlite3_create_function_v2(db, name, count, SQLITE_UTF8 | flags, nullptr, run<Function>, nullptr,
                                   nullptr, nullptr);
    }

private:
    template<void (*Function)(AccessCall &)>
    static void run(sqlite3_context *context, int count, sqlite3_value **values)
    {
        try {
            AccessCall call(context, count, values);
            Function(call);
        } catch (const std::bad_alloc &) {
            sqlite3_result_error_nomem(context);
        }
    }

    sqlite3_context *m_context;
    int m_count;
    sqlite3_value **m_values;
};

// A value as SQLite passes it; the bytes are SQLite's.
RawValue rawValue(sqlite3_value *value);
void setResult(sqlite3_context *context, const RawValue &value);

} // namespace ADODB
