// Mouse button 3 over a control: what the host is told.

#include <Xm/List.h>

#include "popups_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int kCancel = 0, kLabel = 1, kEdit = 2, kButton = 3, kCheck = 4, kRadio = 5, kChoice = 6,
              kList = 7, kLine = 20;

constexpr int kWidth = 60;
constexpr int kItems = 30;

void build()
{
    guiButton(kButton, 0, 0, kWidth, "Button", 0);
    guiCheck(kCheck, 1, 0, kWidth, "Check");
    guiRadio(kRadio, 2, 0, kWidth, "Radio");
    guiChoice(kChoice, 3, 0, kWidth);
    guiSlider(kSlider, 4, 2, 0, kWidth);
    guiSpin(kSpin, 6, 0, kWidth);
    guiLabel(kLabel, 7, 0, kWidth, "Label");
    guiProgress(kProgress, 8, 2, 0, kWidth);
    guiLine(kLine, 10, 1, 0, kWidth);
    guiTree(kTree, 0, 5, 80, kWidth);
    guiList(kList, 5, 5, 80, kWidth, GUI_EXTENDED);
    guiButton(kCancel, 12, 0, kWidth, "Cancel", 0);
}

void runBuilt(
    const std::function<void()>& use, const std::function<void()>& fill = [] {})
{
    runFilled(build, fill, [&](Shown) { use(); });
}

std::vector<Event> eventsOfClick(Widget widget, Point offset, unsigned button = RightButton)
{
    return eventsDuring([&] { Robot::instance().click(widget, button, offset); });
}

Event context(int id, int x, int y = 0)
{
    return toDialog(GUI_EVENT_CONTEXT, id, x, y);
}

// Corners and middle.
std::vector<Point> pointsOf(Widget widget)
{
    const Rect rect = rectOf(widget);
    return {{0, 0}, {rect.width / 2, rect.height / 2}, {rect.width - 1, rect.height - 1}};
}

// Of a point within a part of a control.
Point inControl(int id, Widget part, Point offset)
{
    const Point origin = rectOf(controlOf(id)).corner();
    const Point place = rectOf(part).corner() + offset;
    return {place.x - origin.x, place.y - origin.y};
}

void expectContextOverPart(int id, Widget part)
{
    ASSERT_NE(part, nullptr);
    for (const Point offset : pointsOf(part)) {
        const Point place = inControl(id, part, offset);
        EXPECT_THAT(eventsOfClick(part, offset), ElementsAre(context(id, place.x, place.y)))
            << offset;
    }
}

}  // namespace

GUI_TEST(Context, TellsThePlaceInTheControl)
{
    runBuilt([] {
        for (const int id :
             std::initializer_list<int>{kButton, kCheck, kRadio, kChoice, kSpin, kCancel}) {
            SCOPED_TRACE(id);
            for (const Point offset : pointsOf(controlOf(id)))
                EXPECT_THAT(eventsOfClick(controlOf(id), offset),
                            ElementsAre(context(id, offset.x, offset.y)))
                    << offset;
        }
    });
}

GUI_TEST(Context, OfComposedControlsTellsThePlaceInTheWhole)
{
    runBuilt([] {
        expectContextOverPart(kChoice, resource<Widget>(controlOf(kChoice), XmNtextField));
        expectContextOverPart(kSpin, innerOf(kSpin));
        expectContextOverPart(kSlider, innerOf(kSlider));
        // Arrows are at the right.
        for (const int id : std::initializer_list<int>{kChoice, kSpin}) {
            const Rect rect = rectOf(controlOf(id));
            for (const int y : {3, rect.height - 4})
                EXPECT_THAT(eventsOfClick(controlOf(id), {rect.width - 6, y}),
                            ElementsAre(context(id, rect.width - 6, y)));
        }
    });
}

