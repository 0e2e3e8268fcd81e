// items_bench.cpp: items of a list and of a choice on the screen, by id and by hand.

#include <Xm/ComboBox.h>
#include <Xm/List.h>
#include <Xm/ScrolledW.h>
#include <benchmark/benchmark.h>
#include <kitegui.h>

#include <string>

#include "bare_dialog.h"
#include "bare_frame.h"
#include "in_dialog.h"
#include "measured.h"

namespace {

using bench::Measured;

constexpr int kId = 1;
constexpr int kItems = 10000;
constexpr int kReads = 10000;  // of items, spread over all that are there
constexpr int kBuffer = 64;

std::string itemText(int number)
{
    return "Item " + std::to_string(number);
}

// ---- the library ------------------------------------------------------------------------------

void buildList()
{
    guiList(kId, 0, 10, 0, 100, 0);
}

void buildChoice()
{
    guiChoice(kId, 0, 0, 100);
}

void appendAll(int count)
{
    for (int i = 0; i < count; ++i) guiAppendItem(kId, itemText(i).c_str());
}

void removeAll()
{
    guiRemoveAll(kId);
}

void appendInLibrary(benchmark::State& state, void (*build)())
{
    bench::measureInDialog(state, {build, {}, removeAll, [] { appendAll(kItems); }});
}

void readInLibrary(benchmark::State& state, int items)
{
    const auto read = [&] {
        char buffer[kBuffer];
        for (int i = 0; i < kReads; ++i) guiGetItem(kId, i % items, buffer, kBuffer);
    };
    bench::measureInDialog(state, {buildList, [&] { appendAll(items); }, {}, read});
}

// ---- by hand ----------------------------------------------------------------------------------

Widget makeList(Widget board, XmFontList font)
{
    Widget const scrolled = XtVaCreateManagedWidget(
        "scrolled", xmScrolledWindowWidgetClass, board, XmNx, 15, XmNy, 15, XmNwidth, 215,
        XmNheight, 310, XmNshadowThickness, 2, XmNhighlightThickness, 1, XmNspacing, 0, nullptr);
    Widget const list =
        XtVaCreateManagedWidget("list", xmListWidgetClass, scrolled, XmNshadowThickness, 0,
                                XmNhighlightThickness, 1, XmNlistSizePolicy, XmCONSTANT,
                                XmNselectionPolicy, XmBROWSE_SELECT, XmNfontList, font, nullptr);
    Widget bar = nullptr;
    XtVaGetValues(scrolled, XmNverticalScrollBar, &bar, nullptr);
    XtVaSetValues(bar, XmNshadowThickness, 2, XmNhighlightThickness, 0, nullptr);
    return list;
}

void appendToList(Widget list, XmString item)
{
    XmListAddItemUnselected(list, item, 0);
}

void clearList(Widget list)
{
    XmListDeleteAllItems(list);
}

Widget makeChoice(Widget board, XmFontList font)
{
    return XtVaCreateManagedWidget("choice", xmComboBoxWidgetClass, board, XmNx, 15, XmNy, 15,
                                   XmNwidth, 215, XmNheight, 27, XmNcomboBoxType, XmDROP_DOWN_LIST,
                                   XmNfontList, font, XmNvisibleItemCount, 8, nullptr);
}

void appendToChoice(Widget choice, XmString item)
{
    XmComboBoxAddItem(choice, item, 0, False);
}

void clearChoice(Widget choice)
{
    Widget list = nullptr;
    XtVaGetValues(choice, XmNlist, &list, nullptr);
    XmListDeleteAllItems(list);
}

struct Bare {
    Widget (*make)(Widget board, XmFontList font);
    void (*append)(Widget, XmString);
    void (*clear)(Widget);
};

void appendBare(benchmark::State& state, const Bare& bare)
{
    bench::BareFrame frame = bench::openBareFrame();
    bench::processUntilAllPainted(frame.text);
    bench::BareDialog dialog{frame.mainWindow, frame.menuFont};
    Widget const widget = bare.make(dialog.board(), frame.menuFont);
    XtVaSetValues(dialog.board(), XmNwidth, 245, XmNheight, 340, nullptr);
    XtManageChild(dialog.board());
    bench::processUntilAllPainted(dialog.board());
    Measured measurement{state};
    for ([[maybe_unused]] auto iteration : state) {
        bare.clear(widget);
        bench::processAll(widget);
        measurement.begin(frame.display);
        for (int i = 0; i < kItems; ++i) {
            XmString const item = XmStringCreateLocalized(const_cast<char*>(itemText(i).c_str()));
            bare.append(widget, item);
            XmStringFree(item);
        }
        measurement.end(frame.display);
    }
    measurement.report();
    bench::closeBareFrame(frame);
}

constexpr Bare kList{makeList, appendToList, clearList};
constexpr Bare kChoice{makeChoice, appendToChoice, clearChoice};

}  // namespace

#define APPEND(bare, build, name)                                                                  \
    BENCHMARK_CAPTURE(appendBare, bare, bare)                                                      \
        ->Name("10,000 items appended to a shown " name "/bare")                                   \
        ->UseManualTime()                                                                          \
        ->Unit(benchmark::kMillisecond);                                                           \
    BENCHMARK_CAPTURE(appendInLibrary, build, build)                                               \
        ->Name("10,000 items appended to a shown " name "/kitegui")                                \
        ->UseManualTime()                                                                          \
        ->Unit(benchmark::kMillisecond)

#define READ(items, name)                                                                          \
    BENCHMARK_CAPTURE(readInLibrary, items, items)                                                 \
        ->Name("10,000 reads of " name " items/kitegui")                                           \
        ->UseManualTime()                                                                          \
        ->Unit(benchmark::kMillisecond)

APPEND(kList, buildList, "list");
APPEND(kChoice, buildChoice, "choice");
READ(100, "100");
READ(1000, "1,000");
READ(10000, "10,000");
