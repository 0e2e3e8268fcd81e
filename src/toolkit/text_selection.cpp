#include "toolkit/text_selection.h"

#include <Xm/Text.h>

namespace kite {

TextRange selectionOf(Widget text)
{
    TextRange range;
    if (!XmTextGetSelectionPosition(text, &range.left, &range.right)) return {};
    return range;
}

bool hasUsableSelection(Widget text)
{
    const auto [left, right] = selectionOf(text);
    return left >= 0 && right > left && right <= XmTextGetLastPosition(text);
}

void clearSelectionOrAll(Widget text)
{
    char nothing[] = "";
    const auto [left, right] = selectionOf(text);
    if (hasUsableSelection(text))
        XmTextReplace(text, left, right, nothing);
    else
        XmTextSetString(text, nothing);
}

}  // namespace kite
