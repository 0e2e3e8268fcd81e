// spin.cpp: a number to type, or to step through with arrows.

#include <Xm/SSpinBP.h>
#include <Xm/TextF.h>
#include <kitegui.h>

#include <algorithm>
#include <cstdlib>

#include "boxes/misuse.h"
#include "dialogs/common_events.h"
#include "dialogs/control.h"
#include "dialogs/layout_metrics.h"
#include "dialogs/lost_release.h"
#include "dialogs/placement.h"
#include "dialogs/text_field.h"
#include "frame/dispatcher.h"
#include "frame/hover.h"
#include "toolkit/colours.h"
#include "toolkit/xt_string.h"

namespace kite {

namespace {

constexpr int kArrows = 8;  // horizontal units beside the text field

int numberIn(Widget field)
{
    const XtString text{XmTextFieldGetString(field)};
    return text ? std::atoi(text.get()) : 0;
}

// The arrows go on from what was typed, and other changes of the box leave it: the box has a position of its own,
// which it gives to its field with each of them. (Both are written where they are kept: to set them would
// rewrite the number while it is being typed.)
void keepPosition(Widget field, int number)
{
    auto& kept = reinterpret_cast<XmSpinBoxConstraintPtr>(field->core.constraints)->spinBox;
    kept.position = std::clamp(number, kept.minimum_value, kept.maximum_value);
    reinterpret_cast<XmSimpleSpinBoxWidget>(XtParent(field))->simpleSpinBox.position =
        kept.position;
}

void changed(Widget field, XtPointer tag, XtPointer)
{
    hover::cancel();
    const int number = numberIn(field);
    keepPosition(field, number);
    raise(GUI_EVENT_TEXT_CHANGED, Tag{tag}.id(), number);
}

// The toolkit forgets the time-out in which it repeats an arrow that is held. (Of an arrow that is not held it
// remembers one that is no more, and may be somebody else's by now.)
void destroyed(Widget spin, XtPointer, XtPointer)
{
    auto& box = reinterpret_cast<XmSpinBoxWidget>(spin)->spinBox;
    const bool isHeld = box.up_arrow_pressed || box.down_arrow_pressed;
    if (isHeld && box.spin_timer) XtRemoveTimeOut(box.spin_timer);
    box.up_arrow_pressed = box.down_arrow_pressed = False;
}

void prepareField(Widget field, const Rect& place)
{
    const auto width = static_cast<int>(place.width - kArrows * building::units().horizontal());
    XtVaSetValues(field, XmNx, asPosition(place.x), XmNwidth, asDimension(std::max(1, width)),
                  XmNheight, asDimension(place.height), XmNmarginWidth, 3, XmNmarginHeight, 1,
                  XmNshadowThickness, 1, XmNhighlightThickness, 1, XmNforeground, blackPixel(field),
                  XmNbackground, whitePixel(field), XmNfontList, building::font(), nullptr);
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiSpin(int id, int row, int x, int width)
{
    if (!building::mayCreate("Spin", id, kAnonymous)) return GUI_FAILED;

    const Tag tag{id, ControlType::Spin};
    const Rect place = placed(x, topOf(row), width, layout::kEditHeight);
    Widget const box =
        createControl("v_dlgspinbox", xmSimpleSpinBoxWidgetClass, place, tag, XmNnavigationType,
                      kTabStop, XmNmarginWidth, 0, XmNmarginHeight, 0, XmNshadowThickness, 1,
                      XmNhighlightThickness, 1, XmNspinBoxChildType, XmNUMERIC, XmNminimumValue, 0,
                      XmNmaximumValue, 100, XmNincrementValue, 1, XmNeditable, True);
    if (!box) return reportMisuse("spin: cannot create control %d", id);

    Widget const field = fieldOf(box);
    prepareField(field, place);
    for (Widget const part : {box, field}) reportCommonEvents(part, tag);
    noteTyping(field, tag);
    XtAddCallback(field, XmNvalueChangedCallback, changed, tag.userData());
    XtAddCallback(box, XmNdestroyCallback, destroyed, nullptr);
    letGoOfWhatIsHeld(box);
    return building::append(id, ControlType::Spin, box);
}
