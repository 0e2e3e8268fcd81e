// other_controls_support.h: what the tests of multi-line texts, trees, spin boxes, sliders and progress bars
// share: a dialog of them, their parts, and how a user works on them.

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "simple_controls/simple_controls_support.h"

namespace kite::testing {

// One of the five kinds. Its number is its type code.
enum Kind { kText = 8, kProgress = 13, kTree = 14, kSlider = 15, kSpin = 16 };

struct KindOfControl {
    Kind kind;
    std::string call;    // "Text", as refusals name it
    std::string widget;  // the name of the outer one
    bool mayBeAnonymous;
    std::function<void(int id)> make;  // in a row of its own
};
const std::vector<KindOfControl>& allKinds();
void makeAllKinds();  // the id is the kind

// As runDialog, and fills the controls when the dialog is initialised.
void runFilled(const std::function<void()>& build, const std::function<void()>& fill,
               const std::function<void(Shown)>& use);

// What the user works on: the text, the container, the text field or the bar of the scale.
Widget innerOf(int id);
Widget verticalBarOf(int id);
Widget viewOf(int id);                // the part of a text or tree that is seen
Widget itemOf(int id, int key);       // of a tree; a failure and null when there is none
Point middleOfItem(int id, int key);  // within the container

// The keyboard is there, or on an item of it.
bool hasKeyboard(int id);
bool waitForKeyboard(int id);

void fillLines(int id, int count);  // "Line 0", "Line 1" ...
void fillItems(int id,
               int count);  // "Item 1", "Item 2" ... at the top level, with the keys 1, 2 ...

std::string fieldTextOf(int spin);
int valueOf(int scale);

Event cursorAt(int id, int line, int column);
Event selected(int id, int index, int isDouble = 0);
Event value(int id, int number);
Event number(int id, int number);  // of a spin box
Event scrolled(int id, int top);
Event leftBehind(int id);

}  // namespace kite::testing
