// box_kinds.h: the boxes that wait for a button, as a table for the tests that hold for all of them.

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "gui_test.h"

namespace kite::testing {

struct Choice {
    std::string label;
    int answer;
};

struct BoxKind {
    enum class Width { TripleOk, Cancel };  // what all of its buttons are as wide as

    std::string call;
    std::string widget;
    unsigned char type;                                   // XmNdialogType
    Widget (*create)(Widget, String, ArgList, Cardinal);  // the toolkit's bare box of the kind
    std::function<int(const char* text)> ask;             // 0 from those that answer nothing
    std::vector<Choice> choices;                          // from left to right
    int whenClosed;
    int whenNotCreated;
    Width width;

    bool isPrompt() const { return widget == "v_promptbox"; }
};

// The text prompt starts with "abc" and has room for 63 characters.
const std::vector<BoxKind>& allBoxes();
std::vector<BoxKind> messageBoxes();
const BoxKind& boxKind(const std::string& call);

// Shows a box of the kind, looks at it, and answers it with Return. Returns its answer.
int whileShown(const BoxKind& kind, const std::function<void(Shown)>& look,
               const char* text = "What a fine day!");

// One of the toolkit's parts (XmDIALOG_OK_BUTTON …) of a message or prompt box.
Widget partOf(Widget box, unsigned char which);

// The message, or the prompt.
Widget messageLabelOf(Widget box);

// The buttons that are shown, from left to right.
std::vector<Widget> buttonsOf(Widget box);

// How many widgets the application has.
int widgetCount();

// A box as the toolkit makes it, below the main window, before it is shown.
class BareBox {
public:
    explicit BareBox(const BoxKind& kind);
    ~BareBox();
    BareBox(const BareBox&) = delete;
    BareBox& operator=(const BareBox&) = delete;

    Widget part(unsigned char which) const { return partOf(box_, which); }
    Widget widget() const { return box_; }

private:
    Widget box_;
};

}  // namespace kite::testing