GUI_TEST(Context, OfATreeTellsThePlaceAmongItsItems)
{
    const auto expectAt = [](Point offset) {
        Widget const items = innerOf(kTree);
        Widget const view = viewOf(kTree);
        const Point origin = rectOf(items).corner();
        const Point place = rectOf(view).corner() + offset;
        EXPECT_THAT(eventsOfClick(view, offset),
                    ElementsAre(context(kTree, place.x - origin.x, place.y - origin.y)));
    };
    runBuilt([&] {
        expectAt({2, 2});
        expectAt({50, 40});
        fillItems(kTree, 3);
        settle();
        const Point item = middleOfItem(kTree, 2);
        EXPECT_THAT(eventsOfClick(innerOf(kTree), item),
                    ElementsAre(context(kTree, item.x, item.y)));
        const Rect view = rectOf(viewOf(kTree));
        expectAt({view.width - 3, view.height - 3});  // below the items
        guiDelTree(kTree, 2);
        guiDelTree(kTree, 3);
        for (int key = 10; key < 10 + kItems; ++key) guiAddTree(kTree, 0, key, "Item");
        settle();
        robot.wheel(viewOf(kTree), 3);
        settle();
        EXPECT_LT(rectOf(innerOf(kTree)).y, rectOf(viewOf(kTree)).y) << "scrolled";
        expectAt({5, 5});
        expectAt({40, 30});
    });
}

GUI_TEST(Context, OfAListTellsThePositionOfTheItem)
{
    const auto clickItem = [](int position) {
        Position x = 0, y = 0;
        Dimension width = 0, height = 0;
        EXPECT_TRUE(XmListPosToBounds(innerOf(kList), position, &x, &y, &width, &height));
        return eventsOfClick(innerOf(kList), {x + width / 2, y + height / 2});
    };
    runBuilt([&] {
        const Rect view = rectOf(innerOf(kList));
        const Point bottom{view.width / 2, view.height - 6};
        EXPECT_THAT(eventsOfClick(innerOf(kList), bottom), ElementsAre(context(kList, 0)))
            << "an empty list";
        for (int i = 0; i < 3; ++i) guiAppendItem(kList, "Item");
        settle();
        for (const int position : {1, 2, 3})
            EXPECT_THAT(clickItem(position), ElementsAre(context(kList, position)));
        EXPECT_THAT(eventsOfClick(innerOf(kList), bottom), ElementsAre(context(kList, 4)))
            << "below the last one";
        for (int i = 3; i < kItems; ++i) guiAppendItem(kList, "Item");
        guiSetTop(kList, 12);
        settle();
        for (const int position : {13, 14, 15})
            EXPECT_THAT(clickItem(position), ElementsAre(context(kList, position)));
    });
}

GUI_TEST(Context, IsNotRaisedByOtherButtonsAndKinds)
{
    const auto fill = [] {
        fillItems(kTree, kItems);
        for (int i = 0; i < kItems; ++i) guiAppendItem(kList, "Item");
    };
    const auto use = [] {
        for (const int id : std::initializer_list<int>{kTree, kList})
            EXPECT_THAT(only(GUI_EVENT_CONTEXT, eventsOfClick(verticalBarOf(id), {5, 5})),
                        IsEmpty())
                << "scroll bar of " << id;
        for (const int id : std::initializer_list<int>{kLabel, kProgress})
            EXPECT_THAT(eventsOfClick(controlOf(id), {1, 0}), IsEmpty()) << id;
        EXPECT_THAT(eventsOfClick(newestBoard(), {2, 2}), IsEmpty()) << "no control";
        EXPECT_THAT(eventsDuring([] {
                        Robot::instance().moveTo(rectOf(controlOf(kLine)).centre());
                        Robot::instance().click(RightButton);
                    }),
                    IsEmpty())
            << "a line";
        for (const int id : std::initializer_list<int>{kButton, kCheck, kRadio, kSpin})
            for (const unsigned button : {LeftButton, MiddleButton})
                EXPECT_THAT(only(GUI_EVENT_CONTEXT, eventsOfClick(controlOf(id), {4, 4}, button)),
                            IsEmpty())
                    << id << ", button " << button;
    };
    runBuilt(use, fill);
}

