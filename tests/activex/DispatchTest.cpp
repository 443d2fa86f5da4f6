#include "Late.h"
#include "SampleFile.h"

#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>

using Microsoft::WRL::ComPtr;
using namespace Late;

namespace {

Object newControl()
{
    CLSID id{};
    Object control;
    EXPECT_EQ(CLSIDFromProgID(L"KOVAVSFDataGridLib.KOVAVSFDataGrid", &id), S_OK);
    EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&control)), S_OK);
    return control;
}

Object loadedControl()
{
    const Object control = newControl();
    put(control, L"ConnectionString", sampleConnection().c_str());
    put(control, L"DBType", 3);
    put(control, L"SQLShow", L"select id, name, born, big, photo from people order by id");
    EXPECT_TRUE(get(control, L"IsLoadData").isTrue());
    return control;
}

TEST(Dispatch, FindsMembersInAnyLetterCase)
{
    const Object control = newControl();
    EXPECT_EQ(put(control, L"str_sqltemp", L"文本 a'b").outcome, S_OK);
    EXPECT_EQ(get(control, L"STR_SQLTEMP").text(), L"文本 a'b");
    EXPECT_EQ(get(control, L"Str_SqlTemp").text(), L"文本 a'b");
    EXPECT_EQ(call(control, L"NoSuchMember").outcome, DISP_E_UNKNOWNNAME);
}

TEST(Dispatch, HidesWhatTheWidgetInherits)
{
    const Object control = newControl();
    for (const wchar_t *name :
         {L"objectName", L"deleteLater", L"windowTitle", L"show", L"UserMode", L"HostError"})
        EXPECT_EQ(call(control, name).outcome, DISP_E_UNKNOWNNAME) << name;
}

TEST(Dispatch, TakesNumbersOfEveryWidth)
{
    const Object control = newControl();
    for (const Value &value :
         {Value::short16(2), Value(2), Value::unsigned32(2), Value::int64(2), Value(2.0), Value(L"2")}) {
        put(control, L"DBType", 3);
        EXPECT_EQ(put(control, L"DBType", value).outcome, S_OK) << value.type();
        EXPECT_EQ(get(control, L"DBType").number(), 2) << value.type();
    }
    EXPECT_EQ(get(control, L"DBType").type(), VT_I4);
}

