// popups_support.h: what the tests of popup menus share: building one, showing it, and where it is.

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "other_controls/other_controls_support.h"

namespace kite::testing {

inline const std::string kSeparator;

// The library's menu under construction; null when there is none.
Widget popup();
std::vector<Widget> popupItems();  // and separators

void buildPopup(const std::vector<std::string>& names = {"&One", "&Two", "Th&ree"});

// As guiShowPopMenu takes it.
struct PopupPlace {
    int x = 0, y = 0, mode = 0, listId = 0;
};

// Builds it and shows it, and does this when it is there. Returns what guiShowPopMenu returned.
int runPopup(const std::function<void(Shown)>& use, const PopupPlace& place = {});

// As a user: picks by mouse; dismisses.
std::function<void(Shown)> picking(const std::string& label, unsigned button = LeftButton);
void dismiss(Shown menu);

// Its corner on the screen.
Point cornerOf(Shown menu);

// No popup menu is left.
bool isPopupGone();

// Once, from a timer of the host.
void soon(const std::function<void()>& action);

}  // namespace kite::testing
