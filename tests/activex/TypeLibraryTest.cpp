#include "Late.h"

#include <gtest/gtest.h>
#include <map>
#include <ocidl.h>
#include <olectl.h>

using Microsoft::WRL::ComPtr;

namespace {

struct Function
{
    std::wstring name;
    int invokeKind;
    std::vector<std::wstring> parameters;
    std::vector<VARTYPE> types;
};

ComPtr<ITypeInfo> dispatchInfo()
{
    CLSID id{};
    ComPtr<IDispatch> control;
    ComPtr<ITypeInfo> info;
    if (SUCCEEDED(CLSIDFromProgID(L"KOVAVSFDataGridLib.KOVAVSFDataGrid", &id)) &&
        SUCCEEDED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&control))))
        control->GetTypeInfo(0, LOCALE_USER_DEFAULT, &info);
    return info;
}

ComPtr<ITypeLib> library()
{
    ComPtr<ITypeLib> containing;
    UINT index = 0;
    dispatchInfo()->GetContainingTypeLib(&containing, &index);
    return containing;
}

ComPtr<ITypeInfo> typeNamed(const wchar_t *wanted)
{
    const ComPtr<ITypeLib> types = library();
    for (UINT i = 0; i < types->GetTypeInfoCount(); ++i) {
        BSTR name = nullptr;
        ComPtr<ITypeInfo> info;
        types->GetDocumentation(static_cast<INT>(i), &name, nullptr, nullptr, nullptr);
        const bool found = name && std::wstring(name) == wanted;
        SysFreeString(name);
        if (found && SUCCEEDED(types->GetTypeInfo(i, &info)))
            return info;
    }
    return nullptr;
}

// By number; a property's reading and writing share one.
std::multimap<MEMBERID, Function> functionsOf(ITypeInfo &info)
{
    std::multimap<MEMBERID, Function> functions;
    TYPEATTR *attributes = nullptr;
    info.GetTypeAttr(&attributes);
    for (UINT i = 0; i < attributes->cFuncs; ++i) {
        FUNCDESC *description = nullptr;
        info.GetFuncDesc(i, &description);
        BSTR names[10]{};
        UINT count = 0;
        info.GetNames(description->memid, names, 10, &count);
        Function function{names[0], description->invkind, {}, {}};
        for (UINT n = 1; n < count; ++n)
            function.parameters.push_back(names[n]);
        for (SHORT p = 0; p < description->cParams; ++p) {
            const TYPEDESC &type = description->lprgelemdescParam[p].tdesc;
            function.types.push_back(type.vt == VT_PTR ? static_cast<VARTYPE>(type.lptdesc->vt | VT_BYREF)
                                                       : type.vt);
        }
        for (BSTR name : names)
            SysFreeString(name);
        if (description->memid > 0 && description->memid < 0x10000)
            functions.emplace(description->memid, function);
        info.ReleaseFuncDesc(description);
    }
    info.ReleaseTypeAttr(attributes);
    return functions;
}

TEST(TypeLibrary, HasTheMembersInTheirOrder)
{
    const std::vector<std::wstring> order{L"STR_SQLTEMP",
                                          L"Enabled",
                                          L"BackColor",
                                          L"DisplayEable",
                                          L"FilterEnable",
                                          L"SortEnable",
                                          L"DataBackColor",
                                          L"DataFont",
                                          L"UseModel",
                                          L"ShowModel",
                                          L"ConnectionString",
                                          L"SQLShow",
                                          L"RecordSet",
                                          L"RecordSource",
                                          L"SQLPartDisplay",
                                          L"SQLFilter",
                                          L"SQLSort",
                                          L"TableType",
                                          L"ErrorHint",
                                          L"DBType",
                                          L"SysDBCnn",
                                          L"SysDBMode",
                                          L"PassQurryFilter",
                                          L"CurrPosition",
                                          L"GetBindFieldIndex",
                                          L"PicField",
                                          L"Refresh",
                                          L"LocateSelRecord",
                                          L"ShowConnectionString",
                                          L"ShowRecordSource",
                                          L"ShowSQLShow",
                                          L"ShowPartDisplay",
                                          L"ShowFilterCondtion",
                                          L"ShowSort",
                                          L"GetConnection",
                                          L"SetFieldName",
                                          L"SetSQLShow",
                                          L"SetSQLFilter",
                                          L"SetSortFN",
                                          L"SetGridCol",
                                          L"CellText",
                                          L"Clear",
                                          L"ClearAll",
                                          L"GetBond",
                                          L"GetGridCol",
                                          L"SetGridRow",
                                          L"GetGridRow",
                                          L"CloseAllAction",
                                          L"IsLoadData",
                                          L"SeeCompressView",
                                          L"ClearObject",
                                          L"CellTextL",
                                          L"GetGridRowL"};
    const auto functions = functionsOf(*dispatchInfo().Get());
    for (std::size_t i = 0; i < order.size(); ++i) {
        const auto found = functions.find(static_cast<MEMBERID>(i + 1));
        ASSERT_NE(found, functions.end()) << i + 1;
        EXPECT_EQ(found->second.name, order[i]);
    }
    EXPECT_EQ(functions.rbegin()->first, static_cast<MEMBERID>(order.size()));
}

