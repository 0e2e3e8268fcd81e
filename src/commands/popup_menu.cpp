// popup_menu.cpp: a menu that the host pops up, once, and waits for.

#include <Xm/PushBG.h>
#include <Xm/RowColumn.h>
#include <Xm/SeparatoG.h>
#include <kitegui.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>

#include "boxes/misuse.h"
#include "commands/command_checks.h"
#include "commands/menu_levels.h"
#include "dialogs/building.h"
#include "dialogs/control_lookup.h"
#include "dialogs/dialog_font.h"
#include "dialogs/layout_metrics.h"
#include "frame/frame_fonts.h"
#include "frame/top_window.h"
#include "toolkit/free_traversal.h"
#include "toolkit/menu_keys.h"
#include "toolkit/nested_loop.h"
#include "toolkit/never_destroyed.h"
#include "toolkit/resources.h"
#include "toolkit/screen_point.h"
#include "toolkit/widget_ref.h"

namespace kite::commands {

namespace {

struct Popup {
    explicit Popup(Widget widget) : menu(widget) {}
    ~Popup();
    Popup(const Popup&) = delete;
    Popup& operator=(const Popup&) = delete;

    enum { kPending = -999 };  // no item has this number

    WidgetRef menu;
    int items = 0;
    int result = 0;  // kPending while it is shown
};

// A menu is in a shell of its own.
Popup::~Popup()
{
    if (Widget const widget = menu.get()) XtDestroyWidget(XtParent(widget));
}

// The one that is under construction, until it is shown.
std::unique_ptr<Popup>& current = neverDestroyed<std::unique_ptr<Popup>>();

// Null also when the window has gone that it belonged to.
Widget currentPopup()
{
    return current ? current->menu.get() : nullptr;
}

// Whoever destroys the window below it: Xt would go on with the grabs of a menu that there is no more.
void giveBackMouseAndKeyboard(Widget menu, XtPointer, XtPointer)
{
    if (!XtIsManaged(menu)) return;
    XtUngrabPointer(menu, CurrentTime);
    XtUngrabKeyboard(menu, CurrentTime);
}

XtPointer asUserData(std::intptr_t number)
{
    return reinterpret_cast<XtPointer>(number);
}

void picked(Widget item, XtPointer popup, XtPointer)
{
    const auto number = reinterpret_cast<std::intptr_t>(resource<XtPointer>(item, XmNuserData));
    static_cast<Popup*>(popup)->result = static_cast<int>(number);
}

void append(const char* name)
{
    Widget const menu = current->menu.get();
    const MenuLabel label{name};
    ArgumentList arguments;
    label.addTo(arguments, menu);
    arguments.set(XmNshadowThickness, 1);
    arguments.set(XmNuserData, asUserData(++current->items));
    Widget const item = XtCreateManagedWidget("v_mitem", xmPushButtonGadgetClass, menu,
                                              arguments.data(), arguments.size());
    XtAddCallback(item, XmNactivateCallback, picked, current.get());
}

// ---- where it comes up ----------------------------------------------------------------------

struct Place {
    int x, y, mode, listId;  // as the host gave them
};

// Of the dialogs; before the first one, what it would have.
DialogUnits unitsAt(Widget top)
{
    if (building::units().vertical() > 0) return building::units();
    XmFontList const font = frameFonts::of(top, frameFonts::Use::Dialog);
    const auto measures = font ? measureFirstFont(font) : std::nullopt;
    return measures ? DialogUnits{*measures} : DialogUnits{};
}

// The host counts from 1; the dialog's margin comes before.
Point besideUnits(Widget top, const Place& place)
{
    const DialogUnits units = unitsAt(top);
    const int step = place.mode == 1 ? 1 : layout::kRowStep;
    return originOnScreen(top) + Point{units.pixelsAcross(place.x - 1.0 + layout::kMargin),
                                       units.pixelsDown((place.y - 1.0) * step + layout::kMargin)};
}

Point besideControl(Widget top, Widget control)
{
    return originOnScreen(top) +
           Point{resource<Position>(control, XmNx) + resource<Dimension>(control, XmNwidth),
                 resource<Position>(control, XmNy)};
}

// Looking for the control may show an error box, and anything may happen meanwhile.
Point placeOnScreen(const WidgetRef& top, const Place& place)
{
    if (place.listId > 0) {
        const Control control = findControl("PopList", place.listId);
        if (control && top) return besideControl(top.get(), control.outer);
    } else if (place.x >= 1 && place.y >= 1) {
        return besideUnits(top.get(), place);
    }
    return top ? pointerOnScreen(top.get()) : Point{};
}

// ---- while it is shown ----------------------------------------------------------------------

Popup* waiting = nullptr;

// The toolkit gives mouse and keyboard to one menu, and not back to the one before.
void takeDown(const Popup* other)
{
    if (Widget const menu = other ? other->menu.get() : nullptr) XtUnmanageChild(menu);
}

// Positions have 16 bits; the toolkit brings menus back to the screen that stand a little outside.
int withinReach(int position, int screenSize)
{
    return std::clamp(position, -screenSize, screenSize);
}

int show(Popup& popup, Point place)
{
    takeDown(waiting);
    Popup* const outer = std::exchange(waiting, &popup);
    Widget const menu = popup.menu.get();
    const FreeTraversal traversal{menu};
    XButtonPressedEvent press{};
    press.x_root = withinReach(place.x, WidthOfScreen(XtScreen(menu)));
    press.y_root = withinReach(place.y, HeightOfScreen(XtScreen(menu)));
    XmMenuPosition(menu, &press);
    popup.result = Popup::kPending;
    XtManageChild(menu);
    giveKeyboardToMenu(menu);
    processEventsWhile(menu, [&] {
        return popup.result == Popup::kPending && popup.menu && XtIsManaged(popup.menu.get());
    });
    waiting = outer;
    return popup.result == Popup::kPending ? 0 : popup.result;
}

}  // namespace

}  // namespace kite::commands

using namespace kite;
using namespace kite::commands;

int guiCreatePopMenu(void)
{
    current.reset();
    Widget const top = topWindow();
    if (!top || !XtIsWidget(top)) return 0;
    Arg arguments[2];
    XtSetArg(arguments[0], XmNshadowThickness, 1);
    XtSetArg(arguments[1], XmNhighlightThickness, 0);
    Widget const menu = XmCreateSimplePopupMenu(top, const_cast<char*>("p_menu"), arguments, 2);
    if (!menu) return 0;
    XtAddCallback(menu, XmNdestroyCallback, giveBackMouseAndKeyboard, nullptr);
    current = std::make_unique<Popup>(menu);
    return 1;
}

// Bad names are reported as those of the menu bar's items are: to the host they are the same kind of thing.
int guiAppendPopMenu(const char* name)
{
    if (!currentPopup()) return 0;
    if (!name || !*name || isTooLong(name, kLongestName))
        return reportMisuse("MenuItem: invalid name");
    append(name);
    return 0;
}

int guiSepPopMenu(void)
{
    Widget const menu = currentPopup();
    if (!menu) return 0;
    XtVaCreateManagedWidget("v_msep", xmSeparatorGadgetClass, menu, XmNuserData, asUserData(-1),
                            nullptr);
    return 0;
}

// A handler may build and show another one while this one waits, which ends the waiting.
int guiShowPopMenu(int x, int y, int mode, int listId)
{
    const std::unique_ptr<Popup> popup = std::move(current);
    const WidgetRef top{topWindow()};
    if (!popup || !top) return 0;
    const Point place = placeOnScreen(top, {x, y, mode, listId});
    return popup->menu ? show(*popup, place) : 0;
}
