#include "output/edit_popup.h"

#include <Xm/Text.h>
#include <kitegui.h>

#include "frame/hover.h"
#include "frame/main_frame.h"
#include "toolkit/server_time.h"
#include "toolkit/text_selection.h"
#include "toolkit/widget_ref.h"

namespace kite {

namespace {

bool isOutputArea(Widget text)
{
    return text == frame::widgets().text;
}

void clear(Widget text)
{
    if (isOutputArea(text))
        guiClearOutput();
    else
        clearSelectionOrAll(text);
}

void selectAll(Widget text)
{
    if (isOutputArea(text))
        guiSelOutputLine(1, 0, -1);
    else
        XmTextSetSelection(text, 0, XmTextGetLastPosition(text), serverTime(XtDisplay(text)));
}

struct Item {
    const char* name;  // null: a separator
    bool changes;      // the text: nothing for one that is there to be read only
    void (*act)(Widget text);
};

constexpr Item kItems[] = {{"Cu&t", true, guiCutSel},     {"&Copy", false, guiCopySel},
                           {"&Paste", true, guiPasteSel}, {"C&lear", true, clear},
                           {nullptr, false, nullptr},     {"Select &All", false, selectAll}};

// Null: none was picked.
const Item* pickedItem()
{
    if (!guiCreatePopMenu()) return nullptr;
    for (const Item& item : kItems) item.name ? guiAppendPopMenu(item.name) : guiSepPopMenu();
    int number = guiShowPopMenu(-1, -1, 0, 0);
    for (const Item& item : kItems)
        if (item.name && --number == 0) return &item;
    return nullptr;
}

void released(Widget, XtPointer data, XEvent* event, Boolean*)
{
    if (event->xbutton.button != Button3) return;
    hover::cancel();
    const WidgetRef text{static_cast<Widget>(data)};
    const Item* const item = pickedItem();
    if (!item || !text) return;
    if (!item->changes || XmTextGetEditable(text.get())) item->act(text.get());
}

}  // namespace

void offerEditPopup(Widget watched, Widget text)
{
    XtAddEventHandler(watched, ButtonReleaseMask, False, released, text);
}

}  // namespace kite
