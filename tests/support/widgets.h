// widgets.h: finds the widgets of the application under test by their names and reads what they show.
//
//     Widget const text = findWidget("v_text");            // null when there is none
//     EXPECT_EQ(resource<int>(findWidget("v_gauge"), XmNvalue), 40);
//     EXPECT_EQ(labelOf(findWidget("v_sline")), "Ready");

#pragma once

#include <Xm/Xm.h>

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "geometry.h"

namespace kite::testing {

// Children first, then popups, without the widget itself.
std::vector<Widget> childrenOf(Widget widget);

// Depth first through the whole application, or below one widget (which counts as well).
std::vector<Widget> findWidgets(const std::string& name);
std::vector<Widget> findWidgets(const std::string& name, Widget below);
Widget findWidget(const std::string& name);
Widget findWidget(const std::string& name, Widget below);

// The buttons and labels with that text ("&" or mnemonics are no part of it).
Widget findByLabel(const std::string& label, Widget below);

// Visits a widget and everything below it.
void forEachWidget(Widget from, const std::function<void(Widget)>& visit);

template <typename T>
T resource(Widget widget, const char* name)
{
    T value{};
    XtVaGetValues(widget, name, &value, nullptr);
    return value;
}

Widget shellOf(Widget widget);
Window windowOf(Widget widget);  // a gadget's is its parent's; 0 while there is none

// True when the user can see it: managed, and on the screen with everything around it.
bool isShown(Widget widget);

// On the screen, without the border.
Rect rectOf(Widget widget);

// Several lines are divided by '\n'.
std::string toString(XmString string);
std::string labelOf(Widget widget);  // XmNlabelString
std::string messageOf(Widget box);   // the message, or the prompt of a selection box
std::string textOf(Widget textOrTextField);
std::string dialogTitleOf(Widget board);  // XmNdialogTitle

// The name of the first font of a widget's list, as the server knows it; empty when it is none of the server's.
std::string fontNameOf(Widget widget, const char* fontListResource = XmNfontList);

// Names, classes, places and labels, indented: for reports.
void printTree(std::ostream& out, Widget from, int depth = 0);

}  // namespace kite::testing
