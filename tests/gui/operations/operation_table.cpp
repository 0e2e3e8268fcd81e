#include <gtest/gtest.h>

#include "operation_table.h"

#include <Xm/Label.h>
#include <Xm/List.h>
#include <Xm/SSpinB.h>
#include <Xm/Scale.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>
#include <kitegui.h>

#include <sstream>

#include "dialog_plan.h"

namespace kite::testing {

namespace {

const std::set<int> kEnabled{Label,     Edit,  PushButton, Check, Radio,  ChoiceBox, List,
                             MultiLine, Combo, Progress,   Tree,  Slider, Spin};
const std::set<int> kFocusable{Edit,      PushButton, Check, Radio,  ChoiceBox, List,
                               MultiLine, Combo,      Tree,  Slider, Spin};
const std::set<int> kTextSettable{Label, Edit, PushButton, Check, Radio, MultiLine, Combo, Spin};
const std::set<int> kReadable{Label, Edit,      PushButton, Check, Radio, ChoiceBox,
                              List,  MultiLine, Combo,      Tree,  Spin};
const std::set<int> kMeasurable{Label,     Edit, PushButton, Check, Radio,
                                ChoiceBox, List, MultiLine,  Combo, Spin};
const std::set<int> kRanged{Edit, MultiLine, Progress, Slider, Spin};
const std::set<int> kPositioned{ChoiceBox, List, MultiLine, Progress, Tree, Slider, Spin};
const std::set<int> kPositionable{Edit, List, MultiLine, Progress, Tree, Slider, Spin};

double getText(int id)
{
    char buffer[16] = "before";
    const int length = guiGetText(id, buffer, sizeof buffer);
    if (length < 0) {
        EXPECT_STREQ(buffer, "") << "a failed call empties the buffer";
    }
    return length;
}

template <typename T>
void write(std::ostream& out, Widget widget, const char* name)
{
    out << ' ' << name << '=' << resource<T>(widget, name);
}

void writeState(std::ostream& out, Widget widget)
{
    out << XtName(widget);
    for (const char* const name : {XmNx, XmNy}) write<Position>(out, widget, name);
    for (const char* const name : {XmNwidth, XmNheight}) write<Dimension>(out, widget, name);
    out << ' ' << int{resource<Boolean>(widget, XmNsensitive)};
    if (XtIsWidget(widget)) out << ' ' << int{resource<Boolean>(widget, XmNmappedWhenManaged)};
    out << " \"" << labelOf(widget) << '"';
    if (XmIsLabel(widget)) {
        out << ' ' << int{resource<unsigned char>(widget, XmNlabelType)};
        write<Pixmap>(out, widget, XmNlabelPixmap);
    }
    if (XmIsToggleButton(widget)) out << ' ' << int{resource<unsigned char>(widget, XmNset)};
    if (XmIsText(widget) || XmIsTextField(widget)) {
        out << " \"" << textOf(widget) << '"';
        write<int>(out, widget, XmNmaxLength);
        write<XmTextPosition>(out, widget, XmNcursorPosition);
    }
    if (XmIsText(widget)) write<XmTextPosition>(out, widget, XmNtopCharacter);
    if (XmIsList(widget))
        for (const char* const name : {XmNtopItemPosition, XmNitemCount, XmNselectedPositionCount})
            write<int>(out, widget, name);
    if (XmIsScale(widget))
        for (const char* const name : {XmNvalue, XmNminimum, XmNmaximum})
            write<int>(out, widget, name);
    if (XtIsSubclass(widget, xmSimpleSpinBoxWidgetClass))
        for (const char* const name : {XmNposition, XmNminimumValue, XmNmaximumValue})
            write<int>(out, widget, name);
    out << '\n';
}

}  // namespace

const std::vector<Operation>& controlOperations()
{
    static const std::vector<Operation> operations = {
        {"guiIdStatus", "IdStatus", kAll, true, -1, guiIdStatus},
        {"guiEnable", "Enable", kEnabled, false, 0, quietly([](int id) { guiEnable(id, 0); })},
        {"guiSetFocus", "SetFocus", kFocusable, false, 0, quietly(guiSetFocus)},
        {"guiSetVisible", "SetVisible", kAll, false, 0,
         quietly([](int id) { guiSetVisible(id, 0); })},
        {"guiSetText", "SetText", kTextSettable, false, 0,
         quietly([](int id) { guiSetText(id, "7"); })},
        {"guiSetTextDbl", "SetText", kTextSettable, false, 0,
         quietly([](int id) { guiSetTextDbl(id, 8.0); })},
        {"guiSetTextInt", "SetText", kTextSettable, false, 0,
         quietly([](int id) { guiSetTextInt(id, 9); })},
        {"guiGetText", "GetText", kReadable, false, -1, getText},
        {"guiGetTextDbl", "GetText", kReadable, false, 0, guiGetTextDbl},
        {"guiGetTextInt", "GetText", kReadable, false, 0, guiGetTextInt},
        {"guiGetTextLen", "GetTextLen", kMeasurable, false, -1, guiGetTextLen},
        {"guiInsertText", "InsertText", {MultiLine}, false, 0, quietly([](int id) {
             guiInsertText(id, "new");
         })},
        {"guiGetCheck", "GetCheck", {Check, Radio}, false, -1, guiGetCheck},
        {"guiSetCheck", "SetCheck", {Check, Radio}, false, 0, quietly([](int id) {
             guiSetCheck(id, 1);
         })},
        {"guiSetRange", "SetRange", kRanged, false, 0,
         quietly([](int id) { guiSetRange(id, 2, 50); })},
        {"guiSetImage",
         "SetImage",
         {PushButton, Image},
         false,
         -1,
         [](int id) { return double(guiSetImage(id, "")); }},
        {"guiGetTop", "GetTop", {List, MultiLine, Tree}, false, -1, guiGetTop},
        {"guiSetTop", "SetTop", {List, MultiLine}, false, 0, quietly([](int id) {
             guiSetTop(id, 0);
         })},
        {"guiGetPos", "GetPos", kPositioned, false, -1, guiGetPos},
        {"guiSetPos", "SetPos", kPositionable, false, 0,
         quietly([](int id) { guiSetPos(id, 1); })}};
    return operations;
}

const std::vector<Operation>& allOperations()
{
    static const std::vector<Operation> operations = [] {
        std::vector<Operation> all = controlOperations();
        all.insert(all.end(), itemOperations().begin(), itemOperations().end());
        return all;
    }();
    return operations;
}

std::string stateOfDialog()
{
    std::ostringstream out;
    forEachWidget(board(), [&](Widget widget) {
        if (XtIsSubclass(widget, rectObjClass) && !XtIsShell(widget)) writeState(out, widget);
    });
    out << guiGetFocus();
    return out.str();
}

}  // namespace kite::testing
