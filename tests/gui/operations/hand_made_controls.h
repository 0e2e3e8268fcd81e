// hand_made_controls.h: controls of the kinds that are made of lists, texts, scales and trees, as the
// toolkit makes them, on the board of the dialog that runs. Operations find them by their tags.

#pragma once

#include <Xm/Xm.h>

#include <functional>
#include <string>
#include <vector>

namespace kite::testing {

// The numbers of the kinds in the tags.
enum Kind {
    Label = 1,
    Edit = 2,
    PushButton = 3,
    Check = 4,
    Radio = 5,
    ChoiceBox = 6,
    List = 7,
    MultiLine = 8,
    Line = 9,
    Image = 10,
    Combo = 12,
    Progress = 13,
    Tree = 14,
    Slider = 15,
    Spin = 16
};

inline const std::vector<Kind> kAllKinds = {Label,     Edit,     PushButton, Check,  Radio,
                                            ChoiceBox, List,     MultiLine,  Line,   Image,
                                            Combo,     Progress, Tree,       Slider, Spin};

// What a dialog needs for all of them, in its units.
inline constexpr int kRoomWidth = 330;
inline constexpr int kRoomHeight = 250;

// On the board of the dialog that runs, each kind at its own place. All return the inner widget.
Widget makeChoice(int id, const std::vector<std::string>& items = {});
Widget makeList(int id, const std::vector<std::string>& items = {},
                unsigned char policy = XmBROWSE_SELECT);
Widget makeText(int id, const std::string& text = "");
Widget makeCombo(int id, const std::vector<std::string>& items = {});
Widget makeProgress(int id);
Widget makeTree(int id, const std::vector<std::string>& items = {});
Widget makeSlider(int id);
Widget makeSpin(int id);

// Of a tree on the screen, with the mouse.
void selectTreeItem(Widget tree, const std::string& item);

// One control of every kind; the number of the kind is its id.
void buildSimpleKinds();  // between guiDialog and guiRunDialog
void makeOtherKinds();    // while the dialog runs

// Runs a dialog with all of them and, before it is seen, the body.
void withKinds(const std::function<void()>& body);

// "item 0", "item 1" …
std::vector<std::string> numberedItems(int count);
std::string numberedLines(int count);

}  // namespace kite::testing
