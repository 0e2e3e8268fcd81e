// frame_setters.cpp: what the host can change about the frame.

#include <Xm/Scale.h>
#include <Xm/Xm.h>
#include <kitegui.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "frame/app_info.h"
#include "frame/closing.h"
#include "frame/decoration.h"
#include "frame/dispatcher.h"
#include "frame/hover.h"
#include "frame/main_frame.h"
#include "toolkit/compound_string.h"
#include "toolkit/displayable_text.h"
#include "toolkit/held_redisplay.h"
#include "toolkit/resources.h"

namespace kite::frame {

namespace {

constexpr int kLargestCoordinate = 32767;  // of X, for positions; sizes stay below it too
constexpr int kFullGauge = 100;

const char* orElse(const char* text, const char* whenEmpty)
{
    return text && *text ? text : whenEmpty;
}

void setStatusLine(Widget line, const char* text)
{
    std::string oneLine{orElse(text, " ")};
    std::replace(oneLine.begin(), oneLine.end(), '\n', ' ');  // there is room for one
    const CompoundString label{oneLine.c_str()};
    XtVaSetValues(line, XmNlabelString, label.get(), nullptr);
}

// Negative values leave the shell as it is.
settings::Geometry clamped(const settings::Geometry& place)
{
    return {std::min(place.x, kLargestCoordinate), std::min(place.y, kLargestCoordinate),
            std::min(place.width, kLargestCoordinate), std::min(place.height, kLargestCoordinate)};
}

// All at once: the window manager answers every change, and what it makes of one would be changed by
// the next.
void place(Widget shell, const settings::Geometry& place)
{
    const std::pair<char*, int> wanted[] = {
        {XmNx, place.x}, {XmNy, place.y}, {XmNwidth, place.width}, {XmNheight, place.height}};
    std::array<Arg, 5> arguments{};
    Cardinal count = 0;
    XtSetArg(arguments[count], XmNiconic, False);
    ++count;
    for (const auto& [resource, value] : wanted) {
        if (value < 0) continue;
        XtSetArg(arguments[count], resource, value);
        ++count;
    }
    XtSetValues(shell, arguments.data(), count);
}

void moveBy(Widget shell, int x, int y, int offset)
{
    XWindowChanges place{};
    place.x = x + offset;
    place.y = y + offset;
    const unsigned int given = (x >= 0 ? CWX : 0U) | (y >= 0 ? CWY : 0U);
    XConfigureWindow(XtDisplay(shell), XtWindow(shell), given, &place);
}

// The toolkit sends nothing for a coordinate that the shell has already; but it is the decoration that
// the window manager moves there, and the shell has stood further in. Some managers do not move either
// when they hear of the place where the client is: they hear of another one first.
void moveDecorated(Widget shell, int x, int y)
{
    moveBy(shell, x, y, -1);
    moveBy(shell, x, y, 0);
}

void moveAndResize(Widget shell, const settings::Geometry& wanted)
{
    const bool isKnownX = wanted.x >= 0 && wanted.x == resource<Position>(shell, XmNx);
    const bool isKnownY = wanted.y >= 0 && wanted.y == resource<Position>(shell, XmNy);
    noteRequest(shell, wanted);
    place(shell, wanted);
    if (isKnownX || isKnownY) moveDecorated(shell, wanted.x, wanted.y);
    XtMapWidget(shell);
}

// The shell takes itself for an icon until the window manager's word for the opposite is read, and does
// nothing then.
void iconify(Widget shell)
{
    if (resource<Boolean>(shell, XmNiconic))
        XIconifyWindow(XtDisplay(shell), XtWindow(shell), XScreenNumberOfScreen(XtScreen(shell)));
    else
        XtVaSetValues(shell, XmNiconic, True, nullptr);
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
    paintHeldText();
    XmUpdateDisplay(frame::widgets().mainWindow);
}

void guiSetProgress(int percent)
{
    Widget const gauge = frame::widgets().gauge;
    if (!gauge) return;
    XmScaleSetValue(gauge, std::clamp(percent, 0, frame::kFullGauge));
    paintHeldText();
    XmUpdateDisplay(gauge);
}

int guiMoveWin(int x, int y, int w, int h)
{
    Widget const shell = frame::widgets().shell;
    if (!shell || !XtIsRealized(shell)) return 0;
    if (w == 0 || h == 0)
        frame::iconify(shell);
    else
        frame::moveAndResize(shell, frame::clamped({x, y, w, h}));
    return 0;
}

int guiRestart(void)
{
    dispatcher::setStarted(false);
    frame::restartDialogs();
    frame::dropCommands();
    if (!frame::widgets().mainWindow) return 0;
    hover::leave();  // the button that it belongs to goes
    frame::recreateToolbar();
    const frame::Widgets& widgets = frame::widgets();
    guiSetFrameTitle(nullptr);
    guiClearOutput();
    if (widgets.statusLine) frame::setStatusLine(widgets.statusLine, nullptr);
    if (widgets.gauge) XmScaleSetValue(widgets.gauge, 0);
    paintHeldText();
    XmUpdateDisplay(widgets.mainWindow);
    return 0;
}
