#include "Scene.h"

#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>

using namespace Late;

namespace {

// The numbers that the first event of this kind carried.
std::vector<double> numbersOf(const Container &container, DISPID id)
{
    for (const Event &event : container.events()) {
        if (event.id == id)
            return event.numbers;
    }
    return {};
}

TEST(Events, ReportsTheEventsOfTheMouse)
{
    Container container(800, 500);
    load(container);
    // The test before may have left it where this one clicks.
    POINT beside{rowX + 30, rowY};
    ClientToScreen(container.controlWindow(), &beside);
    SetCursorPos(beside.x, beside.y);
    container.run();
    container.forget();
    container.click(rowX, rowY);
    ASSERT_EQ(container.countOf(1), 1); // DataMouseDown
    ASSERT_EQ(container.countOf(2), 1); // DataMouseUp
    EXPECT_GE(container.countOf(3), 1); // DataMouseMove
    EXPECT_EQ(container.countOf(6), 1); // DataClick
    for (const Event &event : container.events()) {
        if (event.id == 1) {
            ASSERT_EQ(event.numbers.size(), 4u);
            EXPECT_EQ(event.numbers[0], 1); // the left button
            EXPECT_EQ(event.numbers[1], 0);
            EXPECT_GT(event.numbers[2], 0); // twips
        }
    }
    EXPECT_TRUE(container.hasUi());

    container.forget();
    container.doubleClick(rowX, rowY);
    EXPECT_EQ(container.countOf(7), 1);
    EXPECT_EQ(container.countOf(14) + container.countOf(15), 1);
}

TEST(Events, ReportsAClickOnAHeading)
{
    Container container(800, 500);
    load(container);
    container.forget();
    container.click(rowX, headingY);
    ASSERT_EQ(container.countOf(5), 1);
    EXPECT_GT(numbersOf(container, 5).at(0), 0);
}

TEST(Events, ReportsWhenTheResultAndTheRecordChange)
{
    Container container(800, 500);
    container.forget();
    load(container);
    EXPECT_GE(container.countOf(13), 1); // RecordsetChanged
    container.click(rowX, rowY);
    container.forget();
    container.key(VK_DOWN);
    ASSERT_EQ(container.countOf(12), 1); // RecordChanged
    EXPECT_EQ(numbersOf(container, 12).at(1), 2);
}

TEST(Events, ReportsAMouseButtonThatIsReleasedBesideTheGrid)
{
    Container container(800, 500);
    load(container);
    container.forget();
    container.click(panelX, panelY);
    ASSERT_EQ(container.countOf(9), 1);
    EXPECT_EQ(numbersOf(container, 9).at(0), 1);
    EXPECT_EQ(container.countOf(2), 0);
}

TEST(Events, AHandlerFiltersWithItsOwnCondition)
{
    Container container(800, 500);
    load(container);
    container.forget();
    container.answerQurryFilter(0, L"id > 1");
    container.click(filterX, toolbarY); // no dialog opens
    ASSERT_EQ(container.countOf(11), 1);
    EXPECT_EQ(numbersOf(container, 11), std::vector<double>{1});
    EXPECT_NE(container.events().front().text.find(L"people"), std::wstring::npos);
    EXPECT_EQ(get(get(container.control(), L"RecordSet").object(), L"RecordCount").number(), 2);
    picture(container, L"filtered");
}

TEST(Events, AHandlerCancelsTheFilter)
{
    Container container(800, 500);
    load(container);
    container.forget();
    container.answerQurryFilter(0, L"");
    container.click(filterX, toolbarY);
    ASSERT_EQ(container.countOf(11), 1);
    EXPECT_EQ(get(get(container.control(), L"RecordSet").object(), L"RecordCount").number(), 3);
}

TEST(Events, AHandlerMayReleaseTheControl)
{
    Container container(800, 500);
    load(container);
    container.onEvent([&](DISPID id) {
        if (id == 6)
            container.release();
    });
    container.click(rowX, rowY);
    EXPECT_FALSE(container.control());
    EXPECT_EQ(container.references(), 1u);
}

TEST(Events, FrozenEventsAreNotReported)
{
    Container container(800, 500);
    load(container);
    container.forget();
    container.as<IOleControl>()->FreezeEvents(TRUE);
    container.click(rowX, rowY);
    EXPECT_TRUE(container.events().empty());
    container.as<IOleControl>()->FreezeEvents(FALSE);
    container.click(rowX, rowY);
    EXPECT_FALSE(container.events().empty());
}

TEST(Events, ReportsWhichPropertyHasChanged)
{
    Container container(400, 300);
    put(container.control(), L"SQLFilter", L"x");
    EXPECT_EQ(container.changedProperties(), std::vector<DISPID>{16});
}

TEST(Events, LocatingARecordReportsItsReason)
{
    Container container(800, 500);
    load(container);
    container.forget();
    ASSERT_TRUE(get(container.control(), L"LocateSelRecord", {3}).isTrue());
    EXPECT_EQ(numbersOf(container, 12), (std::vector<double>{3, 2}));
}

TEST(Events, AnErrorInsideAHandlerIsTheHandlersOwn)
{
    Container container(800, 500);
    load(container);
    HRESULT inside = S_OK;
    container.onEvent([&](DISPID id) {
        if (id == 12) // RecordChanged
            inside = invoke(container.control(), L"UseModel", DISPATCH_PROPERTYGET).outcome;
    });
    const Answer located = call(container.control(), L"LocateSelRecord", {3});
    EXPECT_EQ(inside, DISP_E_EXCEPTION);
    EXPECT_EQ(located.outcome, S_OK);
    EXPECT_TRUE(located.value.isTrue());
}

TEST(Events, AListenerToPropertiesMayReleaseTheControl)
{
    Container container(400, 300);
    container.onChange([&](DISPID) { container.release(); });
    const Object control = container.control();
    EXPECT_EQ(put(control, L"SQLSort", L"id").outcome, S_OK);
    EXPECT_EQ(container.changedProperties().size(), 1u);
    EXPECT_FALSE(container.control());
}

TEST(Events, AreOfferedUnderTheirInterfaceAndUnderIDispatch)
{
    Container container(400, 300);
    const auto points = container.as<IConnectionPointContainer>();
    Microsoft::WRL::ComPtr<IEnumConnectionPoints> each;
    ASSERT_EQ(points->EnumConnectionPoints(&each), S_OK);
    Microsoft::WRL::ComPtr<IConnectionPoint> events;
    Microsoft::WRL::ComPtr<IConnectionPoint> properties;
    ASSERT_EQ(each->Next(1, &events, nullptr), S_OK);
    ASSERT_EQ(each->Next(1, &properties, nullptr), S_OK);
    Microsoft::WRL::ComPtr<IConnectionPoint> late;
    ASSERT_EQ(points->FindConnectionPoint(IID_IDispatch, &late), S_OK);
    EXPECT_EQ(late.Get(), events.Get());
    IID outgoing{};
    EXPECT_EQ(properties->GetConnectionInterface(&outgoing), S_OK);
    EXPECT_TRUE(outgoing == IID_IPropertyNotifySink);
    EXPECT_EQ(points->FindConnectionPoint(IID_IOleObject, &late), CONNECT_E_NOCONNECTION);
    EXPECT_EQ(events->Unadvise(4711), CONNECT_E_NOCONNECTION);
}

} // namespace
