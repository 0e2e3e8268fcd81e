// print_file.cpp: a file is printed by a command of the user's, behind a box that asks for patience.

#include <Xm/Label.h>
#include <Xm/Xm.h>
#include <kitegui.h>

#include <chrono>
#include <thread>

#include "boxes/empty_box.h"
#include "boxes/misuse.h"
#include "boxes/print_command.h"
#include "frame/frame_fonts.h"
#include "frame/host_services.h"
#include "frame/top_window.h"
#include "toolkit/compound_string.h"
#include "toolkit/painted_labels.h"
#include "toolkit/shells.h"
#include "toolkit/widget_ref.h"

namespace kite {

namespace {

constexpr int kCouldNotRun = -1;  // what kxExec returns then
constexpr int kUpdates = 10;
constexpr std::chrono::milliseconds kBetweenUpdates{100};

bool createLabel(Widget box)
{
    const CompoundString text{"Waiting for print command to return..."};
    Widget const label = XtVaCreateManagedWidget("v_prnlabel", xmLabelWidgetClass, box,
                                                 XmNlabelString, text.get(), nullptr);
    if (label) frameFonts::apply(label, frameFonts::Use::Dialog);
    return label != nullptr;
}

// Window managers take their time to show a window: a second, in which it is painted as soon as it is there. No
// event of the user's is looked at meanwhile.
void drawNow(Widget box)
{
    for (int update = 0; update < kUpdates; ++update) {
        XmUpdateDisplay(box);
        std::this_thread::sleep_for(kBetweenUpdates);
    }
    XmUpdateDisplay(box);
}

// The box is there as long as the command runs; false when it could not be made.
bool runBehindBox(const std::string& command, int& result)
{
    const WidgetRef box{createEmptyBox(boxParent(), "v_printshell", "v_printbox", "Printing...")};
    if (!box) return false;
    Widget const shell = XtParent(box.get());
    freePaintedLabelsWith(shell);
    const bool isComplete = createLabel(box.get());
    if (isComplete) {
        const TopWindowScope top{box.get()};
        XtManageChild(box.get());
        drawNow(box.get());
        result = kxExec(command.c_str(), 1, 1);
    }
    if (box) destroyShell(shell);
    return isComplete;
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiGetDefPrnPage(void)
{
    return GUI_FAILED;
}

// What the command has done is between it and the user: only a command that cannot be run is a failure.
int guiPrintFile(const char* file, int, int, int, int, int, int, int wrap)
{
    if (!file || !*file) return GUI_FAILED;
    const auto command = printCommandFor(file, wrap == 1 || wrap == 2);
    if (!command) return GUI_FAILED;
    int result = 0;
    if (!runBehindBox(*command, result)) return GUI_FAILED;
    if (result == kCouldNotRun) return reportMisuse("Could not execute print command");
    return 0;
}
