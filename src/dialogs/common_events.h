// common_events.h: what all controls tell the host, whatever kind they are.

#pragma once

#include <X11/Intrinsic.h>

#include "dialogs/control_type.h"

namespace kite {

// Each of these for a control or a part of it: the parts of composed controls have no tag of their own.
void reportPointer(Widget widget, Tag control);
void reportKeys(Widget widget, Tag control);
void reportFocusGain(Widget widget);
void reportHelp(Widget widget, Tag control);

// All of them, for a control of one widget.
void reportCommonEvents(Widget widget, Tag control);

}  // namespace kite
