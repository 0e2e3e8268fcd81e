// control.h: what the constructors of all controls have in common.

#pragma once

#include <Xm/Xm.h>

#include "dialogs/building.h"
#include "dialogs/control_type.h"
#include "toolkit/rect.h"

namespace kite {

// Makes the control's widget on the dialog under construction. More resources follow as names and values.
template <typename... Resources>
Widget createControl(const char* name, WidgetClass widgetClass, const Rect& place, Tag tag,
                     Resources... resources)
{
    return XtVaCreateManagedWidget(name, widgetClass, building::board(), XmNx, asPosition(place.x),
                                   XmNy, asPosition(place.y), XmNwidth, asDimension(place.width),
                                   XmNheight, asDimension(place.height), XmNuserData,
                                   tag.userData(), resources..., nullptr);
}

// The XmNnavigationType of controls at which the Tab key stops, in the order in which they were made. (The
// board has to be a sticky group then: else the toolkit does not look at its initial focus.)
inline constexpr int kTabStop = XmEXCLUSIVE_TAB_GROUP;

}  // namespace kite
