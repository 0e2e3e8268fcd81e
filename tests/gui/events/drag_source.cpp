// drag_source: another client, which offers something for dragging: press button 2 in its window and
// drag. Arguments: what it offers (see offers), and the file name or text. Prints what it is asked for.

#include <Xm/Display.h>
#include <Xm/DragDrop.h>
#include <Xm/Label.h>
#include <Xm/Xm.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <thread>
#include <vector>

namespace {

struct Offer {
    std::string_view name;
    bool fileName;  // which targets it names
    bool text;
    bool delivers;  // or refuses when it is asked
    int format;     // bits of each item
    int delay;      // milliseconds until it answers
};

constexpr Offer offers[] = {
    {"file", true, false, true, 8, 0},              //
    {"slow-file", true, false, true, 8, 400},       //
    {"file-and-text", true, true, true, 8, 0},      //
    {"text", false, true, true, 8, 0},              //
    {"file-of-numbers", true, false, true, 32, 0},  //
    {"refused-file", true, false, false, 8, 0},     //
};

struct {
    const Offer* offer = nullptr;  // both are set by main
    const char* bytes = "";
} state;

struct XlibString {
    explicit XlibString(char* owned) : text(owned) {}
    ~XlibString() { XFree(text); }
    XlibString(const XlibString&) = delete;
    XlibString& operator=(const XlibString&) = delete;

    char* text;
};

Atom atom(Widget widget, const char* name)
{
    return XInternAtom(XtDisplay(widget), name, False);
}

bool hasTarget(Widget widget, Atom target)
{
    return (target == atom(widget, "FILE_NAME") && state.offer->fileName) ||
           (target == XA_STRING && state.offer->text);
}

Boolean convert(Widget context, Atom*, Atom* target, Atom* type, XtPointer* value,
                unsigned long* length, int* format, unsigned long*, XtPointer, XtRequestId*)
{
    const XlibString asked{XGetAtomName(XtDisplay(context), *target)};
    std::printf("asked for %s\n", asked.text);
    std::fflush(stdout);
    std::this_thread::sleep_for(std::chrono::milliseconds{state.offer->delay});
    if (!state.offer->delivers || !hasTarget(context, *target)) return False;
    *type = XA_STRING;
    *format = state.offer->format;
    if (*format == 8) {
        *length = std::strlen(state.bytes);
        *value = XtNewString(const_cast<char*>(state.bytes));
    } else {
        constexpr unsigned long kCount = 4;
        *length = kCount;
        *value = XtCalloc(kCount, sizeof(long));
    }
    return True;
}

void beginDrag(Widget label, XEvent* event, String*, Cardinal*)
{
    std::vector<Atom> targets;
    if (state.offer->fileName) targets.push_back(atom(label, "FILE_NAME"));
    if (state.offer->text) targets.push_back(XA_STRING);
    Arg arguments[4];
    XtSetArg(arguments[0], XmNexportTargets, targets.data());
    XtSetArg(arguments[1], XmNnumExportTargets, targets.size());
    XtSetArg(arguments[2], XmNdragOperations, XmDROP_COPY);
    XtSetArg(arguments[3], XmNconvertProc, convert);
    XmDragStart(label, event, arguments, 4);
}

const Offer* offerNamed(std::string_view name)
{
    for (const Offer& offer : offers)
        if (offer.name == name) return &offer;
    return nullptr;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3 || !offerNamed(argv[1])) return EXIT_FAILURE;
    state = {offerNamed(argv[1]), argv[2]};
    XtAppContext application;
    int count = 1;
    Widget shell = XtVaOpenApplication(&application, "source", nullptr, 0, &count, argv, nullptr,
                                       applicationShellWidgetClass, XmNwidth, 120, XmNheight, 60,
                                       XmNx, 10, XmNy, 30, nullptr);
    XtActionsRec actions[] = {{const_cast<char*>("beginDrag"), beginDrag}};
    XtAppAddActions(application, actions, 1);
    XtVaCreateManagedWidget("drag me", xmLabelWidgetClass, shell, XmNtranslations,
                            XtParseTranslationTable("<Btn2Down>: beginDrag()"), nullptr);
    // The preregistered protocol grabs the server, and no other client could move the pointer then.
    XtVaSetValues(XmGetXmDisplay(XtDisplay(shell)), XmNdragInitiatorProtocolStyle, XmDRAG_DYNAMIC,
                  nullptr);
    XtRealizeWidget(shell);
    XtAppMainLoop(application);
}
