#include "SampleControl.h"

#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>

using Microsoft::WRL::ComPtr;
using namespace Late;

namespace {

constexpr VARTYPE numberTypes[] = {VT_I1,   VT_UI1, VT_I2,  VT_UI2, VT_I4, VT_UI4, VT_INT,
                                   VT_UINT, VT_I8,  VT_UI8, VT_R4,  VT_R8, VT_CY,  VT_DECIMAL};

TEST(Values, NumbersOfEveryTypeFitAProperty)
{
    const Object control = newControl();
    for (const VARTYPE type : numberTypes) {
        put(control, L"DBType", 3);
        const Value two = Value::as(type, L"2");
        ASSERT_EQ(two.type(), type);
        EXPECT_EQ(put(control, L"DBType", two).outcome, S_OK) << type;
        EXPECT_EQ(get(control, L"DBType").number(), 2) << type;
    }
    EXPECT_EQ(put(control, L"DBType", L"1").outcome, S_OK);
    EXPECT_EQ(get(control, L"DBType").number(), 1);
    EXPECT_EQ(get(control, L"DBType").type(), VT_I4);
}

TEST(Values, NumbersOfEveryTypeAreIndexes)
{
    const Object control = loadedControl();
    const Object records = get(control, L"RecordSet").object();
    for (const VARTYPE type : numberTypes)
        EXPECT_EQ(get(get(records, L"Fields", {Value::as(type, L"1")}).object(), L"Name").text(), L"name")
            << type;
    Value one(1);
    EXPECT_EQ(get(get(records, L"Fields", {Value::byReference(one.get())}).object(), L"Name").text(),
              L"name");
    Value name(L"born");
    EXPECT_EQ(get(get(records, L"Fields", {Value::byReference(name.get())}).object(), L"Name").text(),
              L"born");
}

TEST(Values, NumbersOfEveryTypeFitAField)
{
    const Object control = loadedControl();
    const Object records = get(control, L"RecordSet").object();
    const Object big = get(records, L"Fields", {L"big"}).object();
    for (const VARTYPE type : numberTypes) {
        EXPECT_EQ(put(big, L"Value", 1).outcome, S_OK);
        EXPECT_EQ(put(big, L"Value", Value::as(type, L"42")).outcome, S_OK) << type;
        EXPECT_EQ(get(big, L"Value").text(), L"42") << type;
    }
    EXPECT_EQ(put(big, L"Value", Value::as(VT_UI8, L"9000000000000000000")).outcome, S_OK);
    EXPECT_EQ(get(big, L"Value").text(), L"9000000000000000000");
    EXPECT_EQ(put(big, L"Value", Value::null()).outcome, S_OK);
    EXPECT_EQ(get(big, L"Value").type(), VT_NULL);
    EXPECT_EQ(call(records, L"CancelUpdate").outcome, S_OK);
}

TEST(Values, ADateKeepsWhatItsClockShows)
{
    const Object control = loadedControl();
    const Object records = get(control, L"RecordSet").object();
    const Object when = get(records, L"Fields", {L"met"}).object();
    // Also on the day on which summer time begins in the zone of these tests, and before day 0.
    for (const wchar_t *moment : {L"2024-03-10 15:30:00", L"2024-11-03 23:59:59", L"1899-12-29 06:00:00"}) {
        const Value date = Value::as(VT_DATE, moment);
        ASSERT_EQ(date.type(), VT_DATE);
        EXPECT_EQ(put(when, L"Value", date).outcome, S_OK);
        EXPECT_NEAR(get(when, L"Value").variant().date, date.variant().date, 1e-8) << moment;
    }
    call(records, L"CancelUpdate");
}

TEST(Values, ATextMayComeInAReferenceToAVariant)
{
    const Object control = newControl();
    Value text(L"select 1");
    EXPECT_EQ(put(control, L"STR_SQLTEMP", Value::byReference(text.get())).outcome, S_OK);
    EXPECT_EQ(get(control, L"STR_SQLTEMP").text(), L"select 1");
}

TEST(Values, EmptyIsTheNeutralValue)
{
    const Object control = newControl();
    put(control, L"STR_SQLTEMP", L"x");
    EXPECT_EQ(put(control, L"STR_SQLTEMP", Value()).outcome, S_OK);
    EXPECT_EQ(get(control, L"STR_SQLTEMP").text(), L"");
    put(control, L"ErrorHint", true);
    EXPECT_EQ(put(control, L"ErrorHint", Value()).outcome, S_OK);
    EXPECT_FALSE(get(control, L"ErrorHint").isTrue());
}

TEST(Values, RefusesWhatDoesNotFit)
{
    const Object control = newControl();
    EXPECT_EQ(put(control, L"DBType", L"Oracle").outcome, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(put(control, L"DBType", Value::as(VT_I8, L"5000000000")).outcome, DISP_E_OVERFLOW);
    EXPECT_EQ(put(control, L"DBType", Value::omitted()).outcome, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(put(control, L"SQLShow", Value::null()).outcome, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(call(control, L"CellText", {70000, 1}).outcome, DISP_E_OVERFLOW);
    EXPECT_EQ(call(control, L"LocateSelRecord").outcome, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(call(control, L"LocateSelRecord", {1, 2}).outcome, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(put(control, L"RecordSource", L"x").outcome, DISP_E_MEMBERNOTFOUND);
}

TEST(Values, BooleansAreMinusOneAndZero)
{
    const Object control = newControl();
    EXPECT_EQ(put(control, L"ErrorHint", true).outcome, S_OK);
    EXPECT_EQ(get(control, L"ErrorHint").type(), VT_BOOL);
    EXPECT_EQ(get(control, L"ErrorHint").number(), -1);
    EXPECT_EQ(put(control, L"ErrorHint", 0).outcome, S_OK);
    EXPECT_EQ(get(control, L"ErrorHint").number(), 0);
}

TEST(Values, ColoursAreOleColours)
{
    const Object control = newControl();
    EXPECT_EQ(put(control, L"BackColor", 0x00FF8040).outcome, S_OK);
    EXPECT_EQ(get(control, L"BackColor").number(), 0x00FF8040);
    // A system colour, signed and unsigned, stays one.
    EXPECT_EQ(put(control, L"BackColor", static_cast<int>(0x80000005u)).outcome, S_OK);
    EXPECT_EQ(get(control, L"BackColor").number(), static_cast<int>(0x80000005u));
    EXPECT_EQ(put(control, L"BackColor", Value::as(VT_UI4, L"2147483663")).outcome, S_OK);
    EXPECT_EQ(get(control, L"BackColor").number(), static_cast<int>(0x8000000Fu));
    EXPECT_EQ(put(control, L"BackColor", L"blue").outcome, DISP_E_TYPEMISMATCH);
    // The grid's is the colour that shows.
    EXPECT_EQ(put(control, L"DataBackColor", static_cast<int>(0x80000005u)).outcome, S_OK);
    EXPECT_EQ(get(control, L"DataBackColor").number(), 0x00FFFFFF);
}

TEST(Values, FontsAreFontObjects)
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

TEST(Values, AChangeOfTheFontObjectChangesTheGrid)
{
    const Object control = newControl();
    const Object font = get(control, L"DataFont").object();
    ASSERT_EQ(put(font, L"Size", 20).outcome, S_OK);
    EXPECT_NEAR(get(get(control, L"DataFont").object(), L"Size").real(), 20, 0.5);
    put(font, L"Bold", true);
    EXPECT_TRUE(get(get(control, L"DataFont").object(), L"Bold").isTrue());

    // A client's own object stays connected too, and one that was replaced does not.
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = const_cast<LPOLESTR>(L"Tahoma");
    description.cySize.int64 = 100000;
    ComPtr<IFontDisp> own;
    ASSERT_EQ(OleCreateFontIndirect(&description, IID_PPV_ARGS(&own)), S_OK);
    EXPECT_EQ(invoke(control, L"DataFont", DISPATCH_PROPERTYPUTREF, {Value(own.Get())}).outcome, S_OK);
    const Object ownObject = get(control, L"DataFont").object();
    put(ownObject, L"Italic", true);
    put(font, L"Size", 33);
    const Object now = get(control, L"DataFont").object();
    EXPECT_TRUE(get(now, L"Italic").isTrue());
    EXPECT_NEAR(get(now, L"Size").real(), 10, 0.5);
}

TEST(Values, AFontObjectMayOutliveTheControl)
{
    Object control = newControl();
    const Object font = get(control, L"DataFont").object();
    control.Reset();
    EXPECT_EQ(put(font, L"Size", 20).outcome, S_OK);
}

TEST(Values, ATextKeepsItsZeroCharacters)
{
    const Object control = newControl();
    Value text;
    text.get()->vt = VT_BSTR;
    text.get()->bstrVal = SysAllocStringLen(L"a\0b", 3);
    put(control, L"STR_SQLTEMP", text);
    const Value back = get(control, L"STR_SQLTEMP");
    EXPECT_EQ(SysStringLen(back.variant().bstrVal), 3u);
}

TEST(Values, ManyRecordsComeAsATable)
{
    const Object control = loadedControl();
    const Object records = get(control, L"RecordSet").object();
    const Value rows = get(records, L"GetRows", {2, Value::omitted(), L"name"});
    ASSERT_EQ(rows.type(), VT_ARRAY | VT_VARIANT);
    SAFEARRAY *array = rows.variant().parray;
    ASSERT_EQ(SafeArrayGetDim(array), 2u); // the field, then the record
    LONG last = -1;
    EXPECT_EQ(SafeArrayGetUBound(array, 1, &last), S_OK);
    EXPECT_EQ(last, 0);
    EXPECT_EQ(SafeArrayGetUBound(array, 2, &last), S_OK);
    EXPECT_EQ(last, 1);
    LONG place[] = {0, 1};
    Value second;
    ASSERT_EQ(SafeArrayGetElement(array, place, second.get()), S_OK);
    EXPECT_EQ(second.text(), L"O'Brien");

    EXPECT_EQ(put(records, L"Filter", L"id <> 2").outcome, S_OK);
    EXPECT_EQ(get(records, L"RecordCount").number(), 2);
    const Answer refused = call(records, L"Requery");
    EXPECT_EQ(refused.outcome, DISP_E_EXCEPTION);
    EXPECT_EQ(refused.errorCode & 0xffff, 3251);
}

TEST(Values, ValuesKeepTheirTypes)
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

} // namespace
