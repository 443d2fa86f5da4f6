#include "PythonValue.h"

#include <QtCore/QDateTime>

#include <cstdarg>

using namespace ADODB;

namespace {

// Calls module.name(…), with arguments in the format of Py_BuildValue. Returns a new reference.
PyObject *call(const char *module, const char *name, const char *format, ...)
{
    PyObject *imported = PyImport_ImportModule(module);
    PyObject *function = imported ? PyObject_GetAttrString(imported, name) : nullptr;
    Py_XDECREF(imported);
    if (!function)
        return nullptr;
    va_list values;
    va_start(values, format);
    PyObject *arguments = Py_VaBuildValue(format, values);
    va_end(values);
    PyObject *result = arguments ? PyObject_CallObject(function, arguments) : nullptr;
    Py_XDECREF(arguments);
    Py_DECREF(function);
    return result;
}

PyObject *text(const QString &value)
{
    const QByteArray bytes = value.toUtf8();
    return PyUnicode_FromStringAndSize(bytes.constData(), bytes.size());
}

bool isExact(DataTypeEnum type)
{
    return type == adCurrency || type == adDecimal || type == adNumeric || type == adVarNumeric;
}

bool isInYearsOfPython(const QDate &date)
{
    return date.year() >= 1 && date.year() <= 9999;
}

bool isInstance(PyObject *object, const char *module, const char *name)
{
    PyObject *imported = PyImport_ImportModule(module);
    PyObject *type = imported ? PyObject_GetAttrString(imported, name) : nullptr;
    const bool is = type && PyObject_IsInstance(object, type) == 1;
    Py_XDECREF(type);
    Py_XDECREF(imported);
    return is;
}

QString textOf(PyObject *object)
{
    Py_ssize_t size = 0;
    const char *bytes = PyUnicode_AsUTF8AndSize(object, &size);
    return QString::fromUtf8(bytes, size);
}

// The result of str() or isoformat().
QString textBy(PyObject *object, const char *method)
{
    PyObject *result = PyObject_CallMethod(object, method, nullptr);
    const QString value = result ? textOf(result) : QString();
    Py_XDECREF(result);
    return value;
}

void raise(const char *type, PyObject *arguments)
{
    PyObject *module = PyImport_ImportModule("kovavsfdatagrid.errors");
    PyObject *exception = module ? PyObject_GetAttrString(module, type) : nullptr;
    if (exception)
        PyErr_SetObject(exception, arguments);
    Py_XDECREF(exception);
    Py_XDECREF(module);
    Py_XDECREF(arguments);
}

} // namespace

PyObject *pythonValue(const QVariant &value, DataTypeEnum type)
{
    if (!value.isValid() || value.isNull())
        Py_RETURN_NONE;
    switch (value.typeId()) {
    case QMetaType::Bool:
        return PyBool_FromLong(value.toBool());
    case QMetaType::Int:
    case QMetaType::LongLong:
        return PyLong_FromLongLong(value.toLongLong());
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        return PyLong_FromUnsignedLongLong(value.toULongLong());
    case QMetaType::Float:
    case QMetaType::Double:
        return PyFloat_FromDouble(value.toDouble());
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return PyBytes_FromStringAndSize(bytes.constData(), bytes.size());
    }
    case QMetaType::QDate: {
        const QDate date = value.toDate();
        if (isInYearsOfPython(date))
            return call("datetime", "date", "(iii)", date.year(), date.month(), date.day());
        break;
    }
    case QMetaType::QTime: {
        const QTime time = value.toTime();
        return call("datetime", "time", "(iiii)", time.hour(), time.minute(), time.second(),
                    time.msec() * 1000);
    }
    case QMetaType::QDateTime: {
        const QDate date = value.toDateTime().date();
        const QTime time = value.toDateTime().time();
        if (isInYearsOfPython(date))
            return call("datetime", "datetime", "(iiiiiii)", date.year(), date.month(), date.day(),
                        time.hour(), time.minute(), time.second(), time.msec() * 1000);
        break;
    }
    default:
        break;
    }
    if (isExact(type)) {
        if (PyObject *number = call("decimal", "Decimal", "(s)", value.toString().toUtf8().constData()))
            return number;
        PyErr_Clear(); // a cell of SQLite can contain a text there
    }
    return text(value.toString());
}

std::optional<QVariant> fieldValue(PyObject *object)
{
    if (object == Py_None)
        return QVariant();
    if (PyBool_Check(object))
        return QVariant(object == Py_True);
    if (PyLong_Check(object)) {
        int overflow = 0;
        const qlonglong number = PyLong_AsLongLongAndOverflow(object, &overflow);
        return overflow ? QVariant(textBy(object, "__str__")) : QVariant(number);
    }
    if (PyFloat_Check(object))
        return QVariant(PyFloat_AsDouble(object));
    if (PyUnicode_Check(object))
        return QVariant(textOf(object));
    if (PyBytes_Check(object))
        return QVariant(QByteArray(PyBytes_AsString(object), PyBytes_Size(object)));
    // A datetime is also a date, so it is checked first.
    if (isInstance(object, "datetime", "datetime")) {
        const QDateTime local = QDateTime::fromString(textBy(object, "isoformat").first(19), Qt::ISODate);
        return QVariant(QDateTime(local.date(), local.time(), Qt::UTC));
    }
    if (isInstance(object, "datetime", "date"))
        return QVariant(QDate::fromString(textBy(object, "isoformat"), Qt::ISODate));
    if (isInstance(object, "datetime", "time"))
        return QVariant(QTime::fromString(textBy(object, "isoformat").first(8), Qt::ISODate));
    if (isInstance(object, "decimal", "Decimal"))
        return QVariant(textBy(object, "__str__"));
    PyErr_SetString(PyExc_TypeError, "a field's value must be None, bool, int, float, str, bytes, Decimal, "
                                     "date, time or datetime");
    return std::nullopt;
}

void raiseError(const Error &error)
{
    raise("Error", Py_BuildValue("(isssi)", error.Number(), error.Description().toUtf8().constData(),
                                 error.Source().toUtf8().constData(), error.SQLState().toUtf8().constData(),
                                 error.NativeError()));
}

void raiseError(const KOVAVSFDataGridLib::ControlError &error)
{
    raise("ControlError", Py_BuildValue("(is)", error.number(), error.description().toUtf8().constData()));
}
