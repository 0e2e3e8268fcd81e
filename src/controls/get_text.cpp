// get_text.cpp: reads the text of a control.

#include <kitegui.h>

#include <cstdlib>

#include "boxes/misuse.h"
#include "controls/control_text.h"
#include "dialogs/control_lookup.h"
#include "toolkit/host_buffer.h"

namespace kite {

namespace {

using enum ControlType;

constexpr TypeSet kReadable{Label, Edit, Button, Check, Radio, Choice,
                            List,  Text, Combo,  Tree,  Spin};

// The label of a tree item can be read, but hosts have never been told its length.
constexpr TypeSet kMeasurable{Label, Edit, Button, Check, Radio, Choice, List, Text, Combo, Spin};

constexpr int kLongestNumber = 256;  // with the terminating null

// What stands in the control, as a number; 0 for nothing and after an error box.
template <typename Number>
Number number(int id, Number (*parse)(const char*))
{
    char text[kLongestNumber];
    return guiGetText(id, text, sizeof text) > 0 ? parse(text) : Number{};
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiGetText(int id, char* buffer, int size)
{
    if (!isUsableBuffer(buffer, size)) return reportMisuse("GetText: invalid buffer");
    buffer[0] = '\0';
    const Control control = findControl("GetText", id, kReadable);
    if (!control) return GUI_FAILED;
    const auto text = textOf(control);
    return text ? copyToBuffer(buffer, size, *text) : GUI_FAILED;
}

int guiGetTextLen(int id)
{
    const Control control = findControl("GetTextLen", id, kMeasurable);
    if (!control) return GUI_FAILED;
    const auto text = textOf(control);
    return text ? static_cast<int>(text->length()) : GUI_FAILED;
}

double guiGetTextDbl(int id)
{
    return number<double>(id, std::atof);
}

int guiGetTextInt(int id)
{
    return number<int>(id, std::atoi);
}
