// frame_widgets.h: the making of the frame's widgets.

#pragma once

#include "frame/main_frame.h"
#include "frame/settings.h"

namespace kite::frame {

// Users' X resources go by the application title; the class says nothing.
inline constexpr char kApplicationClass[] = "- not used -";

inline constexpr int kToolbarHeight = 37;  // pixels

// Null widgets mean that the toolkit could not make them.
// The icon becomes the shell's.
Widget createShell(const settings::Geometry& geometry, bool isUsersPosition, Pixmap icon);
Widget createMainWindow(Widget shell);
Widget createToolbar(Widget mainWindow);

// Everything inside the main window.
void createContents(Widgets& frame);

}  // namespace kite::frame
