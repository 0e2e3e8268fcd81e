// main_frame.h: the application's one frame and what it is made of.

#pragma once

#include <X11/Intrinsic.h>

namespace kite::frame {

// The widgets of the frame. The toolbar is null while the host has made no button for it, and any is
// once it was destroyed.
struct Widgets {
    Widget shell = nullptr;
    Widget mainWindow = nullptr;
    Widget menuBar = nullptr;
    Widget toolbar = nullptr;
    Widget scroller = nullptr;
    Widget text = nullptr;
    Widget statusBar = nullptr;
    Widget statusLine = nullptr;
    Widget gauge = nullptr;
};

// All null before the frame is built and once it is closed.
const Widgets& widgets();

// While guiInit builds the frame and asks the host for its settings: there is none yet.
bool isStarting();

// The height of drop-down lists, in eighths: read once, when the frame is built.
int dropDownHeight();

// The frame without its toolbar, and with an empty one.
void dropToolbar();
void recreateToolbar();

// What is called when the host's commands go: by guiRestart, and when a new frame is built. The commands
// lie above the frame, and say so when the first one is made.
void whenCommandsGo(void (*action)());
void dropCommands();

// Shows the host's commands: raises event 0, then puts menu bar and toolbar into place.
void show();

// Saves the geometry, stops the log and destroys the frame.
void close();

}  // namespace kite::frame
