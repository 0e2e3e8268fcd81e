// choice.cpp: one of several items, from a list that drops down.

#include <Xm/ComboBox.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "dialogs/building.h"
#include "dialogs/drop_down.h"

namespace {

constexpr kite::DropDownKind kChoice{"v_dlgchoice", XmDROP_DOWN_LIST, true};

}  // namespace

using namespace kite;

int guiChoice(int id, int row, int x, int width)
{
    if (!building::mayCreate("Choice", id, 1)) return GUI_FAILED;

    const Tag tag{id, ControlType::Choice};
    Widget const box = createDropDown(kChoice, tag, row, x, width);
    if (!box) return reportMisuse("Choice: cannot create control %d", id);

    return building::append(id, ControlType::Choice, box);
}
