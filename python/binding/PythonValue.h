#pragma once

// Python uses `slots` as a member name, but Qt defines it as a keyword.
#pragma push_macro("slots")
#undef slots
#include <Python.h>
#pragma pop_macro("slots")

#include <KOVAVSFDataGridLib/ado/Error.h>
#include <KOVAVSFDataGridLib/control/face/ControlError.h>

#include <QtCore/QVariant>

#include <optional>

// Converts between field values and Python values. Everything requires the interpreter's lock.

// Returns a new reference: None, bool, int, float, str, bytes, datetime.date, time or datetime, or Decimal
// for an exact number. A value that Python can't represent (a date before year 1) becomes a str. Null with a
// Python error on failure.
PyObject *pythonValue(const QVariant &value, ADODB::DataTypeEnum type);

// The reverse. For other objects, no value and a Python TypeError.
std::optional<QVariant> fieldValue(PyObject *object);

// Raise the package's exceptions with all details of the error.
void raiseError(const ADODB::Error &error);
void raiseError(const KOVAVSFDataGridLib::ControlError &error);

// Runs `action`. If it throws, raises the Python exception and returns a default value (null, false).
template<typename Action>
auto guarded(Action &&action) -> decltype(action())
{
    try {
        return action();
    } catch (const ADODB::Error &error) {
        raiseError(error);
    } catch (const KOVAVSFDataGridLib::ControlError &error) {
        raiseError(error);
    } catch (const std::exception &error) {
        PyErr_SetString(PyExc_RuntimeError, error.what());
    }
    return decltype(action())();
}
