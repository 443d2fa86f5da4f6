#include "Late.h"

#include <algorithm>

namespace Late {

Value::Value(const wchar_t *text) : Value()
{
    m_value.vt = VT_BSTR;
    m_value.bstrVal = SysAllocString(text);
}

Value::Value(int number) : Value()
{
    m_value.vt = VT_I4;
    m_value.lVal = number;
}

Value::Value(bool on) : Value()
{
    m_value.vt = VT_BOOL;
    m_value.boolVal = on ? VARIANT_TRUE : VARIANT_FALSE;
}

Value::Value(double number) : Value()
{
    m_value.vt = VT_R8;
    m_value.dblVal = number;
}

Value::Value(IUnknown *object) : Value()
{
    m_value.vt = VT_DISPATCH;
    if (object)
        object->QueryInterface(IID_PPV_ARGS(&m_value.pdispVal));
}

Value::Value(const Value &other) : Value()
{
    VariantCopy(&m_value, const_cast<VARIANT *>(&other.m_value));
}

Value &Value::operator=(const Value &other)
{
    if (this != &other)
        VariantCopy(&m_value, const_cast<VARIANT *>(&other.m_value));
    return *this;
}

Value Value::as(VARTYPE type, const wchar_t *text)
{
    Value given(text);
    Value value;
    VariantChangeTypeEx(&value.m_value, &given.m_value, LOCALE_INVARIANT, 0, type);
    return value;
}

Value Value::short16(short number)
{
    Value value;
    value.m_value.vt = VT_I2;
    value.m_value.iVal = number;
    return value;
}

Value Value::byReference(long *number)
{
    Value value;
    value.m_value.vt = VT_I4 | VT_BYREF;
    value.m_value.plVal = number;
    return value;
}

Value Value::byReference(VARIANT *value)
{
    Value reference;
    reference.m_value.vt = VT_VARIANT | VT_BYREF;
    reference.m_value.pvarVal = value;
    return reference;
}

Value Value::null()
{
    Value value;
    value.m_value.vt = VT_NULL;
    return value;
}

Value Value::omitted()
{
    Value value;
    value.m_value.vt = VT_ERROR;
    value.m_value.scode = DISP_E_PARAMNOTFOUND;
    return value;
}

std::wstring Value::text() const
{
    Value changed;
    if (FAILED(VariantChangeTypeEx(&changed.m_value, const_cast<VARIANT *>(&m_value), LOCALE_INVARIANT,
                                   VARIANT_ALPHABOOL, VT_BSTR)))
        return L"<no text>";
    return std::wstring(changed.m_value.bstrVal, SysStringLen(changed.m_value.bstrVal));
}

long Value::number() const
{
    Value changed;
    return SUCCEEDED(VariantChangeType(&changed.m_value, const_cast<VARIANT *>(&m_value), 0, VT_I4))
               ? changed.m_value.lVal
               : -999999;
}

double Value::real() const
{
    Value changed;
    return SUCCEEDED(VariantChangeType(&changed.m_value, const_cast<VARIANT *>(&m_value), 0, VT_R8))
               ? changed.m_value.dblVal
               : -999999;
}

Object Value::object() const
{
    return m_value.vt == VT_DISPATCH ? Object(m_value.pdispVal) : Object();
}

Answer invoke(const Object &object, const wchar_t *name, WORD flags, std::vector<Value> arguments)
{
    Answer answer;
    if (!object) {
        answer.outcome = E_POINTER;
        return answer;
    }
    auto *wide = const_cast<LPOLESTR>(name);
    DISPID id = DISPID_UNKNOWN;
    answer.outcome = object->GetIDsOfNames(IID_NULL, &wide, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(answer.outcome))
        return answer;

    std::vector<VARIANT> passed;
    for (const Value &argument : arguments)
        passed.push_back(argument.variant());
    std::ranges::reverse(passed);
    DISPID putId = DISPID_PROPERTYPUT;
    const bool isPut = flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
    DISPPARAMS parameters{passed.data(), isPut ? &putId : nullptr, static_cast<UINT>(passed.size()),
                          isPut ? 1u : 0u};
    EXCEPINFO exception{};
    answer.outcome = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                                    isPut ? nullptr : answer.value.get(), &exception, nullptr);
    answer.errorCode = exception.scode;
    if (exception.bstrDescription)
        answer.errorText = exception.bstrDescription;
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrHelpFile);
    return answer;
}

Value get(const Object &object, const wchar_t *name, std::vector<Value> arguments)
{
    return invoke(object, name, DISPATCH_PROPERTYGET | DISPATCH_METHOD, std::move(arguments)).value;
}

Answer call(const Object &object, const wchar_t *name, std::vector<Value> arguments)
{
    return invoke(object, name, DISPATCH_METHOD, std::move(arguments));
}

Answer put(const Object &object, const wchar_t *name, Value value)
{
    return invoke(object, name, DISPATCH_PROPERTYPUT, {std::move(value)});
}

} // namespace Late
