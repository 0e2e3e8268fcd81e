// simple_controls_support.h: what the tests of labels, edits, buttons, check boxes, radio buttons, lines
// and images share: a dialog of them, and its controls by id.

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "gui_test.h"
#include "recorded_events.h"

namespace kite::testing {

// Fonts of the X server whose measures are round: letters of 7 by 13 pixels make dialog units of
// 1.875 by 1.75 pixels, letters of 10 by 20 make units of 2.625 by 2.625.
inline constexpr char kSmallFont[] = "-misc-fixed-medium-r-normal--13-120-75-75-c-70-iso8859-1";
inline constexpr char kLargeFont[] = "-misc-fixed-medium-r-normal--20-200-75-75-c-100-iso8859-1";
void setDialogFont(const std::string& font);

// Builds a dialog, shows it, uses it and closes it.
void runDialog(const std::function<void()>& build, const std::function<void(Shown)>& use);

// The newest dialog, be it under construction or shown, and what stands on it.
Widget newestBoard();
std::vector<Widget> controlsOfBoard();
Widget lastControl();         // null when there is none
Widget controlOf(int id);     // by its tag; a failure and null when there is none
Rect placeOf(Widget widget);  // on its dialog, without the border
bool hasFocus(int id);        // the keyboard goes there
bool isToggled(int id);       // the check box or radio button is set

}  // namespace kite::testing
