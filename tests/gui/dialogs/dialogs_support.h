// dialogs_support.h: what the tests of dialogs share: the constructors, controls by id, units, running.

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "events/events_support.h"

namespace kite::testing {

// A constructor of controls, with what the tests of all of them need to know.
struct ControlKind {
    std::string name;  // as in the messages
    int type;
    int lowestId;
    int (*make)(int id, int row);
};

const std::vector<ControlKind>& allControls();

// The board of the dialog that is under construction or runs, the innermost one.
Widget board();

// The control of the innermost dialog; null when there is none.
Widget control(int id);

// What a control's outer widget carries: id and type.
int tagOf(Widget widget);
int tagFor(int id, int type);

int controlCount();

// Pixels to a unit, of a font that the server knows by that name.
struct Units {
    double across = 0;
    double down = 0;
};
Units unitsOf(const std::string& font);

inline const std::string kUsualFont =
    "-Adobe-Helvetica-Medium-R-Normal--14-100-100-100-P-76-ISO8859-1";
inline const std::string kLargeFont = "-misc-fixed-medium-r-normal--20-200-75-75-c-100-iso8859-1";

// A dialog with an OK button of id 1.
void buildDialog(const char* title = "Dialog");

// Runs the dialog under construction under the recorder's dialog handler, looks at it when it is on the
// screen, and closes it with the code. Returns what guiRunDialog returned.
int runWhileShown(const std::function<void(Shown)>& look, int code = 1);

}  // namespace kite::testing