TEST(Dispatch, RefusesWhatDoesNotFit)
{
    const Object control = newControl();
    EXPECT_EQ(put(control, L"DBType", L"Oracle").outcome, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(put(control, L"DBType", Value::int64(5'000'000'000)).outcome, DISP_E_OVERFLOW);
    EXPECT_EQ(put(control, L"SQLShow", Value::null()).outcome, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(call(control, L"CellText", {70000, 1}).outcome, DISP_E_OVERFLOW);
    EXPECT_EQ(call(control, L"LocateSelRecord").outcome, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(call(control, L"LocateSelRecord", {1, 2}).outcome, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(put(control, L"RecordSource", L"x").outcome, DISP_E_MEMBERNOTFOUND);
}

TEST(Dispatch, BooleansAreMinusOneAndZero)
{
    const Object control = newControl();
    EXPECT_EQ(put(control, L"ErrorHint", true).outcome, S_OK);
    EXPECT_EQ(get(control, L"ErrorHint").type(), VT_BOOL);
    EXPECT_EQ(get(control, L"ErrorHint").number(), -1);
    EXPECT_EQ(put(control, L"ErrorHint", 0).outcome, S_OK);
    EXPECT_EQ(get(control, L"ErrorHint").number(), 0);
}

TEST(Dispatch, ColoursAreOleColours)
{
    const Object control = newControl();
    EXPECT_EQ(put(control, L"BackColor", 0x00FF8040).outcome, S_OK);
    EXPECT_EQ(get(control, L"BackColor").number(), 0x00FF8040);
    // A system colour, signed and unsigned, is the same colour.
    EXPECT_EQ(put(control, L"BackColor", static_cast<int>(0x8000000Fu)).outcome, S_OK);
    const long face = get(control, L"BackColor").number();
    EXPECT_EQ(put(control, L"BackColor", 0).outcome, S_OK);
    EXPECT_EQ(put(control, L"BackColor", Value::unsigned32(0x8000000Fu)).outcome, S_OK);
    EXPECT_EQ(get(control, L"BackColor").number(), face);
    EXPECT_NE(face, 0);
}

TEST(Dispatch, FontsAreFontObjects)
{
    const Object control = newControl();
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = const_cast<LPOLESTR>(L"Tahoma");
    description.cySize.int64 = 135000; // 13.5 points
    description.sWeight = FW_BOLD;
    description.sCharset = DEFAULT_CHARSET;
    description.fItalic = TRUE;
    ComPtr<IFontDisp> font;
    ASSERT_EQ(OleCreateFontIndirect(&description, IID_PPV_ARGS(&font)), S_OK);
    EXPECT_EQ(invoke(control, L"DataFont", DISPATCH_PROPERTYPUTREF, {Value(font.Get())}).outcome, S_OK);

    ComPtr<IFont> back;
    ASSERT_EQ(get(control, L"DataFont").object().As(&back), S_OK);
    CY size{};
    BOOL bold = FALSE;
    BOOL italic = FALSE;
    BOOL underline = TRUE;
    back->get_Size(&size);
    back->get_Bold(&bold);
    back->get_Italic(&italic);
    back->get_Underline(&underline);
    EXPECT_NEAR(static_cast<double>(size.int64), 135000, 5000);
    EXPECT_TRUE(bold);
    EXPECT_TRUE(italic);
    EXPECT_FALSE(underline);
    EXPECT_EQ(invoke(control, L"DataFont", DISPATCH_PROPERTYPUTREF, {Value(static_cast<IUnknown *>(nullptr))})
                  .outcome,
              DISP_E_TYPEMISMATCH);
}

TEST(Dispatch, UseModelAtRunTimeIsAnErrorWithItsNumber)
{
    const Object control = newControl();
    const Answer read = invoke(control, L"UseModel", DISPATCH_PROPERTYGET);
    EXPECT_EQ(read.outcome, DISP_E_EXCEPTION);
    EXPECT_EQ(static_cast<unsigned long>(read.errorCode), 0x800A0189ul); // 393
    EXPECT_FALSE(read.errorText.empty());
    const Answer written = put(control, L"UseModel", 1);
    EXPECT_EQ(written.outcome, DISP_E_EXCEPTION);
    EXPECT_EQ(static_cast<unsigned long>(written.errorCode), 0x800A017Eul); // 382
}

TEST(Dispatch, WalksTheRecordsetByNames)
{
    const Object control = loadedControl();
    const Object records = get(control, L"RecordSet").object();
    ASSERT_TRUE(records);
    EXPECT_EQ(get(records, L"RecordCount").number(), 3);
    call(records, L"MoveFirst");
    EXPECT_EQ(get(get(records, L"Fields", {L"name"}).object(), L"Value").text(), L"张三");
    EXPECT_EQ(get(get(records, L"Fields", {Value::short16(1)}).object(), L"Value").text(), L"张三");
    EXPECT_EQ(get(get(get(records, L"Fields").object(), L"Item", {L"NAME"}).object(), L"Name").text(),
              L"name");
    int rows = 0;
    while (!get(records, L"EOF").isTrue()) {
        ++rows;
        call(records, L"MoveNext");
    }
    EXPECT_EQ(rows, 3);
}

TEST(Dispatch, ValuesKeepTheirTypes)
{
    const Object control = loadedControl();
    const Object records = get(control, L"RecordSet").object();
    const auto value = [&records](const wchar_t *field) {
        return get(get(records, L"Fields", {field}).object(), L"Value");
    };
    call(records, L"MoveFirst");
    EXPECT_EQ(value(L"id").type(), VT_I4);
    EXPECT_EQ(value(L"born").type(), VT_DATE);
    SYSTEMTIME born{};
    ASSERT_TRUE(VariantTimeToSystemTime(value(L"born").variant().date, &born));
    EXPECT_EQ(born.wYear, 1980);
    EXPECT_EQ(born.wMonth, 5);
    EXPECT_EQ(born.wDay, 17);
    EXPECT_EQ(value(L"big").type(), VT_DECIMAL);
    EXPECT_EQ(value(L"big").text(), L"5000000000");
    EXPECT_EQ(value(L"photo").type(), VT_ARRAY | VT_UI1);
    call(records, L"Move", {2});
    EXPECT_EQ(value(L"born").type(), VT_NULL);
    EXPECT_EQ(value(L"photo").type(), VT_NULL);
}

TEST(Dispatch, TellsAFailureOfTheRecordsetWithItsNumber)
{
    const Object control = loadedControl();
    const Object records = get(control, L"RecordSet").object();
    const Answer missing = invoke(records, L"Fields", DISPATCH_PROPERTYGET, {L"nothing"});
    EXPECT_EQ(missing.outcome, DISP_E_EXCEPTION);
    EXPECT_EQ(static_cast<unsigned long>(missing.errorCode), 0x800A0CC1ul); // 3265
    EXPECT_NE(missing.errorText.find(L"nothing"), std::wstring::npos);
}

TEST(Dispatch, AnOutlivedRecordsetFailsInsteadOfCrashing)
{
    Object control = loadedControl();
    const Object records = get(control, L"RecordSet").object();
    call(control, L"ClearObject");
    control.Reset();
    const Answer after = invoke(records, L"MoveFirst", DISPATCH_METHOD);
    EXPECT_TRUE(FAILED(after.outcome));
}

TEST(Dispatch, OneObjectHasOneIdentity)
{
    const Object control = loadedControl();
    const Object once = get(control, L"RecordSet").object();
    const Object again = get(control, L"RecordSet").object();
    EXPECT_EQ(once.Get(), again.Get());
}

TEST(Dispatch, ReadsAndFindsCells)
{
    const Object control = loadedControl();
    EXPECT_EQ(get(control, L"CellText", {Value::short16(1), Value::short16(2)}).text(), L"张三");
    EXPECT_EQ(get(control, L"CellTextL", {2, 2}).text(), L"O'Brien");
    long row = 3;
    long column = 2;
    EXPECT_EQ(get(control, L"CellTextL", {Value::byReference(&row), Value::byReference(&column)}).text(),
              L"李四");
    EXPECT_EQ(get(control, L"GetBindFieldIndex", {L"born"}).number(), 3);
    EXPECT_EQ(get(control, L"GetBindFieldIndex", {L"Born"}).number(), -1);
    EXPECT_TRUE(get(control, L"LocateSelRecord", {2}).isTrue());
    EXPECT_EQ(get(control, L"GetGridRowL").number(), 2);
    EXPECT_EQ(get(control, L"GetGridRow").type(), VT_I2);
    EXPECT_EQ(get(control, L"RecordSource").text(),
              L"select id, name, born, big, photo from people order by id");
}

TEST(Dispatch, TakesOptionalArgumentsLeftOut)
{
    const Object control = loadedControl();
    const Object records = get(control, L"RecordSet").object();
    call(records, L"MoveFirst");
    EXPECT_EQ(call(records, L"Move", {1, Value::omitted()}).outcome, S_OK);
    EXPECT_EQ(get(records, L"AbsolutePosition").number(), 2);
}

} // namespace
