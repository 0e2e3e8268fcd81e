#include "controls/edited_text.h"

#include <Xm/Text.h>

namespace kite {

void setEditedText(Widget edited, const char* text)
{
    XmTextDisableRedisplay(edited);
    XmTextSetString(edited, const_cast<char*>(""));
    XmTextSetString(edited, const_cast<char*>(text));
    XmTextEnableRedisplay(edited);
}

}  // namespace kite
