// dialog_plan.h: a dialog that a test runs, in the three moments in which its host can work on it.
//
//     runDialog({.build = [] { guiEdit(1, 0, 0, 40, 0, 0); },
//                .fill = [] { guiSetText(1, "abc"); },
//                .look = [&](Shown dialog) { dialog.type("d"); }});

#pragma once

#include <functional>

#include "gui_test.h"

namespace kite::testing {

struct DialogPlan {
    std::function<void()> build = [] {};  // between guiDialog and guiRunDialog
    std::function<void()> fill = [] {};   // in its first event, before it is seen
    std::function<void(Shown)> look =
        nullptr;  // on the screen; without it the dialog is never shown
};

// The dialog is as large as the room for the controls of hand_made_controls.h. It is closed behind the
// last moment.
void runDialog(const DialogPlan& plan);

// The board of the dialog that runs.
Widget board();

// A child of it by its tag; null when there is none.
Widget outerOf(int id);

// The list, text or container in it, or itself.
Widget innerOf(int id);

}  // namespace kite::testing
