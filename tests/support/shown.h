// shown.h: a box, dialog or menu on the screen, and what a user does with it.

#pragma once

#include <X11/Intrinsic.h>

#include <string>
#include <string_view>
#include <vector>

#include "robot.h"

namespace kite::testing {

class Shown {
public:
    explicit Shown(Widget widget) : widget_(widget) {}

    Widget widget() const { return widget_; }
    Widget shell() const;
    Widget child(const std::string& name) const;  // a failure and null when there is none

    // What the window manager shows as its title, the message or prompt, a child's label or text.
    std::string title() const;
    std::string message() const;
    std::string label() const;
    std::string labelOf(const std::string& child) const;
    std::string textOf(const std::string& child) const;
    std::vector<std::string> texts() const;   // of all text fields, in the order of the tree
    std::vector<std::string> labels() const;  // of all buttons and labels that are shown

    // By mouse: a child with that label, else of that name.
    void click(const std::string& labelOrName) const;

    // By keyboard, once this window has the focus.
    void key(KeySym symbol, unsigned modifiers = NoModifier) const;
    void type(std::string_view utf8) const;

    void closeByWindowManager() const;

    // Into the directory of the artefacts.
    void savePicture(const std::string& name) const;

private:
    Widget widget_;
};

}  // namespace kite::testing
