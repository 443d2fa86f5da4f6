#include "SampleControl.h"

#include <gtest/gtest.h>
#include <oaidl.h>

using namespace Late;

namespace {

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

TEST(Dispatch, ReportsAFailureOfTheRecordsetWithItsNumber)
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
              L"select id, name, born, big, photo, met from people order by id");
}

TEST(Dispatch, TakesOptionalArgumentsLeftOut)
{
    const Object control = loadedControl();
    const Object records = get(control, L"RecordSet").object();
    call(records, L"MoveFirst");
    EXPECT_EQ(call(records, L"Move", {1, Value::omitted()}).outcome, S_OK);
    EXPECT_EQ(get(records, L"AbsolutePosition").number(), 2);
}

TEST(Dispatch, AValueReachesAFieldThroughDefaultMembers)
{
    const Object control = loadedControl();
    const Object records = get(control, L"RecordSet").object();
    // As in `records.Fields("name") = "Wang"`.
    EXPECT_EQ(invoke(records, L"Fields", DISPATCH_PROPERTYPUT, {L"name", L"Wang"}).outcome, S_OK);
    EXPECT_EQ(get(get(records, L"Fields", {L"name"}).object(), L"Value").text(), L"Wang");
    const Answer missing = invoke(records, L"Fields", DISPATCH_PROPERTYPUT, {L"nothing", L"Wang"});
    EXPECT_EQ(missing.outcome, DISP_E_EXCEPTION);
    EXPECT_EQ(static_cast<unsigned long>(missing.errorCode), 0x800A0CC1ul); // 3265
    call(records, L"CancelUpdate");
}

TEST(Dispatch, ArgumentsOfAnObjectGoOnToItsDefaultMember)
{
    const Object control = loadedControl();
    call(get(control, L"RecordSet").object(), L"MoveFirst");
    // As in `grid.RecordSet("name")`.
    const auto field = [&control] { return get(control, L"RecordSet", {L"name"}).object(); };
    ASSERT_TRUE(field());
    EXPECT_EQ(get(field(), L"Value").text(), L"张三");
    EXPECT_EQ(invoke(control, L"RecordSet", DISPATCH_PROPERTYPUT, {L"name", L"Wang"}).outcome, S_OK);
    EXPECT_EQ(get(field(), L"Value").text(), L"Wang");
    for (const Answer &missing : {invoke(control, L"RecordSet", DISPATCH_PROPERTYGET, {L"nothing"}),
                                  invoke(control, L"RecordSet", DISPATCH_PROPERTYPUT, {L"nothing", L"x"})}) {
        EXPECT_EQ(missing.outcome, DISP_E_EXCEPTION);
        EXPECT_EQ(static_cast<unsigned long>(missing.errorCode), 0x800A0CC1ul); // 3265
    }
    const Object records = get(control, L"RecordSet").object();
    EXPECT_EQ(invoke(records, L"EOF", DISPATCH_PROPERTYGET, {1}).outcome, DISP_E_BADPARAMCOUNT)
        << "no object";
    EXPECT_EQ(invoke(records, L"Fields", DISPATCH_PROPERTYGET, {1, 2}).outcome, DISP_E_BADPARAMCOUNT);
    call(records, L"CancelUpdate");
}

TEST(Dispatch, TheFieldsCanBeEnumerated)
{
    const Object control = loadedControl();
    const Object fields = get(get(control, L"RecordSet").object(), L"Fields").object();
    DISPPARAMS none{};
    Value walk;
    ASSERT_EQ(fields->Invoke(DISPID_NEWENUM, IID_NULL, LOCALE_USER_DEFAULT,
                             DISPATCH_METHOD | DISPATCH_PROPERTYGET, &none, walk.get(), nullptr, nullptr),
              S_OK);
    ASSERT_EQ(walk.type(), VT_UNKNOWN);
    Microsoft::WRL::ComPtr<IEnumVARIANT> each;
    ASSERT_EQ(walk.variant().punkVal->QueryInterface(IID_PPV_ARGS(&each)), S_OK);
    std::vector<std::wstring> names;
    for (Value field; each->Next(1, field.get(), nullptr) == S_OK; field = Value())
        names.push_back(get(field.object(), L"Name").text());
    EXPECT_EQ(names, (std::vector<std::wstring>{L"id", L"name", L"born", L"big", L"photo", L"met"}));
    EXPECT_EQ(control->Invoke(DISPID_NEWENUM, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                              walk.get(), nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
}

} // namespace
