// Lists a result from C++ with nothing but COM. For another compiler's import of the type library, see
// docs/windows.md.
//
//   x86_64-w64-mingw32-g++ -municode -o list.exe list.cpp -lole32 -loleaut32 -luuid
#include <cstdio>
#include <initializer_list>
#include <ole2.h>
#include <string>
#include <vector>

namespace {

// One value passed to or from the control; frees itself.
class Value
{
public:
    Value() { VariantInit(&m_value); }
    explicit Value(const wchar_t *text) : Value()
    {
        m_value.vt = VT_BSTR;
        m_value.bstrVal = SysAllocString(text);
    }
    explicit Value(long number) : Value()
    {
        m_value.vt = VT_I4;
        m_value.lVal = number;
    }
    Value(const Value &other) : Value() { VariantCopy(&m_value, const_cast<VARIANT *>(&other.m_value)); }
    Value &operator=(const Value &) = delete;
    ~Value() { VariantClear(&m_value); }

    VARIANT *get() { return &m_value; }
    IDispatch *object() const { return m_value.vt == VT_DISPATCH ? m_value.pdispVal : nullptr; }
    bool isTrue() const { return m_value.vt == VT_BOOL && m_value.boolVal != VARIANT_FALSE; }
    Value text() const
    {
        Value changed;
        if (m_value.vt != VT_NULL)
            VariantChangeType(&changed.m_value, const_cast<VARIANT *>(&m_value), VARIANT_ALPHABOOL, VT_BSTR);
        return changed;
    }
    const wchar_t *characters() const
    {
        return m_value.vt == VT_BSTR && m_value.bstrVal ? m_value.bstrVal : L"";
    }

private:
    VARIANT m_value;
};

Value invoke(IDispatch *object, const wchar_t *name, WORD kind, std::initializer_list<Value> arguments = {})
{
    Value answer;
    auto *wide = const_cast<wchar_t *>(name);
    DISPID id = DISPID_UNKNOWN;
    if (!object || FAILED(object->GetIDsOfNames(IID_NULL, &wide, 1, LOCALE_USER_DEFAULT, &id)))
        return answer;
    std::vector<Value> kept(arguments);
    std::vector<VARIANT> passed;
    for (auto value = kept.rbegin(); value != kept.rend(); ++value) // from right to left
        passed.push_back(*value->get());
    DISPID put = DISPID_PROPERTYPUT;
    const bool isPut = kind == DISPATCH_PROPERTYPUT;
    DISPPARAMS parameters{passed.data(), isPut ? &put : nullptr, static_cast<UINT>(passed.size()),
                          isPut ? 1u : 0u};
    object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, isPut ? nullptr : answer.get(),
                   nullptr, nullptr);
    return answer;
}

constexpr WORD get = DISPATCH_PROPERTYGET | DISPATCH_METHOD;

int list(IDispatch *grid, const wchar_t *file)
{
    invoke(grid, L"ConnectionString", DISPATCH_PROPERTYPUT,
           {Value((std::wstring(L"Provider=SQLite;Data Source=") + file).c_str())});
    invoke(grid, L"DBType", DISPATCH_PROPERTYPUT, {Value(1L)});
    invoke(grid, L"SQLShow", DISPATCH_PROPERTYPUT, {Value(L"select * from orders")});
    if (!invoke(grid, L"IsLoadData", get).isTrue())
        return 1;
    const Value records = invoke(grid, L"RecordSet", get);
    for (; !invoke(records.object(), L"EOF", get).isTrue(); invoke(records.object(), L"MoveNext", get)) {
        const Value field = invoke(records.object(), L"Fields", get, {Value(L"id")});
        std::wprintf(L"%ls\n", invoke(field.object(), L"Value", get).text().characters());
    }
    invoke(grid, L"ClearObject", get);
    return 0;
}

} // namespace

int wmain(int count, wchar_t **arguments)
{
    if (count != 2 || FAILED(OleInitialize(nullptr)))
        return 2;
    int outcome = 1;
    CLSID id{};
    IDispatch *grid = nullptr;
    if (SUCCEEDED(CLSIDFromProgID(L"KOVAVSFDataGridLib.KOVAVSFDataGrid", &id)) &&
        SUCCEEDED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                   reinterpret_cast<void **>(&grid)))) {
        outcome = list(grid, arguments[1]);
        grid->Release();
    }
    OleUninitialize();
    return outcome;
}
