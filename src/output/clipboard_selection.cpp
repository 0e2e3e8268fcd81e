// clipboard_selection.cpp: the selection of a text, cut, copied and replaced by what is on the clipboard.

#include <Xm/Text.h>
#include <Xm/TextF.h>
#include <kitegui.h>

#include <algorithm>
#include <cstring>
#include <string_view>

#include "frame/main_frame.h"
#include "frame/top_window.h"
#include "output/copied_text.h"
#include "toolkit/clipboard.h"
#include "toolkit/displayable_text.h"
#include "toolkit/shells.h"
#include "toolkit/text_selection.h"
#include "toolkit/widget_ref.h"
#include "toolkit/xt_string.h"

namespace kite::output {

Widget copier()
{
    Widget const shell = frame::widgets().shell;
    return shell ? shell : shellOf(boxParent());
}

namespace {

bool isText(Widget widget)
{
    return widget && (XmIsText(widget) || XmIsTextField(widget));
}

// True when the selection is on the clipboard now.
bool copySelection(Widget text)
{
    if (!isText(text)) return false;
    const XtString selected{XmTextGetSelection(text)};
    if (!selected || !isCopyable(std::strlen(selected.get()))) return false;
    Clipboard clipboard{copier()};
    if (!clipboard) return false;
    clipboard.put(selected.get());
    return true;
}

// Makes room for what is pasted, and says where.
XmTextPosition removeSelection(Widget text)
{
    if (!hasUsableSelection(text)) return XmTextGetInsertionPosition(text);
    const auto [left, right] = selectionOf(text);
    if (!XmTextRemove(text)) XmTextReplace(text, left, right, const_cast<char*>(""));  // read-only
    XmTextSetInsertionPosition(text, left);
    return left;
}

// As much as the field can hold of it. Calls of the program's may go beyond what the toolkit can show.
char* fitting(TextCopy& pasted, Widget text)
{
    if (!XmIsTextField(text)) return pasted.bytes.get();
    const auto room =
        std::max<XmTextPosition>(0, kLongestEditableText - XmTextGetLastPosition(text));
    if (pasted.length > static_cast<std::size_t>(room))
        pasted.bytes[static_cast<std::size_t>(room)] = '\0';
    return pasted.bytes.get();
}

// A dialog that is about to be shown has no window yet.
TextCopy plainTextFor(Widget window)
{
    Clipboard clipboard{window && XtIsWidget(window) && XtIsRealized(window) ? window : copier()};
    return clipboard ? clipboard.text({kPlainText}) : TextCopy{};
}

}  // namespace

}  // namespace kite::output

using namespace kite;
using namespace kite::output;

void guiCopySel(GuiWidget text)
{
    copySelection(text);
}

// What could not be copied is not cut: it would be lost.
void guiCutSel(GuiWidget text)
{
    if (copySelection(text)) XmTextRemove(text);
}

// Hears of it in the name of the top window: copies are made in the name of the frame. Removing the selection may
// call a handler, and so may waiting for the text.
void guiPasteSel(GuiWidget text)
{
    if (!isText(text)) return;
    const WidgetRef alive{text};
    const XmTextPosition position = removeSelection(text);
    TextCopy pasted = plainTextFor(topWindow());
    if (!pasted.bytes || !alive) return;
    XmTextInsert(text, position, fitting(pasted, text));
    if (alive) XmTextSetInsertionPosition(text, position);
}
