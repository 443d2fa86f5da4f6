#include "Scene.h"

#include <gtest/gtest.h>
#include <map>
#include <ocidl.h>

using Microsoft::WRL::ComPtr;
using namespace Late;

namespace {

class MemoryBag final : public IPropertyBag
{
public:
    std::map<std::wstring, long> values;

    STDMETHODIMP QueryInterface(REFIID, void **object) override
    {
        *object = this;
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP Read(LPCOLESTR name, VARIANT *value, IErrorLog *) override
    {
        const auto found = values.find(name);
        if (found == values.end())
            return E_INVALIDARG;
        value->vt = VT_I4;
        value->lVal = found->second;
        return S_OK;
    }
    STDMETHODIMP Write(LPCOLESTR name, VARIANT *value) override
    {
        values[name] = value->vt == VT_I4 ? value->lVal : -1;
        return S_OK;
    }
};

TEST(Persistence, KeepsOnlyTheBackgroundColourInAPropertyBag)
{
    MemoryBag bag;
    {
        Container container(400, 300);
        put(container.control(), L"SQLShow", L"select id from people");
        put(container.control(), L"BackColor", 0x00336699);
        EXPECT_EQ(container.as<IPersistStreamInit>()->IsDirty(), S_OK);
        ASSERT_EQ(container.as<IPersistPropertyBag>()->Save(&bag, TRUE, TRUE), S_OK);
        EXPECT_EQ(container.as<IPersistStreamInit>()->IsDirty(), S_FALSE);
    }
    EXPECT_EQ(bag.values, (std::map<std::wstring, long>{{L"BackColor", 0x00336699}}));
    Container restored(400, 300);
    ASSERT_EQ(restored.as<IPersistPropertyBag>()->Load(&bag, nullptr), S_OK);
    EXPECT_EQ(get(restored.control(), L"BackColor").number(), 0x00336699);
    EXPECT_EQ(get(restored.control(), L"SQLShow").text(), L"");
}

TEST(Persistence, AnAbsentEntryGivesTheButtonFaceColour)
{
    MemoryBag empty;
    Container container(400, 300);
    const auto face = static_cast<long>(0x8000000Fu);
    EXPECT_EQ(get(container.control(), L"BackColor").number(), face);
    put(container.control(), L"BackColor", 0x00010203);
    ASSERT_EQ(container.as<IPersistPropertyBag>()->Load(&empty, nullptr), S_OK);
    EXPECT_EQ(get(container.control(), L"BackColor").number(), face);
    // What equals the default need not be written.
    ASSERT_EQ(container.as<IPersistPropertyBag>()->Save(&empty, TRUE, FALSE), S_OK);
    EXPECT_TRUE(empty.values.empty());
}

TEST(Persistence, KeepsTheBackgroundColourInAStream)
{
    ComPtr<IStream> stream;
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    {
        Container container(400, 300);
        put(container.control(), L"BackColor", 0x00112233);
        ASSERT_EQ(container.as<IPersistStreamInit>()->Save(stream.Get(), TRUE), S_OK);
    }
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    Container restored(400, 300);
    ASSERT_EQ(restored.as<IPersistStreamInit>()->Load(stream.Get()), S_OK);
    EXPECT_EQ(get(restored.control(), L"BackColor").number(), 0x00112233);
    EXPECT_TRUE(FAILED(restored.as<IPersistStreamInit>()->Load(stream.Get()))); // at its end
}

} // namespace
