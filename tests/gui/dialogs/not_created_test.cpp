// The toolkit cannot make a part of the dialog: the host hears of it, and nothing is left.

#include <Xm/Xm.h>
#include <dlfcn.h>

#include <cstdarg>

#include "dialogs_support.h"

using namespace kite::testing;

namespace {

bool hasNoBoard = false;  // the toolkit makes none, as long as it is set
bool hasNoFont = false;   // and finds no font in a list

void expectFailure(bool& isMissing, const std::string& message)
{
    isMissing = true;
    EXPECT_MISUSE(guiDialog("Dialog"), message, -1);
    isMissing = false;
    EXPECT_TRUE(pumpUntil([] { return findWidgets("v_dlgshell").empty(); }));
    EXPECT_MISUSE(guiRunDialog(nullptr), "RunDialog: no prepared dialog", -1);
    // The next one is not concerned.
    buildDialog();
    EXPECT_EQ(runWhileShown([](Shown) {}), 1);
}

}  // namespace

// The program's own come before the toolkit's. Names and values only, as the library passes them.
extern "C" Widget XtVaCreateWidget(const char* name, WidgetClass kind, Widget parent, ...)
{
    if (hasNoBoard && std::string{"v_dlgbbr"} == name) return nullptr;
    std::vector<Arg> arguments;
    va_list list;
    va_start(list, parent);
    while (char* const resourceName = va_arg(list, char*)) {
        const XtArgVal value = va_arg(list, XtArgVal);
        arguments.push_back({resourceName, value});
    }
    va_end(list);
    return XtCreateWidget(name, kind, parent, arguments.data(),
                          static_cast<Cardinal>(arguments.size()));
}

extern "C" XtPointer XmFontListEntryGetFont(XmFontListEntry entry, XmFontType* type)
{
    using Function = XtPointer (*)(XmFontListEntry, XmFontType*);
    static const auto toolkits =
        reinterpret_cast<Function>(dlsym(RTLD_NEXT, "XmFontListEntryGetFont"));
    return hasNoFont ? nullptr : toolkits(entry, type);
}

GUI_TEST(DialogNotCreated, WithoutABoard)
{
    expectFailure(hasNoBoard, "Dialog: cannot create bulletin board widget");
}

GUI_TEST(DialogNotCreated, WithoutAFont)
{
    expectFailure(hasNoFont, "Dialog: cannot retrieve dialog font");
}
