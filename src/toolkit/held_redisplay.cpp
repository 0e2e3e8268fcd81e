#include "toolkit/held_redisplay.h"

#include <Xm/ScrolledW.h>
#include <Xm/Text.h>

#include "toolkit/display_closing.h"
#include "toolkit/never_destroyed.h"
#include "toolkit/resources.h"
#include "toolkit/widget_ref.h"

namespace kite {

namespace {

using Clock = std::chrono::steady_clock;

// Raw handlers: they ask the server for nothing that the widget does not get already.
constexpr EventMask kEvents = KeyPressMask | KeyReleaseMask | ButtonPressMask | ButtonReleaseMask |
                              PointerMotionMask | ButtonMotionMask | EnterWindowMask |
                              LeaveWindowMask | FocusChangeMask | ExposureMask;

struct State {
    bool isHeld = false;        // raised by hold, lowered by whatever ends it
    WidgetRef text;             // the one that is held
    Clock::time_point painted;  // when it was last
    XtIntervalId timeOut = 0;   // while something waits
    Widget watched = nullptr;   // the text that has the handlers below, until it is destroyed
};
State& state = neverDestroyed<State>();

void stopTimeOut()
{
    if (state.timeOut) XtRemoveTimeOut(state.timeOut);
    state.timeOut = 0;
}

void timeIsOver(XtPointer, XtIntervalId*)
{
    state.timeOut = 0;
    paintHeldText();
}

// Clicks, keys and scrolling find the text as it is shown; and what was exposed is not left blank.
void eventComes(Widget, XtPointer, XEvent*, Boolean*)
{
    paintHeldText();
}

void forget()
{
    stopTimeOut();
    state.isHeld = false;
    state.watched = nullptr;
}

void textDestroyed(Widget text, XtPointer, XtPointer)
{
    if (state.text.get() == text) state.text.reset();
    if (state.watched == text) forget();
}

// Its widgets are not destroyed, and must not be touched again.
void displayCloses(Display* display)
{
    if (!state.watched || XtDisplay(state.watched) != display) return;
    forget();
    state.text.abandon();
}

void watchEvents(Widget widget)
{
    if (widget) XtInsertRawEventHandler(widget, kEvents, False, eventComes, nullptr, XtListHead);
}

void watch(Widget text)
{
    if (state.watched == text) return;
    state.watched = text;
    XtRemoveCallback(text, XmNdestroyCallback, textDestroyed, nullptr);
    XtAddCallback(text, XmNdestroyCallback, textDestroyed, nullptr);
    callBeforeClosing(XtDisplay(text), displayCloses);
    watchEvents(text);
    Widget const scroller = XtParent(text);
    if (!XmIsScrolledWindow(scroller)) return;
    watchEvents(resource<Widget>(scroller, XmNhorizontalScrollBar));
    watchEvents(resource<Widget>(scroller, XmNverticalScrollBar));
}

void hold(Widget text)
{
    watch(text);
    state.text.reset(text);
    state.isHeld = true;
    XmTextDisableRedisplay(text);
}

void paintLater(Clock::duration rest)
{
    if (state.timeOut) return;
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(rest).count();
    state.timeOut = XtAppAddTimeOut(XtWidgetToApplicationContext(state.text.get()),
                                    static_cast<unsigned long>(wait), timeIsOver, nullptr);
}

}  // namespace

HeldRedisplay::HeldRedisplay(Widget text)
{
    if (state.isHeld && state.text.get() == text) return;
    paintHeldText();
    hold(text);
}

HeldRedisplay::~HeldRedisplay()
{
    if (!state.isHeld) return;
    const auto rest = state.painted + kPaintInterval - Clock::now();
    if (rest.count() <= 0 || !state.text)
        paintHeldText();
    else
        paintLater(rest);
}

void paintOverdueText()
{
    if (state.isHeld && Clock::now() - state.painted >= kPaintInterval) paintHeldText();
}

void paintHeldText()
{
    if (!state.isHeld) return;
    state.isHeld = false;
    stopTimeOut();
    Widget const text = state.text.get();
    state.text.reset();
    if (!text) return;
    XmTextEnableRedisplay(text);
    XFlush(XtDisplay(text));
    state.painted = Clock::now();
}

}  // namespace kite
