// Where a popup menu comes up.

#include <climits>

#include "popups_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

constexpr double kUnit = 2.625;  // pixels, in both directions, with the large font
constexpr double kUsualRow = 14;
const Point kPointer{411, 377};

// Where it was on the screen.
Point shownAt(const PopupPlace& place)
{
    Point corner{-1, -1};
    Robot::instance().moveTo(kPointer);
    settle();
    EXPECT_EQ(runPopup(
                  [&](Shown menu) {
                      corner = cornerOf(menu);
                      dismiss(menu);
                  },
                  place),
              0);
    return corner;
}

Point topCorner()
{
    return rectOf(guiGetTopWnd()).corner();
}

// From 1; a row of so many units.
Point units(int x, int y, double row)
{
    return topCorner() +
           Point{static_cast<int>((x + 6) * kUnit), static_cast<int>(((y - 1) * row + 7) * kUnit)};
}

void expectPlaces()
{
    EXPECT_EQ(shownAt({1, 1, 0, 0}), units(1, 1, kUsualRow));
    EXPECT_EQ(shownAt({1, 1, 1, 0}), units(1, 1, 1));
    EXPECT_EQ(shownAt({1, 2, 0, 0}), units(1, 2, kUsualRow));
    EXPECT_EQ(shownAt({1, 2, 1, 0}), units(1, 2, 1));
    EXPECT_EQ(shownAt({17, 5, 0, 0}), units(17, 5, kUsualRow));
    EXPECT_EQ(shownAt({17, 5, 1, 0}), units(17, 5, 1));
    EXPECT_EQ(shownAt({4, 3, 2, 0}), units(4, 3, kUsualRow)) << "a mode that there is not";
    EXPECT_EQ(shownAt({4, 3, -1, 0}), units(4, 3, kUsualRow));
    EXPECT_EQ(shownAt({4, 3, 0, -2}), units(4, 3, kUsualRow)) << "no control's id";
}

void expectPointerPlaces()
{
    for (const PopupPlace& place :
         {PopupPlace{0, 0, 0, 0}, PopupPlace{-1, -1, 0, 0}, PopupPlace{0, 9, 0, 0},
          PopupPlace{9, 0, 1, 0}, PopupPlace{INT_MIN, 9, 0, 0}, PopupPlace{0, 0, 0, -1},
          PopupPlace{0, 0, 1, INT_MIN}})
        EXPECT_THAT(errorsDuring([&] {
                        EXPECT_EQ(shownAt(place), kPointer)
                            << place.x << " " << place.y << " " << place.listId;
                    }),
                    IsEmpty());
}

void buildDialogOfKinds()
{
    guiEdit(2, 0, 0, 60, 0, 0);
    guiButton(3, 1, 0, 60, "Button", 0);
    guiList(7, 2, 3, 0, 60, 0);
    guiChoice(6, 5, 0, 60);
    guiText(kText, 6, 3, 0, 60, 0);
    guiTree(kTree, 9, 3, 0, 60);
    guiSlider(kSlider, 12, 2, 0, 60);
    guiSpin(kSpin, 14, 0, 60);
    guiLabel(1, 15, 30, 60, "Label");
}

void inLargeFont(const std::function<void()>& body)
{
    setDialogFont(kLargeFont);
    App::instance().run(body);
}

}  // namespace

GUI_TEST(PopupPlace, IsThePointerWithoutAPlaceFromOneOn)
{
    expectPointerPlaces();
    runDialog(buildDialogOfKinds, [](Shown) { expectPointerPlaces(); });
}

// Before the first dialog, in it, and behind it.
GUI_STARTUP_TEST(PopupPlace, IsInDialogUnitsFromTheCornerOfTheTopWindow)
{
    inLargeFont([] {
        expectPlaces();
        runDialog(buildDialogOfKinds, [](Shown dialog) {
            EXPECT_NE(topCorner(), rectOf(findWidget("v_mainwnd")).corner());
            EXPECT_EQ(topCorner(), rectOf(dialog.widget()).corner());
            expectPlaces();
        });
        expectPlaces();
    });
}