TEST(TypeLibrary, GetBindFieldIndexIsAPropertyWithAnArgument)
{
    const auto functions = functionsOf(*dispatchInfo().Get());
    const Function &function = functions.find(25)->second;
    EXPECT_EQ(function.invokeKind, INVOKE_PROPERTYGET);
    EXPECT_EQ(function.parameters, std::vector<std::wstring>{L"strFieldName"});
    EXPECT_EQ(functions.count(25), 1u);
}

TEST(TypeLibrary, NumbersTheEventsFrom1To15WithArgumentsByReference)
{
    const std::vector<std::wstring> order{
        L"DataMouseDown",    L"DataMouseUp",         L"DataMouseMove",     L"Error",
        L"HeadClick",        L"DataClick",           L"DataDblClick",      L"DataKeyDown",
        L"MouseUp",          L"ShowFieldsChange",    L"QurryFilter",       L"RecordChanged",
        L"RecordsetChanged", L"DataDBLClickOneCell", L"DataDBLClickOneRow"};
    const ComPtr<ITypeInfo> events = typeNamed(L"KOVAVSFDataGridEvents");
    ASSERT_TRUE(events);
    const auto functions = functionsOf(*events.Get());
    ASSERT_EQ(functions.size(), order.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        EXPECT_EQ(functions.find(static_cast<MEMBERID>(i + 1))->second.name, order[i]);
    EXPECT_EQ(functions.find(1)->second.types,
              (std::vector<VARTYPE>{VT_I2 | VT_BYREF, VT_I2 | VT_BYREF, VT_R4 | VT_BYREF, VT_R4 | VT_BYREF}));
    EXPECT_EQ(functions.find(11)->second.types, (std::vector<VARTYPE>{VT_I4 | VT_BYREF, VT_BSTR}));
    EXPECT_EQ(functions.find(12)->second.types, (std::vector<VARTYPE>{VT_I4, VT_I4}));
}

TEST(TypeLibrary, DeclaresAllEnumerations)
{
    const std::map<std::wstring, std::map<std::wstring, long>> expected{
        {L"UseModelChoose", {{L"ModelUsing", 0}, {L"ModelDefine", 1}}},
        {L"ShowModelChoose", {{L"ModelAll", 0}, {L"ModelPart", 1}}},
        {L"backstyleChoose", {{L"Transparent", 0}, {L"Opaque", 1}}},
        {L"AppearanceChoose", {{L"Flat", 0}, {L"Cascade", 1}}},
        {L"AllDBType", {{L"dbAccess", 1}, {L"dbOracle", 2}, {L"dbSQLServer", 3}}},
        {L"TBLType", {{L"DataTable", 0}, {L"DataView", 1}, {L"DefSQL", 2}}}};
    for (const auto &[name, members] : expected) {
        const ComPtr<ITypeInfo> info = typeNamed(name.c_str());
        ASSERT_TRUE(info) << name.c_str();
        TYPEATTR *attributes = nullptr;
        info->GetTypeAttr(&attributes);
        EXPECT_EQ(attributes->cVars, members.size());
        for (UINT i = 0; i < attributes->cVars; ++i) {
            VARDESC *variable = nullptr;
            info->GetVarDesc(i, &variable);
            BSTR member = nullptr;
            UINT count = 0;
            info->GetNames(variable->memid, &member, 1, &count);
            EXPECT_EQ(variable->lpvarValue->lVal, members.at(member));
            SysFreeString(member);
            info->ReleaseVarDesc(variable);
        }
        info->ReleaseTypeAttr(attributes);
    }
}

} // namespace
