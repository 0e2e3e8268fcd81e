#include "simple_controls_support.h"

#include <X11/IntrinsicP.h>
#include <Xm/ToggleB.h>

#include <cstdint>

namespace kite::testing {

namespace {

constexpr int kCode = 7;

std::int32_t tagOf(Widget widget)
{
    return static_cast<std::int32_t>(
        reinterpret_cast<std::intptr_t>(resource<XtPointer>(widget, XmNuserData)));
}

}  // namespace

void setDialogFont(const std::string& font)
{
    HostDouble::instance().profile().setString("fnamm", font);
}

void runDialog(const std::function<void()>& build, const std::function<void(Shown)>& use)
{
    ASSERT_EQ(guiDialog("Controls"), 0);
    build();
    App::instance().whenShown("v_dlgbbr", [&](Shown dialog) {
        EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
        use(dialog);
        guiClose(kCode);
    });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), kCode);
}

Widget newestBoard()
{
    const std::vector<Widget> boards = findWidgets("v_dlgbbr");
    return boards.empty() ? nullptr : boards.back();
}

std::vector<Widget> controlsOfBoard()
{
    Widget const board = newestBoard();
    if (!board) return {};
    std::vector<Widget> controls = childrenOf(board);
    std::erase_if(controls, [](Widget control) { return control->core.being_destroyed != 0; });
    return controls;
}

Widget lastControl()
{
    const std::vector<Widget> controls = controlsOfBoard();
    return controls.empty() ? nullptr : controls.back();
}

Widget controlOf(int id)
{
    for (Widget const control : controlsOfBoard())
        if (tagOf(control) >> 16 == id) return control;
    ADD_FAILURE() << "There is no control with id " << id;
    return nullptr;
}

Rect placeOf(Widget widget)
{
    return {resource<Position>(widget, XmNx), resource<Position>(widget, XmNy),
            resource<Dimension>(widget, XmNwidth), resource<Dimension>(widget, XmNheight)};
}

bool hasFocus(int id)
{
    return XmGetFocusWidget(newestBoard()) == controlOf(id);
}

bool isToggled(int id)
{
    Widget const control = controlOf(id);
    return control && XmToggleButtonGetState(control);
}

}  // namespace kite::testing
