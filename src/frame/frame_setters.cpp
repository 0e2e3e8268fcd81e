// frame_setters.cpp: what the host can change about the frame.

#include <Xm/Scale.h>
#include <Xm/Text.h>
#include <Xm/Xm.h>
#include <kitegui.h>

#include <algorithm>
#include <string>

#include "frame/app_info.h"
#include "frame/dispatcher.h"
#include "frame/main_frame.h"
#include "toolkit/compound_string.h"
#include "toolkit/displayable_text.h"

namespace kite::frame {

namespace {

constexpr int kLargestCoordinate = 32767;  // of X, for positions; sizes stay below it too
constexpr int kFullGauge = 100;

const char* orElse(const char* text, const char* whenEmpty)
{
    return text && *text ? text : whenEmpty;
}

// With text selected only that is removed, the same as the user's own "clear".
void clearOutput(Widget text)
{
    XmTextPosition left = 0;
    XmTextPosition right = 0;
    const bool isSelected = XmTextGetSelectionPosition(text, &left, &right) && left >= 0 &&
                            right > left && right <= XmTextGetLastPosition(text);
    if (isSelected)
        XmTextReplace(text, left, right, const_cast<char*>(""));
    else
        XmTextSetString(text, const_cast<char*>(""));
}

void setStatusLine(Widget line, const char* text)
{
    const CompoundString label{orElse(text, " ")};
    XtVaSetValues(line, XmNlabelString, label.get(), nullptr);
}

// A negative argument keeps what the shell has.
void setUnlessNegative(Widget shell, const char* name, int value)
{
    if (value >= 0)
        XtVaSetValues(shell, const_cast<char*>(name), std::min(value, kLargestCoordinate), nullptr);
}

}  // namespace

}  // namespace kite::frame

using namespace kite;

void guiSetFrameTitle(const char* title)
{
    Widget const shell = frame::widgets().shell;
    if (!shell) return;
    const std::string text = displayableText(frame::orElse(title, appTitle()));
    XtVaSetValues(shell, XmNtitle, text.c_str(), nullptr);
}

void guiSetStatusLine(const char* text)
{
    Widget const line = frame::widgets().statusLine;
    if (!line) return;
    frame::setStatusLine(line, text);
    XmUpdateDisplay(frame::widgets().mainWindow);
}

void guiSetProgress(int percent)
{
    Widget const gauge = frame::widgets().gauge;
    if (!gauge) return;
    XmScaleSetValue(gauge, std::clamp(percent, 0, frame::kFullGauge));
    XmUpdateDisplay(gauge);
}

int guiMoveWin(int x, int y, int w, int h)
{
    Widget const shell = frame::widgets().shell;
    if (!shell) return 0;
    const bool isIcon = w == 0 || h == 0;
    XtVaSetValues(shell, XmNiconic, isIcon, nullptr);
    if (isIcon) return 0;
    frame::setUnlessNegative(shell, XmNx, x);
    frame::setUnlessNegative(shell, XmNy, y);
    frame::setUnlessNegative(shell, XmNwidth, w);
    frame::setUnlessNegative(shell, XmNheight, h);
    XtMapWidget(shell);
    return 0;
}

int guiRestart(void)
{
    dispatcher::setStarted(false);
    if (!frame::widgets().mainWindow) return 0;
    frame::recreateToolbar();
    const frame::Widgets& widgets = frame::widgets();
    guiSetFrameTitle(nullptr);
    frame::clearOutput(widgets.text);
    frame::setStatusLine(widgets.statusLine, nullptr);
    XmScaleSetValue(widgets.gauge, 0);
    XmUpdateDisplay(widgets.mainWindow);
    return 0;
}
