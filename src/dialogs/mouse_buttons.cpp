#include "dialogs/mouse_buttons.h"

#include <Xm/BulletinB.h>
#include <Xm/ComboBox.h>
#include <Xm/List.h>
#include <Xm/Xm.h>
#include <kitegui.h>

#include "dialogs/control_lookup.h"
#include "dialogs/text_field.h"
#include "frame/dispatcher.h"
#include "frame/focus_leave.h"
#include "frame/hover.h"
#include "output/edit_popup.h"
#include "toolkit/resources.h"
#include "toolkit/screen_point.h"

namespace kite {

namespace {

constexpr TypeSet kTellTheHost{ControlType::Button, ControlType::Check,  ControlType::Radio,
                               ControlType::Choice, ControlType::List,   ControlType::Tree,
                               ControlType::Image,  ControlType::Slider, ControlType::Spin};

// The control that a part belongs to; a scrolled one without its frame and scroll bars. Parts of composed controls
// may bear the tag of the whole.
Widget controlAround(Widget part, ControlType type)
{
    Widget control = part;
    while (!XmIsBulletinBoard(XtParent(control))) control = XtParent(control);
    const bool isScrolled = type == ControlType::List || type == ControlType::Tree;
    return isScrolled ? resource<Widget>(control, XmNworkWindow) : control;
}

Point placeIn(Widget control, Widget part, const XButtonEvent& event)
{
    return Point{event.x, event.y} + originOnScreen(part) - originOnScreen(control);
}

// Hosts count the pixels of the picture, and a click on its frame is none on the picture.
void reportClickOnPicture(Widget image, int id, const XButtonEvent& event)
{
    const int frame = resource<Dimension>(image, XmNshadowThickness);
    const Point place{event.x - frame, event.y - frame};
    if (place.x < 0 || place.y < 0) return;
    if (event.button == Button1) {
        focusLeave::deliver();
        raise(GUI_EVENT_KEY, id, place.x, place.y);
    } else {
        raise(GUI_EVENT_CONTEXT, id, place.x, place.y);
    }
}

void reportContext(Widget part, Tag tag, const XButtonEvent& event)
{
    Widget const control = controlAround(part, tag.type());
    if (!XtIsSensitive(control)) return;  // around the items of a tree it is not known
    const Point place = placeIn(control, part, event);
    if (tag.type() == ControlType::List)
        raise(GUI_EVENT_CONTEXT, tag.id(), XmListYToPos(control, static_cast<Position>(place.y)));
    else
        raise(GUI_EVENT_CONTEXT, tag.id(), place.x, place.y);
}

void released(Widget widget, XtPointer data, XEvent* event, Boolean*)
{
    const Tag tag{data};
    const XButtonEvent& button = event->xbutton;
    const bool isImage = tag.type() == ControlType::Image;
    if (button.button != Button3 && !(isImage && button.button == Button1)) return;
    hover::cancel();
    if (!findControl("Mouse", tag.id())) return;
    if (isImage)
        reportClickOnPicture(widget, tag.id(), button);
    else
        reportContext(widget, tag, button);
}

}  // namespace

// What has no id cannot be told apart.
void reportButtons(Widget widget, Tag control)
{
    switch (control.type()) {
    case ControlType::Edit:
    case ControlType::Text: offerEditPopup(widget, widget); break;
    case ControlType::Combo:
        offerEditPopup(widget, XmIsComboBox(widget) ? fieldOf(widget) : widget);
        break;
    default:
        if (kTellTheHost.has(control.type()) && control.id() != kAnonymous)
            XtAddEventHandler(widget, ButtonReleaseMask, False, released, control.userData());
    }
}

}  // namespace kite
