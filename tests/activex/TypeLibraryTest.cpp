#include "Late.h"

#include <array>
#include <gtest/gtest.h>
#include <map>
#include <ocidl.h>
#include <olectl.h>

using Microsoft::WRL::ComPtr;

namespace {

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

std::wstring nameOf(ITypeInfo &info)
{
    BSTR name = nullptr;
    info.GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
    const std::wstring text = name ? name : L"?";
    SysFreeString(name);
    return text;
}

std::wstring typeName(ITypeInfo &info, const TYPEDESC &type)
{
    switch (type.vt) {
    case VT_VOID:
        return L"void";
    case VT_BSTR:
        return L"BSTR";
    case VT_BOOL:
        return L"VARIANT_BOOL";
    case VT_I2:
        return L"short";
    case VT_I4:
        return L"long";
    case VT_R4:
        return L"float";
    case VT_DISPATCH:
        return L"IDispatch*";
    case VT_PTR:
        return typeName(info, *type.lptdesc) + L"*";
    case VT_USERDEFINED: {
        ComPtr<ITypeInfo> named;
        return SUCCEEDED(info.GetRefTypeInfo(type.hreftype, &named)) ? nameOf(*named.Get()) : L"?";
    }
    default:
        return L"?";
    }
}

std::wstring signature(ITypeInfo &info, const FUNCDESC &function)
{
    const std::map<int, const wchar_t *> kinds{{INVOKE_FUNC, L""},
                                               {INVOKE_PROPERTYGET, L"get "},
                                               {INVOKE_PROPERTYPUT, L"put "},
                                               {INVOKE_PROPERTYPUTREF, L"putref "}};
    std::array<BSTR, 10> names{};
    UINT count = 0;
    info.GetNames(function.memid, names.data(), static_cast<UINT>(names.size()), &count);
    std::wstring text = std::to_wstring(function.memid) + L" " + kinds.at(function.invkind) +
                        typeName(info, function.elemdescFunc.tdesc) + L" " + names[0] + L"(";
    for (SHORT i = 0; i < function.cParams; ++i) {
        text += (i > 0 ? L", " : L"") + typeName(info, function.lprgelemdescParam[i].tdesc);
        // The value that a property is given has no name.
        if (function.invkind != INVOKE_PROPERTYPUT && function.invkind != INVOKE_PROPERTYPUTREF)
            text += std::wstring(L" ") + names[static_cast<std::size_t>(i) + 1];
    }
    for (BSTR name : names)
        SysFreeString(name);
    return text + L")";
}

// The members as a list to read, without what every dispatch interface has.
std::wstring membersOf(ITypeInfo &info)
{
    std::wstring list;
    TYPEATTR *attributes = nullptr;
    info.GetTypeAttr(&attributes);
    for (UINT i = 0; i < attributes->cFuncs; ++i) {
        FUNCDESC *function = nullptr;
        info.GetFuncDesc(i, &function);
        if (function->memid > 0 && function->memid < 0x10000)
            list += signature(info, *function) + L"\n";
        info.ReleaseFuncDesc(function);
    }
    info.ReleaseTypeAttr(attributes);
    return list;
}

TEST(TypeLibrary, HasTheMembersInTheirOrder)
{
    EXPECT_EQ(membersOf(*dispatchInfo().Get()), LR"(1 get BSTR STR_SQLTEMP()
1 put void STR_SQLTEMP(BSTR)
2 get VARIANT_BOOL Enabled()
2 put void Enabled(VARIANT_BOOL)
3 get OLE_COLOR BackColor()
3 put void BackColor(OLE_COLOR)
4 get VARIANT_BOOL DisplayEable()
4 put void DisplayEable(VARIANT_BOOL)
5 get VARIANT_BOOL FilterEnable()
5 put void FilterEnable(VARIANT_BOOL)
6 get VARIANT_BOOL SortEnable()
6 put void SortEnable(VARIANT_BOOL)
7 get OLE_COLOR DataBackColor()
7 put void DataBackColor(OLE_COLOR)
8 get IFontDisp* DataFont()
8 putref void DataFont(IFontDisp*)
9 get UseModelChoose UseModel()
9 put void UseModel(UseModelChoose)
10 get ShowModelChoose ShowModel()
10 put void ShowModel(ShowModelChoose)
11 get BSTR ConnectionString()
11 put void ConnectionString(BSTR)
12 get BSTR SQLShow()
12 put void SQLShow(BSTR)
13 get IDispatch* RecordSet()
14 get BSTR RecordSource()
15 get BSTR SQLPartDisplay()
15 put void SQLPartDisplay(BSTR)
16 get BSTR SQLFilter()
16 put void SQLFilter(BSTR)
17 get BSTR SQLSort()
17 put void SQLSort(BSTR)
18 get TBLType TableType()
18 put void TableType(TBLType)
19 get VARIANT_BOOL ErrorHint()
19 put void ErrorHint(VARIANT_BOOL)
20 get AllDBType DBType()
20 put void DBType(AllDBType)
21 get BSTR SysDBCnn()
21 put void SysDBCnn(BSTR)
22 get BSTR SysDBMode()
22 put void SysDBMode(BSTR)
23 get BSTR PassQurryFilter()
23 put void PassQurryFilter(BSTR)
24 get long CurrPosition()
25 get long GetBindFieldIndex(BSTR strFieldName)
26 get BSTR PicField()
26 put void PicField(BSTR)
27 void Refresh()
28 VARIANT_BOOL LocateSelRecord(long lRecordRow)
29 void ShowConnectionString()
30 void ShowRecordSource()
31 void ShowSQLShow()
32 void ShowPartDisplay()
33 void ShowFilterCondtion()
34 void ShowSort()
35 void GetConnection()
36 void SetFieldName()
37 void SetSQLShow()
38 void SetSQLFilter()
39 void SetSortFN()
40 void SetGridCol(long* Col)
41 BSTR CellText(short* n_row, short* n_col)
42 void Clear()
43 void ClearAll()
44 IDispatch* GetBond()
45 short GetGridCol()
46 void SetGridRow(long* Row)
47 short GetGridRow()
48 void CloseAllAction()
49 VARIANT_BOOL IsLoadData()
50 void SeeCompressView()
51 void ClearObject()
52 BSTR CellTextL(long* n_row, long* n_col)
53 long GetGridRowL()
54 get VARIANT_BOOL ReadOnly()
54 put void ReadOnly(VARIANT_BOOL)
55 VARIANT_BOOL ExportData(BSTR strFile, BSTR strOptions)
56 BSTR SaveLayout()
57 VARIANT_BOOL RestoreLayout(BSTR strLayout)
58 get BSTR LayoutKey()
58 put void LayoutKey(BSTR)
59 VARIANT_BOOL PrintData(BSTR strFile, BSTR strOptions)
60 BSTR SaveFilters()
61 VARIANT_BOOL RestoreFilters(BSTR strFilters)
62 get BSTR Language()
62 put void Language(BSTR)
)");
}

TEST(TypeLibrary, NumbersTheEventsFrom1To15WithArgumentsByReference)
{
    const ComPtr<ITypeInfo> events = typeNamed(L"KOVAVSFDataGridEvents");
    ASSERT_TRUE(events);
    EXPECT_EQ(membersOf(*events.Get()),
              LR"(1 void DataMouseDown(short* Button, short* Shift, float* x, float* y)
2 void DataMouseUp(short* Button, short* Shift, float* x, float* y)
3 void DataMouseMove(short* Button, short* Shift, float* x, float* y)
4 void Error(short DataError, short* Response)
5 void HeadClick(short ColIndex)
6 void DataClick()
7 void DataDblClick()
8 void DataKeyDown(short* KeyCode, short* Shift)
9 void MouseUp(short* Button, short* Shift, float* x, float* y)
10 void ShowFieldsChange(BSTR strSQL)
11 void QurryFilter(long* Cancel, BSTR strLastFilter)
12 void RecordChanged(long ChangeReason, long CurrPosition)
13 void RecordsetChanged(long ChangeReason)
14 void DataDBLClickOneCell(long Col, long Row)
15 void DataDBLClickOneRow(long Row)
)");
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
