// owner_host: a host program with an Xt application of its own, which uses the library for its boxes.
// Asks one question and prints the answer, and which of the toolkit's libraries the linker put first.
// With the argument "leave-widgets" it closes its display at the end without destroying its widgets.

#include <Xm/Label.h>
#include <Xm/Xm.h>
#include <kitegui.h>
#include <link.h>

#include <cstdio>
#include <cstring>
#include <initializer_list>
#include <string_view>

namespace {

int noteFirst(dl_phdr_info* library, size_t, void* first)
{
    auto& name = *static_cast<const char**>(first);
    for (const char* const candidate : {"libXt", "libXm"})
        if (std::strstr(library->dlpi_name, candidate)) name = candidate;
    return name != nullptr;
}

const char* firstToolkitLibrary()
{
    const char* name = nullptr;
    dl_iterate_phdr(noteFirst, &name);
    return name ? name : "none";
}

void ask(XtPointer application, XtIntervalId*)
{
    std::printf("answer %d\n", guiYesNoBox("Do hosts have owners?"));
    XtAppSetExitFlag(static_cast<XtAppContext>(application));
}

}  // namespace

int main(int argc, char** argv)
{
    const bool leavesWidgets = argc > 1 && std::string_view{argv[1]} == "leave-widgets";
    std::printf("first %s\n", firstToolkitLibrary());
    XtAppContext application = nullptr;
    int count = 1;
    Widget const shell = XtVaOpenApplication(&application, "OwnerHost", nullptr, 0, &count, argv,
                                             nullptr, applicationShellWidgetClass, nullptr);
    XtVaCreateManagedWidget("label", xmLabelWidgetClass, shell, XmNwidth, 300, XmNheight, 100,
                            nullptr);
    XtRealizeWidget(shell);
    guiSetOwner(shell);
    XtAppAddTimeOut(application, 1, ask, application);
    XtAppMainLoop(application);
    if (!leavesWidgets) XtDestroyWidget(shell);
    XtDestroyApplicationContext(application);
}
