#include "dialogs/dialog_run.h"

#include <Xm/BulletinB.h>
#include <kitegui.h>

#include "dialogs/building.h"
#include "dialogs/first_look.h"
#include "frame/dispatcher.h"
#include "frame/focus_leave.h"
#include "frame/hover.h"
#include "frame/timer.h"
#include "frame/top_window.h"
#include "toolkit/nested_loop.h"
#include "toolkit/shells.h"
#include "toolkit/widget_ref.h"

namespace kite::dialogRun {

namespace {

// One for each dialog that runs; they lie on the stack, as the dialogs do on the screen.
struct Run {
    explicit Run(Widget dialog);
    ~Run();
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;

    WidgetRef shell;
    WidgetRef board;
    WidgetRef requestedFocus;  // set by requestFocus
    int code = 0;              // set by noteCode
    int loopsBefore = loopsRunning();
    Run* outer;
};

Run* innermost = nullptr;

Run::Run(Widget dialog) : shell(shellOf(dialog)), board(dialog), outer(innermost)
{
    innermost = this;
}

Run::~Run()
{
    innermost = outer;
    if (Widget const remaining = shell.get()) destroyShell(remaining);
    periodicTimer::stop();
    hover::leave();
}

void show(Run& run)
{
    Widget const focus = run.requestedFocus.get();
    Widget const board = run.board.get();
    if (focus) XtVaSetValues(board, XmNinitialFocus, focus, nullptr);
    {
        const EventsSuppressed quiet;
        XtManageChild(board);
    }
    lowerRectangles(board);
    if (focus) XmProcessTraversal(focus, XmTRAVERSE_CURRENT);
}

void runUntilClosed(Run& run)
{
    Widget const board = run.board.get();
    const TopWindowScope top{board};
    // What the handler destroys goes now. It would keep the whole dialog back otherwise, until the event is over in
    // which the dialog was opened.
    asEvent(XtDisplay(board), [] { raise(GUI_EVENT_INIT); });
    // The handler may have closed it, or given the screen to another window.
    if (!run.board || topWindow() != board) return;
    show(run);
    processEventsOfControlsWhile(board, [&] { return bool{run.board} && bool{run.shell}; });
}

}  // namespace

int run()
{
    int code = 0;
    {
        Run run{building::board()};
        prepareFirstLook();
        building::forget();
        runUntilClosed(run);
        code = run.code;
    }
    focusLeave::deliver();
    return code;
}

std::optional<int> noteCode(Widget top, int code)
{
    for (Run* run = innermost; run; run = run->outer) {
        if (run->board.get() != top) continue;
        run->code = code;
        return run->loopsBefore;
    }
    return std::nullopt;
}

void requestFocus(Widget control)
{
    if (innermost) innermost->requestedFocus.reset(control);
}

}  // namespace kite::dialogRun
