// tree_bench.cpp: a tree of 10,000 items in three levels, by keys and by hand.

#include <Xm/Container.h>
#include <Xm/IconG.h>
#include <Xm/ScrolledW.h>
#include <benchmark/benchmark.h>
#include <kitegui.h>

#include <string>

#include "bare_dialog.h"
#include "bare_frame.h"
#include "in_dialog.h"
#include "in_frame.h"
#include "measured.h"

namespace {

using bench::Measured;

constexpr int kId = 1;
constexpr int kBranches = 20;  // at the top, and in each of them
constexpr int kLeaves = 24;    // in each of these: 20 + 400 + 9,600 items

std::string label(int key)
{
    return "Item " + std::to_string(key);
}

// Calls add(parent, key) for each item; what add returns is the parent of those below.
template <typename Parent, typename Add>
void forEachItem(Parent root, Add add)
{
    int key = 0;
    for (int i = 0; i < kBranches; ++i) {
        const Parent top = add(root, ++key);
        for (int j = 0; j < kBranches; ++j) {
            const Parent branch = add(top, ++key);
            for (int k = 0; k < kLeaves; ++k) add(branch, ++key);
        }
    }
}

constexpr int kItemsOfBranch = 1 + kBranches * (1 + kLeaves);

void addAll()
{
    forEachItem(0, [](int parent, int key) {
        guiAddTree(kId, parent, key, label(key).c_str());
        return key;
    });
}

void buildTree()
{
    guiTree(kId, 0, 10, 0, 160);
}

void addInLibrary(benchmark::State& state)
{
    bench::runInFrame([&] {
        Measured measurement{state};
        const auto fill = [&] {
            measurement.begin(XtDisplay(guiGetTopWnd()));
            addAll();
            measurement.end(XtDisplay(guiGetTopWnd()));
        };
        for ([[maybe_unused]] auto iteration : state) bench::runInDialog({buildTree, fill, {}});
        measurement.report();
    });
}

void deleteHalfInLibrary(benchmark::State& state)
{
    bench::runInFrame([&] {
        Measured measurement{state};
        const auto work = [&] {
            measurement.begin(XtDisplay(guiGetTopWnd()));
            for (int i = 0; i < kBranches / 2; ++i) guiDelTree(kId, 1 + i * kItemsOfBranch);
            measurement.end(XtDisplay(guiGetTopWnd()));
        };
        for ([[maybe_unused]] auto iteration : state) bench::runInDialog({buildTree, addAll, work});
        measurement.report();
    });
}

Widget makeTree(Widget board, XmFontList font)
{
    Widget const scrolled = XtVaCreateManagedWidget("scrolled", xmScrolledWindowWidgetClass, board,
                                                    XmNx, 15, XmNy, 15, XmNwidth, 345, XmNheight,
                                                    310, XmNscrollingPolicy, XmAUTOMATIC, nullptr);
    return XtVaCreateManagedWidget("tree", xmContainerWidgetClass, scrolled, XmNlayoutType,
                                   XmOUTLINE, XmNselectionPolicy, XmBROWSE_SELECT, XmNfontList,
                                   font, nullptr);
}

// The container's own share: each parent is at hand.
void addBare(benchmark::State& state)
{
    bench::BareFrame frame = bench::openBareFrame();
    bench::processUntilAllPainted(frame.text);
    Measured measurement{state};
    for ([[maybe_unused]] auto iteration : state) {
        bench::BareDialog dialog{frame.mainWindow, frame.menuFont};
        Widget const tree = makeTree(dialog.board(), frame.menuFont);
        measurement.begin(frame.display);
        forEachItem<Widget>(nullptr, [&](Widget parent, int key) {
            XmString const string = XmStringCreateLocalized(const_cast<char*>(label(key).c_str()));
            Widget const item =
                XtVaCreateManagedWidget("item", xmIconGadgetClass, tree, XmNlabelString, string,
                                        XmNentryParent, parent, XmNfontList, frame.menuFont,
                                        XmNshadowThickness, 0, XmNhighlightThickness, 0, nullptr);
            XmStringFree(string);
            return item;
        });
        measurement.end(frame.display);
        dialog.destroy();
        bench::processAll(frame.mainWindow);
    }
    measurement.report();
    bench::closeBareFrame(frame);
}

}  // namespace

BENCHMARK(addBare)
    ->Name("tree of 10,000 items/bare")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(addInLibrary)
    ->Name("tree of 10,000 items/kitegui")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(deleteHalfInLibrary)
    ->Name("half of a shown tree of 10,000 items deleted/kitegui")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
