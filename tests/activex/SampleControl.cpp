#include "SampleControl.h"

#include "SampleFile.h"

#include <gtest/gtest.h>
#include <objbase.h>

using namespace Late;

CLSID controlId()
{
    CLSID id{};
    EXPECT_EQ(CLSIDFromProgID(L"KOVAVSFDataGridLib.KOVAVSFDataGrid", &id), S_OK);
    return id;
}

Object newControl()
{
    Object control;
    EXPECT_EQ(CoCreateInstance(controlId(), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&control)), S_OK);
    return control;
}

Object loadedControl()
{
    const Object control = newControl();
    put(control, L"ConnectionString", sampleConnection().c_str());
    put(control, L"DBType", 3);
    put(control, L"SQLShow", L"select id, name, born, big, photo, met from people order by id");
    EXPECT_TRUE(get(control, L"IsLoadData").isTrue());
    return control;
}
