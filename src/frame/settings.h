// settings.h: the user's settings, read from the profile at the time of asking.

#pragma once

#include <string>

namespace kite::settings {

// ---- integers -------------------------------------------------------------------------------

int startupHook();     // "spsec": above 0, a start-up hook runs
int logMode();         // "logfm": 0 or less no log, 1 a new log, else a continued one
bool savesGeometry();  // "mwndp"
int dropDownHeight();  // "ch_height": eighths
int toolbarStyle();    // "tbbstyle": 1, plain toolbar buttons have a shadow
bool followsFiles();   // "cddir": the working directory is that of the file that was chosen last
bool printsAcross();   // "landscape"

struct Geometry {
    int x, y, width, height;  // pixels; -1 stands for "not saved"

    bool operator==(const Geometry&) const = default;
};

Geometry savedGeometry();  // "mwndx", "mwndy", "mwndw", "mwndh"
void saveGeometry(const Geometry& geometry);

// ---- strings --------------------------------------------------------------------------------

std::string logFileName();     // "logfn"
std::string statusLineFont();  // "fnamm"
std::string menuBarFont();     // "fnamn"
std::string outputFont();      // "fnamt"

// "lpcmd"; the default when there is none. Empty when the user wants it so.
std::string printCommand(const std::string& byDefault);

// "mouse_hover" in milliseconds; negative: tooltips and hover events are off.
int hoverDelay();

// What "mouse_hover" holds, seconds as a decimal number, in milliseconds. A text that is no number
// gives the default of 2000.
int parseHoverDelay(const char* text);

}  // namespace kite::settings
