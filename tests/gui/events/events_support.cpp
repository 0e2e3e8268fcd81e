#include "events_support.h"

#include <Xm/BulletinB.h>

#include <deque>

namespace kite::testing {

namespace {

Event toRaise;

int raiseIt(GuiHandler dispatch)
{
    return dispatch(toRaise.event, toRaise.id, toRaise.a, toRaise.b);
}

void runAction(Widget, XtPointer action, XtPointer)
{
    (*static_cast<const std::function<void()>*>(action))();
}

}  // namespace

void raiseEvent(int event, int id, int a, int b)
{
    toRaise = {Handler::Window, event, id, a, b};
    guiRunPlugin(raiseIt);
}

Widget makeWindow(GuiHandler handler)
{
    char name[] = "window";
    Arg arguments[1];
    XtSetArg(arguments[0], XmNuserData, reinterpret_cast<XtPointer>(handler));
    return XmCreateBulletinBoardDialog(guiGetTopWnd(), name, arguments, 1);
}

void onCallback(Widget widget, const char* name, const std::function<void()>& action)
{
    static std::deque<std::function<void()>> actions;  // as long as any widget may call them
    actions.push_back(action);
    XtAddCallback(widget, name, runAction, &actions.back());
}

}  // namespace kite::testing
