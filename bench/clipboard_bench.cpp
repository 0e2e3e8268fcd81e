// clipboard_bench.cpp: 4 KB copied from a text to the clipboard and pasted into it again, by the program that has
// copied them.

#include <Xm/CutPaste.h>
#include <Xm/Text.h>
#include <benchmark/benchmark.h>
#include <kitegui.h>

#include <string>
#include <vector>

#include "bare_frame.h"
#include "in_frame.h"
#include "measured.h"

namespace {

using bench::Measured;

constexpr int kLength = 4095;  // bytes

// Selects everything, so that the paste replaces what was copied.
void fillAndSelect(Widget text)
{
    const std::string filling(kLength, 'x');
    XmTextSetString(text, const_cast<char*>(filling.c_str()));
    XmTextSetSelection(text, 0, kLength, XtLastTimestampProcessed(XtDisplay(text)));
}

void copyBare(Widget shell, Widget text)
{
    Display* const display = XtDisplay(shell);
    const Window window = XtWindow(shell);
    char* const selected = XmTextGetSelection(text);
    XmString label = XmStringCreateLocalized(const_cast<char*>("copy"));
    long item = 0;
    XmClipboardStartCopy(display, window, label, XtLastTimestampProcessed(display), nullptr,
                         nullptr, &item);
    XmClipboardCopy(display, window, item, const_cast<char*>("STRING"), selected, kLength, 0,
                    nullptr);
    XmClipboardEndCopy(display, window, item);
    XmStringFree(label);
    XtFree(selected);
}

void pasteBare(Widget shell, Widget text)
{
    Display* const display = XtDisplay(shell);
    const Window window = XtWindow(shell);
    char* const format = const_cast<char*>("STRING");
    XmTextPosition left, right;
    XmTextGetSelectionPosition(text, &left, &right);
    XmTextRemove(text);
    XmClipboardStartRetrieve(display, window, XtLastTimestampProcessed(display));
    unsigned long length = 0;
    XmClipboardInquireLength(display, window, format, &length);
    std::vector<char> bytes(length + 1);
    unsigned long retrieved = 0;
    XmClipboardRetrieve(display, window, format, bytes.data(), length, &retrieved, nullptr);
    XmClipboardEndRetrieve(display, window);
    bytes[retrieved] = '\0';
    XmTextInsert(text, left, bytes.data());
}

template <typename Copy, typename Paste>
void copyAndPaste(benchmark::State& state, Widget shell, Widget text, Copy copy, Paste paste)
{
    Measured measurement{state};
    for ([[maybe_unused]] auto iteration : state) {
        fillAndSelect(text);
        bench::processAll(shell);
        measurement.begin(XtDisplay(shell));
        copy();
        paste();
        measurement.end(XtDisplay(shell));
        if (XmTextGetLastPosition(text) != kLength) state.SkipWithError("not what was copied");
    }
    measurement.report();
}

void inBare(benchmark::State& state)
{
    bench::BareFrame frame = bench::openBareFrame();
    bench::processUntilAllPainted(frame.text);
    copyAndPaste(
        state, frame.shell, frame.text, [&] { copyBare(frame.shell, frame.text); },
        [&] { pasteBare(frame.shell, frame.text); });
    bench::closeBareFrame(frame);
}

void inLibrary(benchmark::State& state)
{
    bench::runInFrame([&] {
        Widget const frame = guiGetTopWnd();
        Widget const text = XtNameToWidget(frame, "*v_text");
        copyAndPaste(
            state, XtParent(frame), text, [&] { guiCopySel(text); }, [&] { guiPasteSel(text); });
    });
}

}  // namespace

BENCHMARK(inBare)->Name("copy and paste 4 KB/bare")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(inLibrary)
    ->Name("copy and paste 4 KB/kitegui")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
