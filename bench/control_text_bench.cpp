// control_text_bench.cpp: the texts of controls of a dialog on the screen, by id and by hand.

#include <Xm/Text.h>
#include <Xm/Xm.h>
#include <benchmark/benchmark.h>
#include <kitegui.h>

#include <string>
#include <vector>

#include "bare_dialog.h"
#include "bare_frame.h"
#include "in_frame.h"
#include "measured.h"

namespace {

using bench::Kind;
using bench::Measured;

constexpr int kMostCalls = 1000;  // per iteration, spread over all controls
constexpr int kBuffer = 64;

// Labels and edits in turn.
bench::Place placeOf(int number)
{
    bench::Place place = bench::placeOf(number);
    place.kind = number % 2 ? Kind::Edit : Kind::Label;
    return place;
}

// Odd, so that both kinds are among them.
int stepFor(int controls)
{
    return controls > kMostCalls ? controls / kMostCalls + 1 : 1;
}

void report(benchmark::State& state, int controls)
{
    state.counters["calls"] = (controls - 1) / stepFor(controls) + 1;
}

// ---- the library ------------------------------------------------------------------------------

benchmark::State* running;
int controlCount;

void setAndGetAll(Measured& measured, int round)
{
    char buffer[kBuffer];
    const std::string text = "Text " + std::to_string(round);
    measured.begin(XtDisplay(guiGetTopWnd()));
    for (int id = 1; id <= controlCount; id += stepFor(controlCount)) {
        guiSetText(id, text.c_str());
        guiGetText(id, buffer, sizeof buffer);
    }
    measured.end(XtDisplay(guiGetTopWnd()));
}

void measureShown(XtPointer, XtIntervalId*)
{
    bench::processUntilAllPainted(guiGetTopWnd());
    Measured measurement{*running};
    int round = 0;
    for ([[maybe_unused]] auto iteration : *running) {
        setAndGetAll(measurement, ++round);
        bench::processAll(guiGetTopWnd());
    }
    measurement.report();
    report(*running, controlCount);
    guiClose(0);
}

int handle(int event, int, int, int)
{
    if (event == GUI_EVENT_INIT)
        XtAppAddTimeOut(XtWidgetToApplicationContext(guiGetTopWnd()), 0, measureShown, nullptr);
    return 0;
}

void textsLibrary(benchmark::State& state, int controls)
{
    running = &state;
    controlCount = controls;
    bench::runInFrame([&] {
        guiDialog("Dialog");
        guiUseAbsPos(1);
        for (int number = 0; number < controls; ++number) {
            const bench::Place place = placeOf(number);
            if (place.kind == Kind::Edit)
                guiEdit(number + 1, place.top, place.x, bench::kControlWidth, 0, 0);
            else
                guiLabel(number + 1, place.top, place.x, bench::kControlWidth, "");
        }
        guiRunDialog(handle);
    });
}

// ---- by hand ----------------------------------------------------------------------------------

void setAndGetLabel(Widget label, const std::string& text, char* buffer)
{
    XmString const string = XmStringCreateLocalized(const_cast<char*>(text.c_str()));
    XtVaSetValues(label, XmNlabelString, string, nullptr);
    XmStringFree(string);
    XmString shown = nullptr;
    XtVaGetValues(label, XmNlabelString, &shown, nullptr);
    auto* const plain = static_cast<char*>(
        XmStringUnparse(shown, nullptr, XmCHARSET_TEXT, XmCHARSET_TEXT, nullptr, 0, XmOUTPUT_ALL));
    std::string{plain}.copy(buffer, kBuffer - 1);
    XtFree(plain);
    XmStringFree(shown);
}

void setAndGetEdit(Widget edit, const std::string& text, char* buffer)
{
    XtVaSetValues(edit, XmNvalue, text.c_str(), nullptr);
    char* const value = XmTextGetString(edit);
    std::string{value}.copy(buffer, kBuffer - 1);
    XtFree(value);
}

void textsBare(benchmark::State& state, int controls)
{
    bench::BareFrame frame = bench::openBareFrame();
    bench::processUntilAllPainted(frame.text);
    bench::BareDialog dialog{frame.mainWindow, frame.menuFont};
    std::vector<Widget> widgets;
    for (int number = 0; number < controls; ++number)
        widgets.push_back(dialog.add(placeOf(number), ""));
    dialog.show();
    bench::processUntilAllPainted(dialog.board());
    Measured measurement{state};
    int round = 0;
    char buffer[kBuffer];
    for ([[maybe_unused]] auto iteration : state) {
        const std::string text = "Text " + std::to_string(++round);
        measurement.begin(frame.display);
        for (int number = 0; number < controls; number += stepFor(controls)) {
            Widget const widget = widgets[static_cast<std::size_t>(number)];
            if (number % 2)
                setAndGetEdit(widget, text, buffer);
            else
                setAndGetLabel(widget, text, buffer);
        }
        measurement.end(frame.display);
        bench::processAll(dialog.board());
    }
    measurement.report();
    report(state, controls);
    bench::closeBareFrame(frame);
}

}  // namespace

#define TEXTS(controls, name)                                                                      \
    BENCHMARK_CAPTURE(textsBare, controls, controls)                                               \
        ->Name("texts in a dialog of " name "/bare")                                               \
        ->UseManualTime()                                                                          \
        ->Unit(benchmark::kMicrosecond);                                                           \
    BENCHMARK_CAPTURE(textsLibrary, controls, controls)                                            \
        ->Name("texts in a dialog of " name "/kitegui")                                            \
        ->UseManualTime()                                                                          \
        ->Unit(benchmark::kMicrosecond)

TEXTS(10, "10 controls");
TEXTS(1000, "1,000 controls");
TEXTS(10000, "10,000 controls");
