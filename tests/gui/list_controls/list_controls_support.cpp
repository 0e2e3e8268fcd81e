#include "list_controls_support.h"

#include <Xm/List.h>

#include <cstdint>

namespace kite::testing {

namespace {

constexpr int kCode = 7;
constexpr int kArrowFromRight = 8;  // pixels, well within the arrow

std::int32_t tagOf(Widget widget)
{
    return static_cast<std::int32_t>(
        reinterpret_cast<std::intptr_t>(resource<XtPointer>(widget, XmNuserData)));
}

bool isScrolled(Widget control)
{
    return std::string{XtName(control)} == "v_dlgscroll";
}

class HeldModifiers {
public:
    explicit HeldModifiers(unsigned modifiers) : modifiers_(modifiers)
    {
        if (modifiers_ & Shift) Robot::instance().keyDown(XK_Shift_L);
        if (modifiers_ & Control) Robot::instance().keyDown(XK_Control_L);
    }
    ~HeldModifiers()
    {
        if (modifiers_ & Control) Robot::instance().keyUp(XK_Control_L);
        if (modifiers_ & Shift) Robot::instance().keyUp(XK_Shift_L);
    }
    HeldModifiers(const HeldModifiers&) = delete;
    HeldModifiers& operator=(const HeldModifiers&) = delete;

private:
    unsigned modifiers_;
};

}  // namespace

void setDialogFont(const std::string& font)
{
    HostDouble::instance().profile().setString("fnamm", font);
}

void runDialog(const DialogPlan& plan)
{
    ASSERT_EQ(guiDialog("Lists"), 0);
    plan.build();
    Recorder::instance().onEvent(GUI_EVENT_INIT, plan.fill);
    App::instance().whenShown("v_dlgbbr", [&](Shown dialog) {
        EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
        plan.use(dialog);
        guiClose(kCode);
    });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), kCode);
}

void appendItems(int id, int count)
{
    for (int i = 0; i < count; ++i) guiAppendItem(id, ("Item " + std::to_string(i)).c_str());
}

Widget newestBoard()
{
    const std::vector<Widget> boards = findWidgets("v_dlgbbr");
    return boards.empty() ? nullptr : boards.back();
}

Widget controlOf(int id)
{
    Widget const board = newestBoard();
    if (board)
        for (Widget const control : childrenOf(board))
            if (tagOf(control) >> 16 == id) return control;
    ADD_FAILURE() << "There is no control with id " << id;
    return nullptr;
}

Widget listOf(int id)
{
    Widget const control = controlOf(id);
    if (!control) return nullptr;
    return resource<Widget>(control, isScrolled(control) ? XmNworkWindow : XmNlist);
}

Widget fieldOf(int id)
{
    Widget const control = controlOf(id);
    return control ? resource<Widget>(control, XmNtextField) : nullptr;
}

Widget verticalBarOf(int id)
{
    Widget const control = controlOf(id);
    return control ? resource<Widget>(control, XmNverticalScrollBar) : nullptr;
}

Rect placeOf(Widget widget)
{
    return {resource<Position>(widget, XmNx), resource<Position>(widget, XmNy),
            resource<Dimension>(widget, XmNwidth), resource<Dimension>(widget, XmNheight)};
}

bool hasFocus(Widget part)
{
    return part && XmGetFocusWidget(newestBoard()) == part;
}

std::vector<int> selectedItems(int id)
{
    Widget const list = listOf(id);
    const int* const positions = resource<int*>(list, XmNselectedPositions);
    std::vector<int> items;
    for (int i = 0; i < resource<int>(list, XmNselectedPositionCount); ++i)
        items.push_back(positions[i] - 1);
    return items;
}

int cursorOf(int id)
{
    return XmListGetKbdItemPos(listOf(id)) - 1;
}

int topOf(int id)
{
    return resource<int>(listOf(id), XmNtopItemPosition) - 1;
}

Point middleOfItem(Widget list, int index)
{
    Position x = 0, y = 0;
    Dimension width = 0, height = 0;
    EXPECT_TRUE(XmListPosToBounds(list, index + 1, &x, &y, &width, &height))
        << "Item " << index << " is not in view";
    return {x + 10, y + height / 2};
}

void clickItem(int id, int index, unsigned modifiers)
{
    Widget const list = listOf(id);
    const HeldModifiers held{modifiers};
    Robot::instance().click(list, LeftButton, middleOfItem(list, index));
}

void doubleClickItem(int id, int index)
{
    Widget const list = listOf(id);
    Robot::instance().doubleClick(list, LeftButton, middleOfItem(list, index));
}

void clickArrow(int id)
{
    Widget const box = controlOf(id);
    const Rect place = placeOf(box);
    Robot::instance().click(box, LeftButton,
                            Point{place.width - kArrowFromRight, place.height / 2});
}

bool isOpen(int id)
{
    return isShown(listOf(id));
}

bool waitUntilOpen(int id)
{
    if (!pumpUntil([&] { return isOpen(id); }) || !screen::waitUntilPainted(listOf(id)))
        return false;
    const milliseconds doubleClickTime{XtGetMultiClickTime(XtDisplay(App::instance().shell()))};
    return holdsFor([&] { return isOpen(id); }, doubleClickTime + milliseconds{50});
}

bool waitUntilClosed(int id)
{
    return pumpUntil([&] { return !isOpen(id); });
}

Event selected(int id, int index, int isDouble)
{
    return toDialog(GUI_EVENT_SELECT, id, index, isDouble);
}

Event picked(int id, int position)
{
    return toDialog(GUI_EVENT_VALUE, id, position);
}

Event typed(int id)
{
    return toDialog(GUI_EVENT_TEXT_CHANGED, id);
}

Event scrolled(int id, int top)
{
    return toDialog(GUI_EVENT_SCROLLED, id, top);
}

Event left(int id)
{
    return toDialog(GUI_EVENT_LEFT, id, 1);
}

}  // namespace kite::testing
