#include "Result.h"

#include <QtCore/QCoreApplication>

using namespace ADODB;

bool Result::isOpen() const
{
    const std::shared_ptr<Recordset> recordset = m_recordset.lock();
    return recordset && recordset->State() == adStateOpen;
}

std::shared_ptr<Recordset> Result::open() const
{
    if (!isOpen())
        throw Error(adErrObjectClosed,
                    QCoreApplication::translate("ADODB::Texts", "记录集没有打开或已经关闭。"));
    return m_recordset.lock();
}

PyObject *Result::records(qint64 first, qint64 count) const
{
    const std::shared_ptr<Recordset> recordset = open();
    const qint64 end = qMin(first + count, recordset->RecordCount() + 1);
    const int columns = recordset->Fields().Count();
    PyObject *list = PyList_New(0);
    for (qint64 record = first; list && record < end; ++record) {
        PyObject *tuple = PyTuple_New(columns);
        for (int column = 0; tuple && column < columns; ++column) {
            PyObject *value =
                pythonValue(recordset->CellValue(record, column), recordset->Fields().Item(column).Type());
            if (!value || PyTuple_SetItem(tuple, column, value) < 0)
                Py_CLEAR(tuple);
        }
        if (!tuple || PyList_Append(list, tuple) < 0)
            Py_CLEAR(list);
        Py_XDECREF(tuple);
    }
    return list;
}

PyObject *Result::column(int index) const
{
    const std::shared_ptr<Recordset> recordset = open();
    const DataTypeEnum type = recordset->Fields().Item(index).Type();
    PyObject *list = PyList_New(0);
    for (qint64 record = 1; list && record <= recordset->RecordCount(); ++record) {
        PyObject *value = pythonValue(recordset->CellValue(record, index), type);
        if (!value || PyList_Append(list, value) < 0)
            Py_CLEAR(list);
        Py_XDECREF(value);
    }
    return list;
}
