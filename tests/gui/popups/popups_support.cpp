#include "popups_support.h"

namespace kite::testing {

Widget popup()
{
    return findWidget("p_menu");
}

std::vector<Widget> popupItems()
{
    Widget const menu = popup();
    return menu ? childrenOf(menu) : std::vector<Widget>{};
}

void buildPopup(const std::vector<std::string>& names)
{
    ASSERT_EQ(guiCreatePopMenu(), 1);
    for (const std::string& name : names)
        name == kSeparator ? guiSepPopMenu() : guiAppendPopMenu(name.c_str());
}

int runPopup(const std::function<void(Shown)>& use, const PopupPlace& place)
{
    buildPopup();
    App::instance().whenShown("p_menu", use);
    return guiShowPopMenu(place.x, place.y, place.mode, place.listId);
}

std::function<void(Shown)> picking(const std::string& label, unsigned button)
{
    return [=](Shown menu) {
        Widget const item = findByLabel(label, menu.widget());
        ASSERT_NE(item, nullptr) << label;
        Robot::instance().click(item, button);
    };
}

void dismiss(Shown)
{
    Robot::instance().keyHandled(XK_Escape);
}

Point cornerOf(Shown menu)
{
    return wm::clientRect(menu.shell()).corner();
}

bool isPopupGone()
{
    return pumpUntil([] { return findWidgets("p_menu").empty(); });
}

void soon(const std::function<void()>& action)
{
    Recorder::instance().onEvent(GUI_EVENT_TIMER, [action] {
        guiTimer(0);
        action();
    });
    guiTimer(100);
}

}  // namespace kite::testing