// Where the user sees it, whatever it is made of.
GUI_TEST(PopupPlace, IsBesideAControl)
{
    runDialog(buildDialogOfKinds, [](Shown dialog) {
        for (const int id :
             std::initializer_list<int>{1, 2, 3, 6, 7, kText, kTree, kSlider, kSpin}) {
            SCOPED_TRACE(id);
            const Rect control = rectOf(controlOf(id));
            const Point beside{control.right(), control.y};
            EXPECT_EQ(shownAt({0, 0, 0, id}), beside);
            EXPECT_EQ(shownAt({5, 5, 1, id}), beside) << "the control counts, not the units";
            EXPECT_EQ(shownAt({-1, 5, 0, id}), beside);
        }

        XtVaSetValues(dialog.shell(), XmNx, 217, XmNy, 143, nullptr);
        ASSERT_TRUE(pumpUntil([&] { return rectOf(dialog.widget()).x >= 217; }));
        settle();
        const Rect moved = rectOf(controlOf(3));
        EXPECT_EQ(shownAt({0, 0, 0, 3}), (Point{moved.right(), moved.y}));
    });
}

GUI_TEST(PopupPlace, IsThePointerForAControlThatThereIsNot)
{
    const auto expectReport = [](const PopupPlace& place, const char* message) {
        EXPECT_THAT(errorsDuring([&] { EXPECT_EQ(shownAt(place), kPointer); }),
                    ::testing::ElementsAre(message));
    };
    expectReport({0, 0, 0, 5}, "PopList: no dialog");
    expectReport({3, 3, 0, 5}, "PopList: no dialog");
    runDialog(buildDialogOfKinds, [&](Shown) {
        expectReport({0, 0, 0, 99}, "PopList: no control with id 99 in the dialog");
        expectReport({3, 3, 1, INT_MAX}, "PopList: no control with id 2147483647 in the dialog");
    });
}

GUI_TEST(PopupPlace, IsOnTheScreenHoweverFarItIs)
{
    for (const PopupPlace& place :
         {PopupPlace{2000, 1, 0, 0}, PopupPlace{1, 2000, 1, 0}, PopupPlace{2000, 2000, 1, 0},
          PopupPlace{1000000, 1000000, 0, 0}, PopupPlace{INT_MAX, INT_MAX, 0, 0}})
        EXPECT_EQ(runPopup(
                      [&](Shown menu) {
                          const Rect rect = wm::clientRect(menu.shell());
                          EXPECT_GE(rect.x, 0) << rect;
                          EXPECT_GE(rect.y, 0) << rect;
                          EXPECT_LE(rect.right(), 1280) << rect;
                          EXPECT_LE(rect.bottom(), 1024) << rect;
                          dismiss(menu);
                      },
                      place),
                  0);
}

// The dialog has no window yet.
GUI_TEST(PopupPlace, IsThePointerWhileADialogIsFilled)
{
    Point corner;
    Point unknown;
    recorder.onEvent(GUI_EVENT_INIT, [&] {
        corner = shownAt({0, 0, 0, 0});
        EXPECT_THAT(errorsDuring([&] { unknown = shownAt({0, 0, 0, 9}); }), ::testing::SizeIs(1));
        guiClose(1);
    });
    ASSERT_EQ(guiDialog("Dialog"), 0);
    guiButton(1, 0, 0, 60, "Button", 0);
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 1);
    EXPECT_EQ(corner, kPointer);
    EXPECT_EQ(unknown, kPointer);
}

// What lies beyond the screen is brought back to its far edge, however far it lies.
GUI_TEST(PopupPlace, IsOnTheScreenForTheLargestNumbers)
{
    const Point far = shownAt({2000, 2000, 1, 0});
    for (const int units : {16000, 40000, 0x40000000, INT_MAX}) {
        SCOPED_TRACE(units);
        EXPECT_EQ(shownAt({units, units, 1, 0}), far);
        EXPECT_EQ(shownAt({units, units, 0, 0}), far);
    }
}
