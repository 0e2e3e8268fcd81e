// dialogs.h: one command for each of the tour's dialogs.

#pragma once

#include <kitegui.h>

namespace tour {

void showRegistration();
void showPictures();
void showKeys();
void showNestedDialogs();
void showHoverHelp();
void showTasks();
void showFiles();
void showSettings();
void showLetter();
void showFontsAndColours();
void showMeasurements();
void showLayout();

// Asks for a dialog that is run when the command is done, and is its handler.
void askForReminder();
int handleReminder(int event, int id, int a, int b);

// Runs the dialog that was built. The library stops the timer when a dialog ends: the menu says so.
int runDialog(GuiHandler handler);

}  // namespace tour
