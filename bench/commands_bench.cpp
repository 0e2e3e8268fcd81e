// commands_bench.cpp: menus and toolbars, from the first call until they are painted.

#include <X11/Xutil.h>
#include <Xm/CascadeBG.h>
#include <Xm/Form.h>
#include <Xm/PushB.h>
#include <Xm/PushBG.h>
#include <Xm/RowColumn.h>
#include <Xm/Text.h>
#include <benchmark/benchmark.h>
#include <kitegui.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "bare_frame.h"
#include "measured.h"

namespace {

using bench::Measured;

constexpr int kMenus = 16;
constexpr int kItemsEach = 32;  // 512 in all; every other one has an accelerator
constexpr int kButtons = 40;
constexpr int kImageSize = 21;

// ---- what both sides build --------------------------------------------------------------------

char acceleratorOf(int item)
{
    constexpr char kKeys[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    return item % 2 ? '\0' : kKeys[item / 2 % (sizeof kKeys - 1)];
}

bool isLetter(char key)
{
    return key >= 'A';
}

std::string menuName(int menu)
{
    return "M" + std::to_string(menu);
}

std::string itemName(int item)
{
    return "Item number " + std::to_string(item);
}

void putNumber(std::string& file, std::size_t at, unsigned value)
{
    for (std::size_t i = 0; i < 4; ++i) file[at + i] = static_cast<char>(value >> (8 * i) & 0xFFU);
}

// A BMP file of 24 bits a pixel with a few colours.
void writeImage()
{
    constexpr std::size_t kHeader = 54;
    constexpr std::size_t kRow = 64;
    std::string file(kHeader + kRow * kImageSize, '\0');
    file.replace(0, 2, "BM");
    putNumber(file, 2, static_cast<unsigned>(file.size()));
    putNumber(file, 10, kHeader);
    putNumber(file, 14, 40);
    putNumber(file, 18, kImageSize);
    putNumber(file, 22, kImageSize);
    putNumber(file, 26, 1 | 24U << 16);
    for (std::size_t i = kHeader; i < file.size(); ++i) file[i] = static_cast<char>(i / 100 * 16);
    const std::filesystem::path path{std::string{kxAppDir()} + "tbbb/image.bmp"};
    std::filesystem::create_directories(path.parent_path());
    std::ofstream{path, std::ios::binary} << file;
}

// ---- the library ------------------------------------------------------------------------------

Measured* measured;       // of the run that the handler below ends
const char* lastPainted;  // the widget that it waits for

void endWhenPainted(XtPointer, XtIntervalId*)
{
    Widget const widget = XtNameToWidget(guiGetTopWnd(), lastPainted);
    bench::processUntilAllPainted(widget);
    measured->end(XtDisplay(widget));
    guiClose(0);
}

int handle(int event, int, int, int)
{
    if (event == GUI_EVENT_INIT)
        XtAppAddTimeOut(XtWidgetToApplicationContext(guiGetTopWnd()), 0, endWhenPainted, nullptr);
    return 0;
}

void buildInLibrary(benchmark::State& state, void (*build)(), const char* widget)
{
    Measured measurement{state};
    measured = &measurement;
    lastPainted = widget;
    for ([[maybe_unused]] auto iteration : state) {
        guiInit(nullptr);
        bench::processUntilAllPainted(XtNameToWidget(guiGetTopWnd(), "*v_text"));
        measurement.begin(XtDisplay(guiGetTopWnd()));
        build();
        guiStart(handle);
    }
    measurement.report();
}

void buildMenus()
{
    int item = 0;
    for (int menu = 0; menu < kMenus; ++menu) {
        guiMenu(menuName(menu).c_str());
        for (int i = 0; i < kItemsEach; ++i, ++item)
            guiMenuItem(itemName(item).c_str(), acceleratorOf(item), GUI_PLAIN, item);
        guiMenuEnd();
    }
}

void buildToolbar()
{
    for (int id = 1; id <= kButtons; ++id) guiToolbarButton("image", "Tip", GUI_PLAIN, id);
}

void menusLibrary(benchmark::State& state)
{
    buildInLibrary(state, buildMenus, "*v_menubar");
}

void toolbarLibrary(benchmark::State& state)
{
    writeImage();
    buildInLibrary(state, buildToolbar, "*v_toolbar");
}

// ---- by hand ----------------------------------------------------------------------------------

void chosen(Widget, XtPointer, XtPointer) {}
void crossed(Widget, XtPointer, XEvent*, Boolean*) {}

class Label {
public:
    explicit Label(const std::string& text)
        : string_(XmStringCreateLocalized(const_cast<char*>(text.c_str())))
    {
    }
    ~Label() { XmStringFree(string_); }
    Label(const Label&) = delete;
    Label& operator=(const Label&) = delete;
    XmString get() const { return string_; }

private:
    XmString string_;
};

Widget createItem(Widget menu, int number, XmFontList font)
{
    const Label label{itemName(number)};
    const char key = acceleratorOf(number);
    if (!key)
        return XtVaCreateManagedWidget("item", xmPushButtonGadgetClass, menu, XmNlabelString,
                                       label.get(), XmNfontList, font, nullptr);
    const std::string translation =
        std::string{isLetter(key) ? "Ctrl Shift" : "Ctrl"} + "<Key>" + key;
    const Label text{std::string{isLetter(key) ? "Ctrl+Shift+" : "Ctrl+"} + key};
    return XtVaCreateManagedWidget("item", xmPushButtonGadgetClass, menu, XmNlabelString,
                                   label.get(), XmNfontList, font, XmNaccelerator,
                                   translation.c_str(), XmNacceleratorText, text.get(), nullptr);
}

void createMenu(const bench::BareFrame& frame, int number)
{
    Widget const menu = XmCreatePulldownMenu(frame.menuBar, const_cast<char*>("menu"), nullptr, 0);
    XtAddCallback(menu, XmNmapCallback, chosen, nullptr);
    const Label label{menuName(number)};
    XtVaCreateManagedWidget("button", xmCascadeButtonGadgetClass, frame.menuBar, XmNlabelString,
                            label.get(), XmNfontList, frame.menuFont, XmNsubMenuId, menu, nullptr);
    for (int i = 0; i < kItemsEach; ++i)
        XtAddCallback(createItem(menu, number * kItemsEach + i, frame.menuFont),
                      XmNactivateCallback, chosen, nullptr);
}

void menusBare(benchmark::State& state)
{
    Measured measurement{state};
    for ([[maybe_unused]] auto iteration : state) {
        bench::BareFrame frame = bench::openBareFrame();
        bench::processUntilAllPainted(frame.text);
        XtUnmanageChild(frame.menuBar);
        XSync(frame.display, False);
        measurement.begin(frame.display);
        for (int menu = 0; menu < kMenus; ++menu) createMenu(frame, menu);
        XtManageChild(frame.menuBar);
        bench::processUntilAllPainted(frame.menuBar);
        measurement.end(frame.display);
        bench::closeBareFrame(frame);
    }
    measurement.report();
}

// What a host by hand has to do as well; its pixels are ready.
void readImage()
{
    std::ifstream file{std::string{kxAppDir()} + "tbbb/image.bmp", std::ios::binary};
    std::vector<char> bytes(4096);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    benchmark::DoNotOptimize(bytes.data());
}

Pixmap createPixmap(const bench::BareFrame& frame, GC pen, XImage* image)
{
    Screen* const screen = XDefaultScreenOfDisplay(frame.display);
    Pixmap const pixmap =
        XCreatePixmap(frame.display, RootWindowOfScreen(screen), kImageSize, kImageSize,
                      static_cast<unsigned>(DefaultDepthOfScreen(screen)));
    XPutImage(frame.display, pixmap, pen, image, 0, 0, 0, 0, kImageSize, kImageSize);
    return pixmap;
}

Widget createButton(Widget toolbar, Widget previous, Pixmap image, Pixmap greyed)
{
    Widget const button = XtVaCreateManagedWidget(
        "button", xmPushButtonWidgetClass, toolbar, XmNlabelType, XmPIXMAP, XmNlabelPixmap, image,
        XmNlabelInsensitivePixmap, greyed, XmNrecomputeSize, False, XmNwidth, 35, XmNheight, 33,
        XmNmarginWidth, 1, XmNmarginHeight, 1, XmNhighlightThickness, 0, XmNtraversalOn, False,
        XmNshadowThickness, 0, XmNtopAttachment, XmATTACH_FORM, XmNtopOffset, 2, XmNleftAttachment,
        previous ? XmATTACH_WIDGET : XmATTACH_FORM, XmNleftWidget, previous, XmNleftOffset,
        previous ? 0 : 5, nullptr);
    XtAddCallback(button, XmNactivateCallback, chosen, nullptr);
    XtAddEventHandler(button, EnterWindowMask | LeaveWindowMask, False, crossed, nullptr);
    return button;
}

void fillToolbar(const bench::BareFrame& frame, Widget toolbar, XImage* image)
{
    GC const pen = XCreateGC(frame.display, XtWindow(frame.mainWindow), 0, nullptr);
    Widget previous = nullptr;
    for (int i = 0; i < kButtons; ++i) {
        readImage();
        previous = createButton(toolbar, previous, createPixmap(frame, pen, image),
                                createPixmap(frame, pen, image));
    }
    XFreeGC(frame.display, pen);
}

// What the library does to show a frame with its commands.
void showWith(const bench::BareFrame& frame, Widget toolbar)
{
    XtVaSetValues(frame.mainWindow, XmNcommandWindow, toolbar, nullptr);
    XtManageChild(frame.menuBar);
    XtManageChild(toolbar);
    XmTextSetInsertionPosition(frame.text, XmTextGetLastPosition(frame.text));
    XFlush(frame.display);
}

void toolbarBare(benchmark::State& state)
{
    writeImage();
    Measured measurement{state};
    for ([[maybe_unused]] auto iteration : state) {
        bench::BareFrame frame = bench::openBareFrame();
        bench::processUntilAllPainted(frame.text);
        Widget const toolbar =
            XtVaCreateWidget("toolbar", xmFormWidgetClass, frame.mainWindow, XmNheight, 37,
                             XmNresizePolicy, XmRESIZE_NONE, nullptr);
        Screen* const screen = XDefaultScreenOfDisplay(frame.display);
        std::vector<char> pixels(kImageSize * kImageSize * 4);
        XImage* const image =
            XCreateImage(frame.display, DefaultVisualOfScreen(screen),
                         static_cast<unsigned>(DefaultDepthOfScreen(screen)), ZPixmap, 0,
                         pixels.data(), kImageSize, kImageSize, 32, 0);
        XtUnmanageChild(frame.menuBar);
        XSync(frame.display, False);
        measurement.begin(frame.display);
        fillToolbar(frame, toolbar, image);
        showWith(frame, toolbar);
        bench::processUntilAllPainted(toolbar);
        measurement.end(frame.display);
        image->data = nullptr;
        XDestroyImage(image);
        bench::closeBareFrame(frame);
    }
    measurement.report();
}

}  // namespace

BENCHMARK(menusBare)->Name("512 menu items/bare")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(menusLibrary)
    ->Name("512 menu items/kitegui")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(toolbarBare)
    ->Name("40 toolbar buttons/bare")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(toolbarLibrary)
    ->Name("40 toolbar buttons/kitegui")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
