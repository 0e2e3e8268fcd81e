#include "toolkit/menu_keys.h"

#include <Xm/MenuT.h>
#include <Xm/TraitP.h>

namespace kite {

// The toolkit's own way from "the button is still held" to "the menu stays", which it takes when a menu is clicked
// open.
void giveKeyboardToMenu(Widget menu)
{
    const auto* const menus = static_cast<XmMenuSystemTrait>(
        XmeTraitGet(reinterpret_cast<XtPointer>(XtClass(menu)), XmQTmenuSystem));
    if (menus) menus->controlTraversal(menu, True);
}

}  // namespace kite
