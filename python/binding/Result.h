#pragma once

#include "PythonValue.h"

#include <KOVAVSFDataGridLib/ado/Recordset.h>

#include <memory>

// The control's open result for Python code, which may keep it longer than the result is open: it does not
// keep the result alive, and afterwards throws 3704 as a closed recordset does.
class Result
{
public:
    explicit Result(const std::shared_ptr<ADODB::Recordset> &recordset) : m_recordset(recordset) {}

    // Whether the result is open.
    bool isOpen() const;
    // Throws 3704 when it is closed.
    std::shared_ptr<ADODB::Recordset> open() const;

    // A list of tuples, one for each record from `first`, 1-based, at most `count`.
    PyObject *records(qint64 first, qint64 count) const;
    // A list of the values of one column in all records.
    PyObject *column(int index) const;

private:
    std::weak_ptr<ADODB::Recordset> m_recordset;
};
