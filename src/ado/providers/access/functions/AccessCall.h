#pragma once

#include "ado/values/RawValue.h"

#include <QtCore/QString>

#include <sqlite3.h>

#include <new>

namespace ADODB {

// One call of a function that this provider adds to SQL. Arguments are numbered from 0. A call that sets no
// result returns Null.
class AccessCall
{
public:
    AccessCall(sqlite3_context *context, int count, sqlite3_value **values)
        : m_context(context), m_count(count), m_values(values)
    {
    }

    int count() const { return m_count; }
    bool isNull(int index) const { return sqlite3_value_type(m_values[index]) == SQLITE_NULL; }
    // The text that a field with this value shows.
    QString text(int index) const;
    // A date is converted to days since 1899-12-30, as Access does.
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
    // Returns the date for that number of days, or Null outside the years 1 to 9999.
    void answerDate(double days);
    void answerArgument(int index) { sqlite3_result_value(m_context, m_values[index]); }
    void fail(const char *words) { sqlite3_result_error(m_context, words, -1); }

    // Wraps a function that returns Null if any argument is Null.
    template<void (*Function)(AccessCall &)>
    static void strict(AccessCall &call)
    {
        if (!call.hasNull())
            Function(call);
    }

    // Registers a function with `count` arguments, -1 for any number. `flags` are those of SQLite; by default
    // the function is deterministic.
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

// A value as SQLite passes it. SQLite owns the bytes.
RawValue rawValue(sqlite3_value *value);
void setResult(sqlite3_context *context, const RawValue &value);

} // namespace ADODB
