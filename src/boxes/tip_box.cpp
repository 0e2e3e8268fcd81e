// tip_box.cpp: a small note at the pointer.

#include <Xm/Label.h>
#include <Xm/RowColumn.h>
#include <kitegui.h>

#include "frame/top_window.h"
#include "toolkit/colours.h"
#include "toolkit/compound_string.h"
#include "toolkit/nested_loop.h"
#include "toolkit/never_destroyed.h"
#include "toolkit/screen_point.h"
#include "toolkit/widget_ref.h"

namespace kite {

namespace {

constexpr Colour kPaleYellow{0xFFFF, 0xFFFF, 0xFFDD};
constexpr EventMask kWatchedEvents[] = {ButtonPressMask, EnterWindowMask, LeaveWindowMask};

struct State {
    int result = 0;   // GUI_TIP_TAKEN_DOWN while a note waits; shared by notes within notes
    Point shownAt{};  // where the pointer was, on the screen
    WidgetRef note;   // the latest note; stays until the next one is made
};
State& state = neverDestroyed<State>();

void happened(Widget, XtPointer, XEvent* event, Boolean*)
{
    // The note comes up under the pointer: a crossing without a movement is the note's, not the user's.
    const bool isCrossing = event->type != ButtonPress;
    if (isCrossing && Point{event->xcrossing.x_root, event->xcrossing.y_root} == state.shownAt)
        return;
    state.result = 0;
}

// Always below the main window, also while a dialog runs.
Widget createNote(Pixel background)
{
    Widget const window = mainWindow();
    if (!window) return nullptr;
    Arg arguments[3];
    XtSetArg(arguments[0], XmNshadowThickness, 1);
    XtSetArg(arguments[1], XmNhighlightThickness, 0);
    XtSetArg(arguments[2], XmNbackground, background);
    return XmCreateSimplePopupMenu(window, const_cast<char*>("p_menu"), arguments, 3);
}

Widget createLabel(Widget note, const char* text, Pixel background)
{
    const CompoundString label{text};
    return XtVaCreateManagedWidget("v_dlglabel", xmLabelWidgetClass, note, XmNlabelString,
                                   label.get(), XmNshadowThickness, 1, XmNhighlightThickness, 0,
                                   XmNborderWidth, 1, XmNbackground, background, XmNforeground,
                                   blackPixel(note), nullptr);
}

void placeAtPointer(Widget note)
{
    state.shownAt = pointerOnScreen(mainWindow());
    XButtonPressedEvent press{};
    press.x_root = state.shownAt.x;
    press.y_root = state.shownAt.y;
    XmMenuPosition(note, &press);
}

// A note of earlier is kept only as long as it may be on the screen.
void replaceNote(Widget note)
{
    Widget const old = state.note.get();
    if (old && !XtIsManaged(old)) XtDestroyWidget(XtParent(old));
    state.note.reset(note);
}

// The latest note is kept; one that had another shown within it is not needed any more.
void takeDown(Widget note)
{
    XtUnmanageChild(note);
    if (note != state.note.get()) XtDestroyWidget(XtParent(note));
}

int waitForUser(Widget note)
{
    const WidgetRef waiting{note};
    state.result = GUI_TIP_TAKEN_DOWN;
    XtManageChild(note);
    processEventsWhile(note, [&] {
        return state.result == GUI_TIP_TAKEN_DOWN && waiting && XtIsManaged(waiting.get());
    });
    if (waiting) takeDown(waiting.get());
    const int result = state.result;
    state.result = 0;
    return result;
}

}  // namespace

}  // namespace kite

int guiTipBox(const char* text)
{
    using namespace kite;
    if (!mainWindow()) return 0;
    const Pixel background = allocateColour(mainWindow(), kPaleYellow);
    Widget const note = createNote(background);
    if (!note) return 0;
    replaceNote(note);
    if (createLabel(note, text, background))
        for (const EventMask mask : kWatchedEvents)
            XtAddEventHandler(note, mask, False, happened, nullptr);
    placeAtPointer(note);
    return waitForUser(note);
}
