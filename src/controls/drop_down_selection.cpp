#include "controls/drop_down_selection.h"

#include <Xm/ComboBoxP.h>
#include <Xm/List.h>
#include <Xm/TextF.h>

#include "controls/items.h"
#include "dialogs/drop_down.h"
#include "dialogs/text_field.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

bool hasSelection(Widget box)
{
    return resource<int>(listOf(box), XmNselectedPositionCount) > 0;
}

// The toolkit warns of others. 0 is the last item.
bool hasPosition(Widget list, int toolkitPosition)
{
    const int count = itemCount(list);
    return count > 0 && toolkitPosition >= 0 && toolkitPosition <= count;
}

bool isTyped(Widget box)
{
    return reinterpret_cast<XmComboBoxWidget>(box)->combo_box.text_changed;
}

void clearText(Widget box)
{
    XmTextFieldSetString(fieldOf(box), const_cast<char*>(""));
    forgetTyping(box);
}

}  // namespace

// The toolkit notes every change of the text as typed, and reports it when the box is left.
void forgetTyping(Widget box)
{
    reinterpret_cast<XmComboBoxWidget>(box)->combo_box.text_changed = False;
}

int selectedPosition(Widget box)
{
    return resource<int>(box, XmNselectedPosition);
}

// Deselected first: the toolkit does nothing for a position that is selected, though another text may have
// been typed.
void selectPosition(Widget box, int position)
{
    if (position < 0 || position >= itemCount(listOf(box))) return;
    XmListDeselectAllItems(listOf(box));
    XtVaSetValues(box, XmNselectedPosition, position, nullptr);
    forgetTyping(box);
}

void clearSelection(Widget box)
{
    XmListDeselectAllItems(listOf(box));
    clearText(box);
}

// The toolkit sets the text once more, unless something has been typed.
void insertItem(Widget box, XmString item, int toolkitPosition)
{
    const bool wasTyped = isTyped(box);
    XmComboBoxAddItem(box, item, toolkitPosition, False);
    if (!wasTyped) forgetTyping(box);
}

// When the selected item goes the toolkit selects the one behind it, but none for the last item, and
// goes on showing what is not there any more.
void deleteItem(Widget box, int toolkitPosition)
{
    Widget const list = listOf(box);
    const bool hadSelection = hasSelection(box);
    const bool wasTyped = isTyped(box);
    if (hasPosition(list, toolkitPosition)) XmComboBoxDeletePos(box, toolkitPosition);
    fitDropDownList(box);
    const int count = itemCount(list);
    if (count == 0) return clearText(box);
    if (hadSelection && !hasSelection(box)) selectPosition(box, count - 1);
    XmComboBoxUpdate(box);
    if (!wasTyped) forgetTyping(box);
}

void deleteAllItems(Widget box)
{
    XmListDeleteAllItems(listOf(box));
    clearText(box);
    fitDropDownList(box);
}

}  // namespace kite
