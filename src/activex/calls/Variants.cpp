#include "activex/calls/Variants.h"

#include "activex/calls/ObjectDispatch.h"
#include "activex/calls/ObjectHolder.h"
#include "activex/calls/OleFont.h"
#include "control/face/OleColor.h"

#include <QtCore/QDateTime>
#include <QtGui/QFont>
#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>

#include <array>
#include <cmath>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

using Microsoft::WRL::ComPtr;

namespace {

// Day 0 of automation dates.
const QDate dayZero(1899, 12, 30);
constexpr qint64 millisecondsPerDay = 86'400'000;

QDateTime toDateTime(DATE date)
{
    // Days before day 0 are negative, but the time of day always counts forwards.
    const double days = std::trunc(date);
    const qint64 milliseconds = std::llround(std::abs(date - days) * millisecondsPerDay);
    // The local time, not the time since midnight: they differ on days when summer time begins or ends.
    return QDateTime(dayZero.addDays(static_cast<qint64>(days) + milliseconds / millisecondsPerDay),
                     QTime::fromMSecsSinceStartOfDay(static_cast<int>(milliseconds % millisecondsPerDay)));
}

void putDate(const QDateTime &moment, VARIANT *result)
{
    const auto days = static_cast<double>(dayZero.daysTo(moment.date()));
    const double fraction = double(moment.time().msecsSinceStartOfDay()) / millisecondsPerDay;
    result->vt = VT_DATE;
    result->date = days < 0 ? days - fraction : days + fraction;
}

QByteArray toBytes(SAFEARRAY *array)
{
    long first = 0;
    long last = -1;
    void *data = nullptr;
    if (SafeArrayGetDim(array) != 1 || FAILED(SafeArrayGetLBound(array, 1, &first)) ||
        FAILED(SafeArrayGetUBound(array, 1, &last)) || FAILED(SafeArrayAccessData(array, &data)))
        return {};
    const QByteArray bytes(static_cast<const char *>(data), last - first + 1);
    SafeArrayUnaccessData(array);
    return bytes;
}

HRESULT putBytes(const QByteArray &bytes, VARIANT *result)
{
    SAFEARRAY *array = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
    if (!array)
        return E_OUTOFMEMORY;
    void *data = nullptr;
    const HRESULT accessed = SafeArrayAccessData(array, &data);
    if (FAILED(accessed)) {
        SafeArrayDestroy(array);
        return accessed;
    }
    std::copy(bytes.begin(), bytes.end(), static_cast<char *>(data));
    SafeArrayUnaccessData(array);
    result->vt = VT_ARRAY | VT_UI1;
    result->parray = array;
    return S_OK;
}

// A list, or a list of lists of equal length, which becomes two-dimensional with the outer index first.
HRESULT putList(const QVariantList &list, VARIANT *result)
{
    const bool isTable = !list.isEmpty() && list[0].typeId() == QMetaType::QVariantList;
    const auto length = [](qsizetype size) { return SAFEARRAYBOUND{static_cast<ULONG>(size), 0}; };
    std::array<SAFEARRAYBOUND, 2> bounds{length(list.size()),
                                         length(isTable ? list[0].toList().size() : qsizetype{0})};
    SAFEARRAY *array = SafeArrayCreate(VT_VARIANT, isTable ? 2 : 1, bounds.data());
    if (!array)
        return E_OUTOFMEMORY;
    result->vt = VT_ARRAY | VT_VARIANT;
    result->parray = array;
    const auto put = [array](const QVariant &value, LONG outer, LONG inner) {
        Variant item;
        std::array<LONG, 2> place{outer, inner};
        const HRESULT outcome = fromQt(value, item.get());
        return SUCCEEDED(outcome) ? SafeArrayPutElement(array, place.data(), item.get()) : outcome;
    };
    HRESULT outcome = S_OK;
    for (LONG i = 0; SUCCEEDED(outcome) && i < list.size(); ++i) {
        if (!isTable) {
            outcome = put(list[i], i, 0);
            continue;
        }
        const QVariantList inner = list[i].toList();
        for (LONG j = 0; SUCCEEDED(outcome) && j < inner.size(); ++j)
            outcome = put(inner[j], i, j);
    }
    if (FAILED(outcome))
        VariantClear(result);
    return outcome;
}

HRESULT putText(const QString &text, VARIANT *result)
{
    result->bstrVal = toBstr(text);
    if (!result->bstrVal)
        return E_OUTOFMEMORY;
    result->vt = VT_BSTR;
    return S_OK;
}

HRESULT putInteger(qint64 number, VARIANT *result)
{
    if (number == static_cast<qint32>(number)) {
        result->vt = VT_I4;
        result->lVal = static_cast<LONG>(number);
        return S_OK;
    }
    // Scripts can't handle VT_I8.
    const HRESULT changed = VarDecFromI8(number, &result->decVal);
    result->vt = VT_DECIMAL;
    return changed;
}

// Converts the value to one of automation's basic types.
HRESULT change(const VARIANT &value, VARTYPE type, Variant &changed)
{
    return VariantChangeTypeEx(changed.get(), const_cast<VARIANT *>(&value), LOCALE_INVARIANT,
                               VARIANT_ALPHABOOL, type);
}

template<typename T>
QVariant numberAs(QMetaType wanted, T number)
{
    // A QVariant with the enumeration's own type and the size of its values.
    return QVariant(wanted, &number);
}

// A text can contain NUL characters.
QString textIn(BSTR text)
{
    return QString::fromWCharArray(text, static_cast<qsizetype>(SysStringLen(text)));
}

QVariant listIn(SAFEARRAY *array, HRESULT *outcome)
{
    VARIANT *items = nullptr;
    if (SafeArrayGetDim(array) != 1 ||
        FAILED(SafeArrayAccessData(array, reinterpret_cast<void **>(&items)))) {
        *outcome = DISP_E_TYPEMISMATCH;
        return {};
    }
    QVariantList list;
    for (ULONG i = 0; SUCCEEDED(*outcome) && i < array->rgsabound[0].cElements; ++i) {
        QVariant item;
        *outcome = toQt(items[i], QMetaType(QMetaType::QVariant), &item);
        list.push_back(item);
    }
    SafeArrayUnaccessData(array);
    return list;
}

QVariant anything(const VARIANT &value, HRESULT *outcome)
{
    Variant changed;
    switch (value.vt) {
    case VT_EMPTY:
    case VT_NULL:
        return {};
    case VT_BOOL:
        return value.boolVal != VARIANT_FALSE;
    case VT_I1:
    case VT_UI1:
    case VT_I2:
    case VT_UI2:
    case VT_I4:
    case VT_INT:
        *outcome = change(value, VT_I4, changed);
        return static_cast<qint32>(changed->lVal);
    case VT_UI4:
    case VT_UINT:
    case VT_I8:
        *outcome = change(value, VT_I8, changed);
        return changed->llVal;
    case VT_R4:
    case VT_R8:
        *outcome = change(value, VT_R8, changed);
        return changed->dblVal;
    case VT_DATE:
        return toDateTime(value.date);
    case VT_BSTR:
    case VT_CY: // exact as text
    case VT_DECIMAL:
    case VT_UI8:
        *outcome = change(value, VT_BSTR, changed);
        return SUCCEEDED(*outcome) ? QVariant(textIn(changed->bstrVal)) : QVariant();
    case VT_ERROR: // an omitted argument
        if (value.scode != DISP_E_PARAMNOTFOUND)
            *outcome = DISP_E_TYPEMISMATCH;
        return {};
    case VT_ARRAY | VT_UI1:
        return toBytes(value.parray);
    case VT_ARRAY | VT_VARIANT:
        return listIn(value.parray, outcome);
    default:
        *outcome = DISP_E_TYPEMISMATCH;
        return {};
    }
}

QVariant objectIn(const VARIANT &value, HRESULT *outcome)
{
    QObject *object = nullptr;
    if (value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN) {
        ComPtr<ObjectHolder> holder;
        if (value.punkVal && SUCCEEDED(value.punkVal->QueryInterface(IID_PPV_ARGS(&holder))))
            object = holder->held();
        if (value.punkVal && !object)
            *outcome = DISP_E_TYPEMISMATCH;
    } else if (value.vt != VT_EMPTY && value.vt != VT_NULL) {
        *outcome = DISP_E_TYPEMISMATCH;
    }
    return QVariant::fromValue(object);
}

HRESULT toQtPlain(const VARIANT &value, QMetaType wanted, QVariant *result)
{
    HRESULT outcome = S_OK;
    Variant changed;
    switch (wanted.id()) {
    case QMetaType::QVariant:
        *result = anything(value, &outcome);
        return outcome;
    case QMetaType::QObjectStar:
        *result = objectIn(value, &outcome);
        return outcome;
    case QMetaType::QFont: {
        QFont font;
        if (value.vt != VT_DISPATCH && value.vt != VT_UNKNOWN)
            return DISP_E_TYPEMISMATCH;
        outcome = fontFromObject(value.punkVal, &font);
        *result = font;
        return outcome;
    }
    case QMetaType::LongLong:
        outcome = change(value, VT_I8, changed);
        *result = changed->llVal;
        return outcome;
    case QMetaType::QColor:
        // Uses 64 bits: system colours have bit 31 set, and some clients pass them as unsigned.
        outcome = toQtPlain(value, QMetaType(QMetaType::LongLong), result);
        if (SUCCEEDED(outcome))
            *result = OleColor(static_cast<quint32>(result->toLongLong())).in(QGuiApplication::palette());
        return outcome;
    case QMetaType::Bool:
        outcome = change(value, VT_BOOL, changed);
        *result = changed->boolVal != VARIANT_FALSE;
        return outcome;
    case QMetaType::Short:
        outcome = change(value, VT_I2, changed);
        *result = numberAs(wanted, changed->iVal);
        return outcome;
    case QMetaType::Float:
        outcome = change(value, VT_R4, changed);
        *result = numberAs(wanted, changed->fltVal);
        return outcome;
    case QMetaType::QString:
        outcome = change(value, VT_BSTR, changed);
        if (SUCCEEDED(outcome))
            *result = textIn(changed->bstrVal);
        return outcome;
    default:
        if (wanted.id() != QMetaType::Int && !(wanted.flags() & QMetaType::IsEnumeration))
            return DISP_E_TYPEMISMATCH;
        outcome = change(value, VT_I4, changed);
        *result = numberAs(wanted, static_cast<qint32>(changed->lVal));
        return outcome;
    }
}

} // namespace

