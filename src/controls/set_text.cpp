// set_text.cpp: gives a control its text.

#include <Xm/ComboBox.h>
#include <Xm/Label.h>
#include <Xm/SSpinB.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>
#include <kitegui.h>

#include <cstdio>
#include <cstdlib>

#include "controls/drop_down_selection.h"
#include "controls/edited_text.h"
#include "controls/value_range.h"
#include "dialogs/control_lookup.h"
#include "dialogs/text_field.h"
#include "frame/dispatcher.h"
#include "toolkit/compound_string.h"
#include "toolkit/host_buffer.h"
#include "toolkit/label_text.h"
#include "toolkit/paint_now.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

using enum ControlType;

void setLabel(Widget label, const char* text)
{
    const CompoundString string{controlLabel(text).c_str()};
    XtVaSetValues(label, XmNlabelString, string.get(), nullptr);
}

// A button that showed an image shows its text again.
void setButtonLabel(Widget button, const char* text)
{
    const CompoundString string{controlLabel(text).c_str()};
    XtVaSetValues(button, XmNlabelType, XmSTRING, XmNlabelString, string.get(), nullptr);
}

void clearField(Widget composed)
{
    if (Widget const field = fieldOf(composed)) XtVaSetValues(field, XmNvalue, nullptr, nullptr);
}

void setComboText(Widget combo, const char* text)
{
    clearSelection(combo);
    const CompoundString item{text};
    XtVaSetValues(combo, XmNselectedItem, item.get(), nullptr);
    forgetTyping(combo);
}

// The number itself, other than guiSetPos, which counts from the one before: hosts use both.
void setSpinText(Widget spin, const char* text)
{
    clearField(spin);
    setSpinPosition(spin, std::strtol(text, nullptr, 10));
}

struct Setter {
    ControlType type;
    void (*set)(Widget control, const char* text);
    void (*show)(Widget control);  // texts and their fields paint themselves
};

constexpr Setter kSetters[] = {{Label, setLabel, paintNow},    {Check, setLabel, paintNow},
                               {Radio, setLabel, paintNow},    {Button, setButtonLabel, paintNow},
                               {Edit, setEditedText, sendNow}, {Text, setEditedText, sendNow},
                               {Combo, setComboText, sendNow}, {Spin, setSpinText, sendNow}};

constexpr TypeSet kWithText{Label, Edit, Button, Check, Radio, Text, Combo, Spin};

// A shorter or longer text changes them, and the toolkit only clears them at first.
void paintScrollBarsNow(Widget scrolled)
{
    for (const char* const name : {XmNverticalScrollBar, XmNhorizontalScrollBar})
        if (auto* const bar = resource<Widget>(scrolled, name)) paintNow(bar);
}

void setText(const Control& control, const char* text)
{
    const EventsSuppressed quiet;
    for (const Setter& setter : kSetters) {
        if (setter.type != control.type) continue;
        setter.set(control.widget, text);
        setter.show(control.widget);
    }
    if (control.outer != control.widget) paintScrollBarsNow(control.outer);
}

}  // namespace

}  // namespace kite

using namespace kite;

void guiSetText(int id, const char* text)
{
    if (const Control control = findControl("SetText", id, kWithText))
        setText(control, orEmpty(text));
}

void guiSetTextDbl(int id, double value)
{
    char text[64];
    std::snprintf(text, sizeof text, "%g", value);
    guiSetText(id, text);
}

void guiSetTextInt(int id, int value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%d", value);
    guiSetText(id, text);
}
