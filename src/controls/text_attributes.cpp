// text_attributes.cpp: colours and fonts of controls.

#include <kitegui.h>

#include "controls/control_colours.h"
#include "controls/control_font.h"

using namespace kite;

void guiSetTextAtt(int id, char flags, const char* attr)
{
    const Control control = findControl("SetText", id);
    if (!control) return;
    const TextAttribute attribute = parseTextAttribute(flags, attr);
    setColours(control, attribute);
    if (attribute.kind != TextAttribute::Kind::Colours) setFontAndHeight(control, attribute);
}
