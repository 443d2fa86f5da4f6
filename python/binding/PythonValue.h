#pragma once

// Python uses `slots` as a member's name, which Qt makes a keyword for those who want it.
#pragma push_macro("slots")
#undef slots
#include <Python.h>
#pragma pop_macro("slots")

#include <KOVAVSFDataGridLib/ado/Error.h>
#include <KOVAVSFDataGridLib/control/face/ControlError.h>

#include <QtCore/QVariant>

#include <optional>

// Between the values of fields and Python's own. All of it needs the interpreter's lock.

// A new reference: None, bool, int, float, str, bytes, datetime.date, time or datetime; Decimal for an exact
// number. What has no form in Python (a date before the year 1) is a str. Null with a Python error when that
// fails.
PyObject *pythonValue(const QVariant &value, ADODB::DataTypeEnum type);

// The reverse. Nothing, with a Python TypeError, for other objects.
std::optional<QVariant> fieldValue(PyObject *object);

// Raise the package's exceptions with all that the error says.
void raiseError(const ADODB::Error &error);
void raiseError(const KOVAVSFDataGridLib::ControlError &error);

// Runs `action`. When it throws, raises the Python exception and returns the neutral value (null, false).
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