GUI_TEST(Context, IsNotRaisedByDisabledAndAnonymousControls)
{
    const std::initializer_list<int> all = {kButton, kCheck, kRadio,  kChoice,
                                            kList,   kTree,  kSlider, kSpin};
    runBuilt(
        [&] {
            for (const int id : all)
                EXPECT_THAT(eventsOfClick(controlOf(id), {4, 4}), IsEmpty()) << id;
            for (const int id : std::initializer_list<int>{kChoice, kSlider, kSpin}) {
                const Rect rect = rectOf(controlOf(id));
                EXPECT_THAT(eventsOfClick(controlOf(id), {rect.width / 2, rect.height / 2}),
                            IsEmpty())
                    << id;
            }
        },
        [&] {
            for (const int id : all) guiEnable(id, 0);
        });

    recorder.forgetReactions();
    std::vector<Widget> anonymous;
    runDialog(
        [&] {
            guiButton(1, 0, 0, kWidth, "Button", 0);
            guiSlider(-1, 1, 2, 0, kWidth);
            anonymous.push_back(lastControl());
            guiSpin(-1, 3, 0, kWidth);
            anonymous.push_back(lastControl());
            guiLabel(-1, 4, 0, kWidth, "Label");
            anonymous.push_back(lastControl());
            guiProgress(-1, 5, 2, 0, kWidth);
            anonymous.push_back(lastControl());
        },
        [&](Shown) {
            for (Widget const control : anonymous)
                for (const Point offset : pointsOf(control))
                    EXPECT_THAT(eventsOfClick(control, offset), IsEmpty()) << XtName(control);
        });
}

// A control that the keyboard is in keeps it, and is not left.
GUI_TEST(Context, LeavesTheKeyboardWhereItIs)
{
    runDialog(
        [] {
            guiEdit(kEdit, 0, 0, kWidth, 0, 0);
            guiButton(kButton, 1, 0, kWidth, "Button", 0);
            guiCheck(kCheck, 2, 0, kWidth, "Check");
        },
        [](Shown) {
            ASSERT_TRUE(hasFocus(kEdit));
            for (const int id : std::initializer_list<int>{kButton, kCheck})
                EXPECT_THAT(eventsOfClick(controlOf(id), {4, 4}), ElementsAre(context(id, 4, 4)));
            EXPECT_TRUE(hasFocus(kEdit));
            EXPECT_FALSE(isToggled(kCheck));
        });
}

// Controls are those of the top window.
GUI_TEST(Context, OfAControlThatIsNotThereIsMisuse)
{
    runDialog([] { guiButton(kButton, 1, 0, kWidth, "Button", 0); },
              [](Shown) {
                  Widget const dialog = guiGetTopWnd();
                  Widget const button = controlOf(kButton);
                  Widget const other = findWidget("v_text");
                  const auto clickWithTop = [&](Widget top) {
                      guiSetTopWnd(top);
                      Recorder::instance().clear();
                      const auto errors =
                          errorsDuring([&] { Robot::instance().click(button, RightButton); });
                      EXPECT_THAT(Recorder::instance().events(), IsEmpty());
                      guiSetTopWnd(dialog);
                      return errors;
                  };
                  EXPECT_THAT(clickWithTop(findWidget("v_mainwnd")),
                              ElementsAre("Mouse: no dialog"));
                  EXPECT_THAT(clickWithTop(other),
                              ElementsAre("Mouse: no control with id 3 in the dialog"));
                  EXPECT_THAT(eventsOfClick(button, {4, 4}), ElementsAre(context(kButton, 4, 4)));
              });
}

GUI_STARTUP_TEST(Context, EndsTheHovering)
{
    host.profile().setString("mouse_hover", "0.4");
    app.run([this] {
        runBuilt([this] {
            for (const int id : std::initializer_list<int>{kButton, kChoice, kList, kTree, kSpin}) {
                SCOPED_TRACE(id);
                robot.moveTo(newestBoard(), Point{2, 2});
                robot.moveTo(controlOf(id), Point{6, 6});
                recorder.clear();
                robot.press(RightButton);
                robot.release(RightButton);
                EXPECT_TRUE(pumpUntil([&] { return recorder.count(GUI_EVENT_CONTEXT) == 1; }));
                EXPECT_TRUE(holdsFor([&] { return recorder.count(GUI_EVENT_HOVER) == 0; },
                                     milliseconds{600}));
            }
        });
    });
}
