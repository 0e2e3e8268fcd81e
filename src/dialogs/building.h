// building.h: the one dialog under construction.
//
// idle -> prepared (guiDialog) -> started from a handler or run at once -> idle again, when it is shown
// or thrown away. Controls can be made while it is prepared.

#pragma once

#include <Xm/Xm.h>

#include "dialogs/control_table.h"
#include "dialogs/dialog_units.h"

namespace kite::building {

// A new dialog is prepared.
void begin(Widget board, XmFontList font, const FontMeasures& measures);

// The host asks for it to be run: no control can be made any more.
void end();

// It is run, or was thrown away.
void forget();

bool isPrepared();

// The parent of all controls; null when no dialog is under construction.
Widget board();
XmFontList font();
const DialogUnits& units();

// True after guiUseAbsPos: controls stand at a y of their own, not in rows.
bool usesAbsolutePositions();
void useAbsolutePositions(bool isWanted);

// 1 after guiShowAllBorders, else 0; in pixels.
int border();
void showBorders();

Widget defaultButton();
void setDefaultButton(Widget button);

// The check that every control begins with: false after an error box. The control is named as in the
// messages: "Label", "Edit".
bool mayCreate(const char* control, int id, int lowestId);

// A control has been made; returns 0, what its constructor returns.
int append(int id, ControlType type, Widget widget);

ControlTable& controls();

}  // namespace kite::building
