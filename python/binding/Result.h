#pragma once

#include "PythonValue.h"

#include <KOVAVSFDataGridLib/ado/Recordset.h>

#include <memory>

// The control's open result for Python code, which may keep this object after the result was closed: it does
// not keep the result alive, and then throws 3704 like a closed recordset.
class Result
{
public:
    explicit Result(const std::shared_ptr<ADODB::Recordset> &recordset) : m_recordset(recordset) {}

    // Whether the result is open.
    bool isOpen() const;
    // Throws 3704 if it is closed.
    std::shared_ptr<ADODB::Recordset> open() const;

    // A list of tuples, one per record, starting at `first` (1-based), at most `count`.
    PyObject *records(qint64 first, qint64 count) const;
    // A list of the values of one column, for all records.
    PyObject *column(int index) const;

private:
    std::weak_ptr<ADODB::Recordset> m_recordset;
};
