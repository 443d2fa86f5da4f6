#pragma once

#include <oaidl.h>
#include <string>
#include <vector>
#include <wrl/client.h>

// A COM client that knows names only, as a script does.
namespace Late {

// A value to pass or that came back; frees itself and can be copied.
class Value
{
public:
    Value() { VariantInit(&m_value); }
    Value(const wchar_t *text);
    Value(int number); // VT_I4
    Value(bool on);
    Value(double number);
    Value(IUnknown *object);
    Value(const Value &other);
    Value &operator=(const Value &other);
    ~Value() { VariantClear(&m_value); }

    // The text as automation makes a value of this type from it.
    static Value as(VARTYPE type, const wchar_t *text);
    static Value short16(short number); // as scripts pass small numbers
    static Value byReference(long *number);
    static Value byReference(VARIANT *value);
    static Value null();
    static Value omitted();

    VARTYPE type() const { return m_value.vt; }
    std::wstring text() const; // as automation shows it
    long number() const;
    bool isTrue() const { return m_value.vt == VT_BOOL && m_value.boolVal == VARIANT_TRUE; }
    double real() const;
    Microsoft::WRL::ComPtr<IDispatch> object() const;
    VARIANT *get() { return &m_value; }
    const VARIANT &variant() const { return m_value; }

private:
    VARIANT m_value;
};

struct Answer
{
    HRESULT outcome = S_OK;
    Value value;
    long errorCode = 0; // of EXCEPINFO
    std::wstring errorText;
};

using Object = Microsoft::WRL::ComPtr<IDispatch>;

Answer invoke(const Object &object, const wchar_t *name, WORD flags, std::vector<Value> arguments = {});
// A property, or the result of a method. Empty if the call fails.
Value get(const Object &object, const wchar_t *name, std::vector<Value> arguments = {});
Answer call(const Object &object, const wchar_t *name, std::vector<Value> arguments = {});
Answer put(const Object &object, const wchar_t *name, Value value);

} // namespace Late
