// probe_window.h: a window of plain Motif widgets that write down what reaches them.

#pragma once

#include <Xm/Xm.h>

#include <string>
#include <vector>

#include "gui_test.h"

namespace kite::testing {

class ProbeWindow {
public:
    ProbeWindow();
    ~ProbeWindow();
    ProbeWindow(const ProbeWindow&) = delete;
    ProbeWindow& operator=(const ProbeWindow&) = delete;

    Widget box;     // "v_probe"
    Widget text;    // several lines
    Widget list;    // "one", "two", "three"
    Widget button;  // "press"
    Widget canvas;  // shows nothing

    int presses = 0;                    // of the button
    std::vector<std::string> selected;  // items of the list, by one click
    std::vector<std::string> opened;    // items, by double click
    int closeRequests = 0;              // by the window manager

    struct Input {
        int type;
        unsigned detail;  // button, or 0
        unsigned state;
        Point at;
    };
    std::vector<Input> inputs;        // of the mouse in the canvas
    std::vector<KeySym> keys;         // pressed in the canvas
    std::vector<unsigned> keyStates;  // modifiers of each
    void giveFocusToCanvas();

private:
    void show();
    void listen();
};

}  // namespace kite::testing
