// session.h: the connection to the toolkit: display, application context and the host's owner widget.

#pragma once

#include <X11/Intrinsic.h>

namespace kite::session {

// Opens the display named by the environment. False when it cannot be had.
bool open(const char* applicationName, const char* applicationClass);

// Closes the display and everything that belongs to it. Nothing when none is open.
void close();

// True from open() until close(): the display is ours, not an owner's.
bool isOpen();

// Counts the sessions, so that what belongs to a display (which may come back at the same address) is
// not used with the next one.
int generation();

// Ours, also while an owner's is the current one; null when none is open.
Display* ownDisplay();

// Both null while there is neither a session nor an owner.
Display* display();
XtAppContext application();

// A host with an Xt application of its own lends us its display, context and a parent for boxes.
// whenGone is called when the owner or its display goes, while both can still be used.
using OwnerGone = void (*)(Display* display, XtAppContext application);
void setOwner(Widget owner, OwnerGone whenGone);
Widget owner();

// From now on toolkit warnings go nowhere.
void dropToolkitWarnings();

}  // namespace kite::session
