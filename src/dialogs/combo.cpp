// combo.cpp: a text to type, or to pick from a list that drops down.

#include <Xm/ComboBox.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "dialogs/building.h"
#include "dialogs/drop_down.h"
#include "dialogs/text_field.h"
#include "frame/dispatcher.h"
#include "frame/hover.h"

namespace kite {

namespace {

constexpr DropDownKind kCombo{"v_dlgcombo", XmDROP_DOWN_COMBO_BOX, false};

// Hosts ask for the text when they want it: unlike that of an edit the event says nothing of it.
void changed(Widget, XtPointer tag, XtPointer)
{
    hover::cancel();
    raise(GUI_EVENT_TEXT_CHANGED, Tag{tag}.id());
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiCombo(int id, int row, int x, int width)
{
    if (!building::mayCreate("Combo", id, 1)) return GUI_FAILED;

    const Tag tag{id, ControlType::Combo};
    Widget const box = createDropDown(kCombo, tag, row, x, width);
    if (!box) return reportMisuse("Edit: cannot create control %d", id);  // as edits say it

    noteTyping(fieldOf(box), tag);
    XtAddCallback(fieldOf(box), XmNvalueChangedCallback, changed, tag.userData());
    return building::append(id, ControlType::Combo, box);
}
