#include "boxes/empty_box.h"

#include <Xm/BulletinB.h>
#include <Xm/DialogS.h>

#include "toolkit/compound_string.h"
#include "toolkit/displayable_text.h"
#include "toolkit/shells.h"

namespace kite {

Widget createEmptyBox(Widget parent, const char* shellName, const char* boxName, const char* title)
{
    if (!parent) return nullptr;
    Widget const shell = XtVaCreatePopupShell(shellName, xmDialogShellWidgetClass, parent, XmNtitle,
                                              displayableText(title).c_str(), nullptr);
    if (!shell) return nullptr;
    const CompoundString boxTitle{title};
    Widget const box = XtVaCreateWidget(
        boxName, xmBulletinBoardWidgetClass, shell, XmNdialogStyle, XmDIALOG_FULL_APPLICATION_MODAL,
        XmNdialogTitle, boxTitle.get(), XmNautoUnmanage, False, XmNnoResize, True, nullptr);
    if (!box) destroyShell(shell);
    return box;
}

}  // namespace kite
