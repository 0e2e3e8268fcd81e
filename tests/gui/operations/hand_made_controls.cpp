#include <gtest/gtest.h>

#include "hand_made_controls.h"

#include <Xm/ComboBox.h>
#include <Xm/Container.h>
#include <Xm/IconG.h>
#include <Xm/List.h>
#include <Xm/SSpinB.h>
#include <Xm/Scale.h>
#include <Xm/ScrolledW.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>
#include <kitegui.h>

#include "dialog_plan.h"
#include "robot.h"
#include "widgets.h"

namespace kite::testing {

namespace {

constexpr int kColumn = 190;  // pixels
constexpr int kSmall = 26;
constexpr int kLargeHeight = 90;

XtPointer tagOf(int id, Kind kind)
{
    const auto tag = static_cast<std::int32_t>(static_cast<unsigned>(id) << 16 | kind);
    return reinterpret_cast<XtPointer>(static_cast<std::intptr_t>(tag));
}

struct Place {
    int column;
    int y;
    int height;
};

template <typename... Resources>
Widget make(const char* name, WidgetClass widgetClass, int id, Kind kind, const Place& place,
            Resources... resources)
{
    return XtVaCreateManagedWidget(name, widgetClass, guiGetTopWnd(), XmNx,
                                   10 + place.column * kColumn, XmNy, place.y, XmNwidth,
                                   kColumn - 10, XmNheight, place.height, XmNuserData,
                                   tagOf(id, kind), resources..., nullptr);
}

Widget makeScrolled(int id, Kind kind, const Place& place, int shadow, unsigned char policy)
{
    return make("v_dlgscroll", xmScrolledWindowWidgetClass, id, kind, place, XmNshadowThickness,
                shadow, XmNhighlightThickness, 1, XmNspacing, 0, XmNscrollingPolicy, policy,
                XmNvisualPolicy, policy == XmAUTOMATIC ? XmCONSTANT : XmVARIABLE,
                XmNscrollBarDisplayPolicy, XmSTATIC);
}

void fillList(Widget list, const std::vector<std::string>& items)
{
    for (const std::string& item : items) {
        XmString const string = XmStringCreateLocalized(const_cast<char*>(item.c_str()));
        XmListAddItemUnselected(list, string, 0);
        XmStringFree(string);
    }
}

Widget makeComboBox(const char* name, int id, Kind kind, const Place& place, unsigned char type,
                    const std::vector<std::string>& items)
{
    Widget const combo = make(name, xmComboBoxWidgetClass, id, kind, place, XmNcomboBoxType, type,
                              XmNshadowThickness, 1, XmNhighlightThickness, 1, XmNmarginWidth, 1,
                              XmNmarginHeight, 1);
    fillList(resource<Widget>(combo, XmNlist), items);
    XtVaSetValues(resource<Widget>(combo, XmNtextField), XmNcursorPositionVisible, False, nullptr);
    return combo;
}

}  // namespace

Widget makeChoice(int id, const std::vector<std::string>& items)
{
    return makeComboBox("v_dlgchoice", id, ChoiceBox, {2, 10, kSmall}, XmDROP_DOWN_LIST, items);
}

Widget makeCombo(int id, const std::vector<std::string>& items)
{
    return makeComboBox("v_dlgcombo", id, Combo, {2, 40, kSmall}, XmDROP_DOWN_COMBO_BOX, items);
}

Widget makeSpin(int id)
{
    return make("v_dlgspinbox", xmSimpleSpinBoxWidgetClass, id, Spin, {2, 70, kSmall},
                XmNmarginWidth, 0, XmNmarginHeight, 0, XmNshadowThickness, 1, XmNhighlightThickness,
                1, XmNspinBoxChildType, XmNUMERIC, XmNminimumValue, 0, XmNmaximumValue, 100,
                XmNincrementValue, 1, XmNeditable, True, XmNnavigationType, XmEXCLUSIVE_TAB_GROUP);
}

Widget makeSlider(int id)
{
    return make("v_dlgscale", xmScaleWidgetClass, id, Slider, {2, 100, kSmall}, XmNorientation,
                XmHORIZONTAL, XmNmaximum, 100, XmNnavigationType, XmEXCLUSIVE_TAB_GROUP);
}

Widget makeProgress(int id)
{
    return make("v_dlgprogress", xmScaleWidgetClass, id, Progress, {2, 130, kSmall}, XmNorientation,
                XmHORIZONTAL, XmNminimum, 0, XmNmaximum, 100, XmNslidingMode, XmTHERMOMETER);
}

Widget makeList(int id, const std::vector<std::string>& items, unsigned char policy)
{
    Widget const scrolled =
        makeScrolled(id, List, {0, 280, kLargeHeight}, 2, XmAPPLICATION_DEFINED);
    Widget const list = XtVaCreateManagedWidget(
        "v_dlglist", xmListWidgetClass, scrolled, XmNshadowThickness, 0, XmNhighlightThickness, 1,
        XmNlistSizePolicy, XmCONSTANT, XmNselectionPolicy, policy, XmNuserData, nullptr, nullptr);
    fillList(list, items);
    return list;
}

Widget makeText(int id, const std::string& text)
{
    Widget const scrolled =
        makeScrolled(id, MultiLine, {1, 280, kLargeHeight}, 0, XmAPPLICATION_DEFINED);
    return XtVaCreateManagedWidget(
        "v_dlgtext", xmTextWidgetClass, scrolled, XmNeditMode, XmMULTI_LINE_EDIT,
        XmNshadowThickness, 2, XmNhighlightThickness, 0, XmNmarginWidth, 3, XmNmarginHeight, 1,
        XmNcursorPositionVisible, False, XmNuserData, nullptr, XmNvalue, text.c_str(), nullptr);
}

Widget makeTree(int id, const std::vector<std::string>& items)
{
    Widget const scrolled = makeScrolled(id, Tree, {2, 280, kLargeHeight}, 2, XmAUTOMATIC);
    Widget const tree = XtVaCreateManagedWidget(
        "v_dlgtree", xmContainerWidgetClass, scrolled, XmNlayoutType, XmOUTLINE, XmNselectionPolicy,
        XmBROWSE_SELECT, XmNshadowThickness, 0, XmNhighlightThickness, 0, XmNnavigationType,
        XmEXCLUSIVE_TAB_GROUP, XmNuserData, nullptr, nullptr);
    std::intptr_t number = 0;
    for (const std::string& item : items) {
        XmString const label = XmStringCreateLocalized(const_cast<char*>(item.c_str()));
        XtVaCreateManagedWidget("item", xmIconGadgetClass, tree, XmNlabelString, label, XmNuserData,
                                reinterpret_cast<XtPointer>(++number), nullptr);
        XmStringFree(label);
    }
    return tree;
}

void selectTreeItem(Widget tree, const std::string& item)
{
    for (Widget const child : childrenOf(tree)) {
        if (!XtIsSubclass(child, xmIconGadgetClass)) continue;
        auto* const label = resource<XmString>(child, XmNlabelString);
        const bool isIt = toString(label) == item;
        XmStringFree(label);
        if (isIt) return Robot::instance().click(child);
    }
    ADD_FAILURE() << "The tree has no item " << item;
}

void buildSimpleKinds()
{
    guiLabel(Label, 0, 0, 60, "Label");
    guiEdit(Edit, 1, 0, 60, 0, 0);
    guiButton(PushButton, 2, 0, 60, "Button", 0);
    guiCheck(Check, 3, 0, 60, "Check");
    guiRadio(Radio, 4, 0, 60, "Radio");
    guiLine(Line, 5, 1, 0, 60);
    guiImage(Image, 0, 3, 80, 40, 1);
}

void makeOtherKinds()
{
    makeChoice(ChoiceBox, {"one", "two"});
    makeList(List, numberedItems(20));
    makeText(MultiLine, numberedLines(20));
    makeCombo(Combo, {"red", "green"});
    makeProgress(Progress);
    makeTree(Tree, {"root", "branch"});
    makeSlider(Slider);
    makeSpin(Spin);
}

void withKinds(const std::function<void()>& body)
{
    runDialog({.build = buildSimpleKinds, .fill = [&] {
                   makeOtherKinds();
                   body();
               }});
}

std::vector<std::string> numberedItems(int count)
{
    std::vector<std::string> items;
    for (int i = 0; i < count; ++i) items.push_back("item " + std::to_string(i));
    return items;
}

std::string numberedLines(int count)
{
    std::string lines;
    for (int i = 0; i < count; ++i) lines += "line " + std::to_string(i) + '\n';
    return lines;
}

}  // namespace kite::testing
