// items_support.h: a dialog with every control that has items or lines, and how they stand.

#pragma once

#include <string>
#include <vector>

#include "../operations/dialog_plan.h"
#include "../operations/hand_made_controls.h"

namespace kite::testing {

// The other controls have the numbers of their kinds.
inline constexpr int kBrowseList = 20;
inline constexpr int kExtendedList = 21;
inline constexpr int kMultipleList = 22;

inline const std::vector<int> kLists = {kBrowseList, kExtendedList, kMultipleList};
inline const std::vector<int> kSeveralLists = {kExtendedList, kMultipleList};
inline const std::vector<int> kDropDowns = {ChoiceBox, Combo};
inline const std::vector<int> kWithItems = {kBrowseList, kExtendedList, kMultipleList, ChoiceBox,
                                            Combo};

// Between guiDialog and guiRunDialog.
void buildItemControls();

// On the screen.
void withItemControls(const std::function<void(Shown)>& body);
void withItemControls(const std::function<void()>& body);

void append(int id, const std::vector<std::string>& items);
void replaceItems(int id, const std::vector<std::string>& items);

// As the toolkit has them. Of a choice or combo box they are those of its list.
std::vector<std::string> itemsOf(int id);
std::vector<int> selectedIn(int id);
int cursorIn(int id);  // -1: none

// What stands in the field of a choice, combo or spin box.
std::string fieldTextOf(int id);
void setFieldText(int id, const std::string& text);

// The part of a text that is selected, "first-last"; empty for none.
std::string selectionIn(Widget text);

// What guiGetItem, guiGetText and guiGetLine give: "text", or "-1".
std::string item(int id, int index);
std::string text(int id);
std::string line(int id, int number);

}  // namespace kite::testing