BSTR toBstr(const QString &text)
{
    return SysAllocStringLen(reinterpret_cast<const OLECHAR *>(text.utf16()), static_cast<UINT>(text.size()));
}

HRESULT toQt(const VARIANT &value, QMetaType wanted, QVariant *result)
{
    if (!(value.vt & VT_BYREF))
        return toQtPlain(value, wanted, result);
    Variant direct;
    const HRESULT copied = VariantCopyInd(direct.get(), const_cast<VARIANT *>(&value));
    return FAILED(copied) ? copied : toQtPlain(*direct, wanted, result);
}

HRESULT fromQt(const QVariant &value, VARIANT *result)
{
    VariantInit(result);
    switch (value.metaType().id()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        result->vt = VT_NULL;
        return S_OK;
    case QMetaType::Bool:
        result->vt = VT_BOOL;
        result->boolVal = value.toBool() ? VARIANT_TRUE : VARIANT_FALSE;
        return S_OK;
    case QMetaType::Short:
        result->vt = VT_I2;
        result->iVal = value.value<qint16>();
        return S_OK;
    case QMetaType::Int:
    case QMetaType::LongLong:
        return putInteger(value.toLongLong(), result);
    case QMetaType::Float:
        result->vt = VT_R4;
        result->fltVal = value.toFloat();
        return S_OK;
    case QMetaType::Double:
        result->vt = VT_R8;
        result->dblVal = value.toDouble();
        return S_OK;
    case QMetaType::QString:
        return putText(value.toString(), result);
    case QMetaType::QByteArray:
        return putBytes(value.toByteArray(), result);
    case QMetaType::QVariantList:
        return putList(value.toList(), result);
    case QMetaType::QDate:
    case QMetaType::QTime:
    case QMetaType::QDateTime: {
        const QDateTime moment = value.metaType().id() == QMetaType::QTime
                                     ? QDateTime(dayZero, value.toTime())
                                     : value.toDateTime();
        // Automation dates don't support other years.
        if (moment.date().year() < 100 || moment.date().year() > 9999)
            return putText(value.toString(), result);
        putDate(moment, result);
        return S_OK;
    }
    case QMetaType::QColor:
        result->vt = VT_I4;
        result->lVal = static_cast<LONG>(OleColor(value.value<QColor>()).number());
        return S_OK;
    case QMetaType::QFont:
        result->vt = VT_DISPATCH;
        return fontObject(value.value<QFont>(), &result->pdispVal);
    case QMetaType::QObjectStar:
        result->vt = VT_DISPATCH;
        result->pdispVal = ObjectDispatch::of(value.value<QObject *>());
        return S_OK;
    default:
        if (value.metaType().flags() & QMetaType::IsEnumeration)
            return putInteger(value.toInt(), result);
        return putText(value.toString(), result);
    }
}

} // namespace KOVAVSFDataGridLib::ActiveX
