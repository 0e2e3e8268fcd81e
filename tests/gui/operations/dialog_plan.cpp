#include "dialog_plan.h"

#include <Xm/ScrolledW.h>

#include "hand_made_controls.h"

namespace kite::testing {

namespace {

constexpr int kCode = 5;

int idOf(Widget child)
{
    const auto tag = reinterpret_cast<std::intptr_t>(resource<XtPointer>(child, XmNuserData));
    return static_cast<std::int32_t>(tag) >> 16;
}

// Until the dialog is shown: closed in its first event it would not be.
void fillAndMaybeClose(const DialogPlan& plan)
{
    plan.fill();
    if (!plan.look) guiClose(kCode);
}

}  // namespace

void runDialog(const DialogPlan& plan)
{
    ASSERT_EQ(guiDialog("Operations"), 0);
    plan.build();
    guiUseAbsPos(1);
    guiLabel(GUI_ANONYMOUS, kRoomHeight, kRoomWidth, 1, "");
    auto& recorder = Recorder::instance();
    recorder.onEvent(GUI_EVENT_INIT, [&] { fillAndMaybeClose(plan); });
    if (plan.look)
        Script::instance().whenShown("v_dlgbbr", [&](Shown dialog) {
            plan.look(dialog);
            guiClose(kCode);
        });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), kCode);
    recorder.onEvent(GUI_EVENT_INIT, [] {});
}

Widget board()
{
    return guiGetTopWnd();
}

Widget outerOf(int id)
{
    for (Widget const child : childrenOf(board()))
        if (!XtIsShell(child) && idOf(child) == id) return child;
    return nullptr;
}

Widget innerOf(int id)
{
    Widget const outer = outerOf(id);
    return outer && XmIsScrolledWindow(outer) ? resource<Widget>(outer, XmNworkWindow) : outer;
}

}  // namespace kite::testing
