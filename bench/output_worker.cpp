// output_worker.cpp: writes or reads the Output area once and prints how many seconds it took.
//
//     output_worker bare|kitegui write|read
//
// A process of its own for every figure: the toolkit keeps what it draws texts with beyond the display
// that it is for, and a bare frame that comes after another one stumbles over it.

#include <X11/Intrinsic.h>
#include <Xm/Text.h>
#include <kitegui.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <string>

#include "bare_frame.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kLines = 100000;
constexpr char kLine[] = "A line of forty characters, as hosts do.";
constexpr char kLineAndEnd[] = "A line of forty characters, as hosts do.\n";

// The compiler cannot know that nobody looks.
void keep(const char* line)
{
    asm volatile("" : : "r"(line) : "memory");
}

// What guiWriteLine says it does, in the toolkit's calls.
void writeBare(Widget text)
{
    char line[sizeof kLineAndEnd];
    std::memcpy(line, kLineAndEnd, sizeof line);
    for (int i = 0; i < kLines; ++i) {
        const XmTextPosition end = XmTextGetLastPosition(text);
        XmTextInsert(text, end, line);
        XmTextSetInsertionPosition(text, end + static_cast<XmTextPosition>(sizeof line - 1));
        XmTextClearSelection(text, XtLastTimestampProcessed(XtDisplay(text)));
    }
}

void writeLibrary(Widget)
{
    for (int i = 0; i < kLines; ++i) guiWriteLine(kLine);
    guiUserBreak();  // as a host does in a long loop: what waits is painted
}

// The plainest way: the text once, and every line of it copied.
void readBare(Widget text)
{
    char* const all = XmTextGetString(text);
    char line[100];
    for (const char* start = all; *start;) {
        const char* const end = std::strchr(start, '\n');
        const auto length = static_cast<std::size_t>(end - start);
        std::memcpy(line, start, length);
        line[length] = '\0';
        keep(line);
        start = end + 1;
    }
    XtFree(all);
}

void readLibrary(Widget)
{
    char line[100];
    const int count = guiOutputLineCount();
    for (int i = 0; i < count; ++i) {
        guiOutputLine(i, line, sizeof line);
        keep(line);
    }
}

void fill(Widget text)
{
    std::string all;
    for (int i = 0; i < kLines; ++i) all += kLineAndEnd;
    XmTextSetString(text, all.data());
}

struct Work {
    void (*bare)(Widget text);
    void (*library)(Widget text);
    bool needsLines;
};
constexpr Work kWriting{writeBare, writeLibrary, false};
constexpr Work kReading{readBare, readLibrary, true};

void measure(void (*work)(Widget), bool needsLines, Widget text)
{
    bench::processUntilPainted(text);
    if (needsLines) fill(text);
    const auto start = Clock::now();
    work(text);
    XSync(XtDisplay(text), False);
    std::printf("%.9f\n", std::chrono::duration<double>(Clock::now() - start).count());
}

const Work* chosen = &kWriting;

int handle(int event, int, int, int)
{
    if (event != GUI_EVENT_INIT) return 0;
    XtAppAddTimeOut(
        XtWidgetToApplicationContext(guiGetTopWnd()), 0,
        [](XtPointer, XtIntervalId*) {
            measure(chosen->library, chosen->needsLines, XtNameToWidget(guiGetTopWnd(), "*v_text"));
            guiClose(0);
        },
        nullptr);
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) return 2;
    if (std::strcmp(argv[2], "read") == 0) chosen = &kReading;
    if (std::strcmp(argv[1], "kitegui") == 0) {
        guiInit(nullptr);
        return guiStart(handle);
    }
    const bench::BareFrame frame = bench::openBareFrame();
    measure(chosen->bare, chosen->needsLines, frame.text);
}
