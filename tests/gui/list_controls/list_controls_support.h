// list_controls_support.h: what the tests of lists, choices and combo boxes share: a dialog of them, their
// parts, and how a user works on them.

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "gui_test.h"
#include "recorded_events.h"

namespace kite::testing {

// Fonts of the X server whose measures are round: letters of 7 by 13 pixels make dialog units of 1.875 by
// 1.75 pixels, letters of 9 by 15 make units of 2.375 by 2, letters of 10 by 20 units of 2.625 by 2.625.
inline constexpr char kSmallFont[] = "-misc-fixed-medium-r-normal--13-120-75-75-c-70-iso8859-1";
inline constexpr char kMiddleFont[] = "-misc-fixed-medium-r-normal--15-140-75-75-c-90-iso8859-1";
inline constexpr char kLargeFont[] = "-misc-fixed-medium-r-normal--20-200-75-75-c-100-iso8859-1";
void setDialogFont(const std::string& font);

// Builds a dialog, fills it when it is initialised, shows it, uses it and closes it.
struct DialogPlan {
    std::function<void()> build;
    std::function<void()> fill = [] {};
    std::function<void(Shown)> use = [](Shown) {};
};
void runDialog(const DialogPlan& plan);

// "Item 0", "Item 1" ...
void appendItems(int id, int count);

// Of the newest dialog, be it under construction or shown. A failure and null when there is none.
Widget newestBoard();
Widget controlOf(int id);      // by its tag
Widget listOf(int id);         // of any of the three
Widget fieldOf(int id);        // of a choice or combo box
Widget verticalBarOf(int id);  // of a list
Rect placeOf(Widget widget);   // in its parent, without the border
bool hasFocus(Widget part);    // the keyboard goes there

// The items of any of them that are selected, and the one at the keyboard cursor; from 0.
std::vector<int> selectedItems(int id);
int cursorOf(int id);
int topOf(int id);  // as the toolkit has it

// By mouse. Modifiers are held meanwhile.
Point middleOfItem(Widget list, int index);  // within the list
void clickItem(int id, int index, unsigned modifiers = NoModifier);
void doubleClickItem(int id, int index);
void clickArrow(int id);

// The list of a choice or combo box that has dropped down. The toolkit takes a click in it that comes within
// the double-click time for a part of the click on the arrow.
bool isOpen(int id);
bool waitUntilOpen(int id);
bool waitUntilClosed(int id);

Event selected(int id, int index, int isDouble = 0);
Event picked(int id, int position);
Event typed(int id);
Event scrolled(int id, int top);
Event left(int id);

}  // namespace kite::testing
