// lines_bench.cpp: lines of a multi-line text on the screen: twice as many should take twice as long.

#include <Xm/ScrolledW.h>
#include <Xm/Text.h>
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
constexpr int kBuffer = 64;

std::string lineText(int number)
{
    return "This is line " + std::to_string(number);
}

void buildText()
{
    guiText(kId, 0, 10, 0, 160, 0);
}

void appendAll(int lines)
{
    for (int i = 0; i < lines; ++i) guiAppendLine(kId, lineText(i).c_str());
}

void appendInLibrary(benchmark::State& state, int lines)
{
    bench::measureInDialog(state,
                           {buildText, {}, [] { guiRemoveAll(kId); }, [&] { appendAll(lines); }});
}

void readInLibrary(benchmark::State& state, int lines)
{
    const auto read = [&] {
        char buffer[kBuffer];
        for (int i = 0; i < lines; ++i) guiGetLine(kId, i, buffer, kBuffer);
    };
    bench::measureInDialog(state, {buildText, [&] { appendAll(lines); }, {}, read});
}

Widget makeText(Widget board, XmFontList font)
{
    Widget const scrolled = XtVaCreateManagedWidget(
        "scrolled", xmScrolledWindowWidgetClass, board, XmNx, 15, XmNy, 15, XmNwidth, 345,
        XmNheight, 310, XmNshadowThickness, 0, XmNhighlightThickness, 1, XmNspacing, 0, nullptr);
    return XtVaCreateManagedWidget("text", xmTextWidgetClass, scrolled, XmNeditMode,
                                   XmMULTI_LINE_EDIT, XmNfontList, font, nullptr);
}

void appendBare(benchmark::State& state, int lines)
{
    bench::BareFrame frame = bench::openBareFrame();
    bench::processUntilAllPainted(frame.text);
    bench::BareDialog dialog{frame.mainWindow, frame.menuFont};
    Widget const text = makeText(dialog.board(), frame.menuFont);
    XtVaSetValues(dialog.board(), XmNwidth, 375, XmNheight, 340, nullptr);
    XtManageChild(dialog.board());
    bench::processUntilAllPainted(dialog.board());
    Measured measurement{state};
    for ([[maybe_unused]] auto iteration : state) {
        XmTextSetString(text, const_cast<char*>(""));
        bench::processAll(text);
        measurement.begin(frame.display);
        for (int i = 0; i < lines; ++i) {
            std::string line = lineText(i) + '\n';
            const XmTextPosition insertionPoint = XmTextGetInsertionPosition(text);
            XmTextInsert(text, XmTextGetLastPosition(text), line.data());
            XmTextSetInsertionPosition(text, insertionPoint);
        }
        measurement.end(frame.display);
    }
    measurement.report();
    bench::closeBareFrame(frame);
}

}  // namespace

#define LINES(lines, name)                                                                         \
    BENCHMARK_CAPTURE(appendBare, lines, lines)                                                    \
        ->Name(name " lines appended to a shown text/bare")                                        \
        ->UseManualTime()                                                                          \
        ->Unit(benchmark::kMillisecond);                                                           \
    BENCHMARK_CAPTURE(appendInLibrary, lines, lines)                                               \
        ->Name(name " lines appended to a shown text/kitegui")                                     \
        ->UseManualTime()                                                                          \
        ->Unit(benchmark::kMillisecond);                                                           \
    BENCHMARK_CAPTURE(readInLibrary, lines, lines)                                                 \
        ->Name(name " lines read one by one/kitegui")                                              \
        ->UseManualTime()                                                                          \
        ->Unit(benchmark::kMillisecond)

LINES(2500, "2,500");
LINES(5000, "5,000");
LINES(10000, "10,000");
