#include "probe.h"

#include <Xm/PushB.h>

namespace kite::testing {

void buildProbe()
{
    guiButton(kProbe, 6, 80, 40, "Probe", 0);
}

bool doEventsPass()
{
    const Event pressed = toDialog(GUI_EVENT_COMMAND, kProbe);
    const int before = Recorder::instance().count(pressed);
    XmPushButtonCallbackStruct call{};
    call.reason = XmCR_ACTIVATE;
    XtCallCallbacks(outerOf(kProbe), XmNactivateCallback, &call);
    return Recorder::instance().count(pressed) > before;
}

ProbeOnChange::ProbeOnChange(Widget widget, const char* callback)
    : widget_(widget), callback_(callback)
{
    XtAddCallback(widget_, callback_, changed, this);
}

ProbeOnChange::~ProbeOnChange()
{
    XtRemoveCallback(widget_, callback_, changed, this);
}

void ProbeOnChange::changed(Widget, XtPointer self, XtPointer)
{
    auto* const probe = static_cast<ProbeOnChange*>(self);
    ++probe->changes_;
    if (doEventsPass()) ++probe->passed_;
}

}  // namespace kite::testing
