#include "boxes/directory_box.h"

#include <Xm/FileSB.h>
#include <Xm/List.h>
#include <Xm/TextF.h>

#include "toolkit/plain_text.h"

namespace kite {

namespace {

// The entry for the parent stands for the directory that is listed, as the one for that directory does: hosts
// ask for a directory, and the user is in it.
std::string directoryOfEntry(std::string entry)
{
    if (entry.ends_with("/.."))
        entry.resize(entry.size() - 3);
    else if (entry.ends_with("/."))
        entry.resize(entry.size() - 2);
    return entry + '/';
}

void browsed(Widget, XtPointer text, XtPointer call)
{
    const auto& browsed = *static_cast<XmListCallbackStruct*>(call);
    std::string directory = directoryOfEntry(plainText(browsed.item));
    XmTextFieldSetString(static_cast<Widget>(text), directory.data());
}

}  // namespace

std::optional<std::string> chooseDirectory(const FileBox::Content& content)
{
    FileBox box{content};
    if (!box.widget()) return std::nullopt;
    Widget const files = box.child(XmDIALOG_LIST);
    box.removeParts({XmDIALOG_LIST, XmDIALOG_LIST_LABEL});
    XtUnmanageChild(XtParent(files));
    XtAddCallback(box.child(XmDIALOG_DIR_LIST), XmNbrowseSelectionCallback, browsed,
                  box.child(XmDIALOG_TEXT));
    const auto directory = box.ask();
    return directory && !directory->empty() ? directory : std::nullopt;
}

}  // namespace kite
