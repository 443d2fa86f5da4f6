#pragma once

#include <QtCore/QVariant>

#include <oaidl.h>

// Between automation's values and Qt's.
namespace KOVAVSFDataGridLib::ActiveX {

// A VARIANT that frees what it holds.
class Variant
{
public:
    Variant() { VariantInit(&m_value); }
    ~Variant() { VariantClear(&m_value); }
    Variant(const Variant &) = delete;
    Variant &operator=(const Variant &) = delete;

    VARIANT *operator->() { return &m_value; }
    VARIANT &operator*() { return m_value; }
    VARIANT *get() { return &m_value; }

private:
    VARIANT m_value;
};

// The value as a QVariant of the wanted type. Numbers of every width, texts and Booleans change into one
// another as automation changes them; colours are OLE_COLORs and fonts IFontDisp objects. Answers
// DISP_E_TYPEMISMATCH or DISP_E_OVERFLOW when it does not fit.
HRESULT toQt(const VARIANT &value, QMetaType wanted, QVariant *result);

// The value for a client, into a VARIANT that holds nothing. Every type here is one that scripts can carry:
// whole numbers too large for 32 bits travel as VT_DECIMAL. An invalid QVariant is Null.
HRESULT fromQt(const QVariant &value, VARIANT *result);

inline QString toQString(const wchar_t *text)
{
    return QString::fromWCharArray(text);
}
// Null only when memory is out.
BSTR toBstr(const QString &text);

} // namespace KOVAVSFDataGridLib::ActiveX
