// clipboard_selection.cpp: the selection of a text, cut, copied and replaced by what is on the clipboard.

#include <Xm/Text.h>
#include <Xm/TextF.h>
#include <kitegui.h>

#include <cstring>
#include <string_view>

#include "frame/main_frame.h"
#include "frame/top_window.h"
#include "output/copied_text.h"
#include "toolkit/clipboard.h"
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
    const XmTextPosition left = selectionOf(text).left;
    XmTextRemove(text);
    XmTextSetInsertionPosition(text, left);
    return left;
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
    const TextCopy pasted = plainTextFor(topWindow());
    if (!pasted.bytes || !alive) return;
    XmTextInsert(text, position, pasted.bytes.get());
    if (alive) XmTextSetInsertionPosition(text, position);
}
