#pragma once

#include <QtCore/QVariant>

#include <oaidl.h>

// Converts between automation values and Qt values.
namespace KOVAVSFDataGridLib::ActiveX {

// A VARIANT that frees its contents.
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

// Converts a value to a QVariant of the wanted type. Numbers of any size, texts and Booleans are converted to
// one another by automation's rules; colours are OLE_COLORs and fonts IFontDisp objects. Returns
// DISP_E_TYPEMISMATCH or DISP_E_OVERFLOW if it does not fit.
HRESULT toQt(const VARIANT &value, QMetaType wanted, QVariant *result);

// Converts a value for a client, into an empty VARIANT. All types used are supported by scripts: integers too
// large for 32 bits become VT_DECIMAL. An invalid QVariant becomes Null.
HRESULT fromQt(const QVariant &value, VARIANT *result);

inline QString toQString(const wchar_t *text)
{
    return QString::fromWCharArray(text);
}
// Null only if out of memory.
BSTR toBstr(const QString &text);

} // namespace KOVAVSFDataGridLib::ActiveX
