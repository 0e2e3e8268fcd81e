// frame_host: a host of the plainest kind, as a program of its own. Its argument says how it ends:
//
//     close    when the window manager asks (without an argument, too)
//     exit     by leaving the process at its first event, with the frame open
//     log N F  writes N lines into a log of its own, F, says so, and goes on

#include <kitegui.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

std::string mode;
int lineCount;
const char* logName;
LogFile ownLog;

void begin()
{
    if (mode == "exit") std::exit(3);
    if (mode != "log") return;
    ownLog.start(logName, 1);
    for (int i = 1; i <= lineCount; ++i) ownLog.write(("line " + std::to_string(i)).c_str(), 1);
    std::puts("written");
    std::fflush(stdout);
}

int handle(int event, int id, int, int)
{
    if (event == GUI_EVENT_INIT) begin();
    if (event == GUI_EVENT_COMMAND && id == GUI_COMMAND_CLOSE) guiClose(0);
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    mode = argc > 1 ? argv[1] : "close";
    if (argc > 3) {
        lineCount = std::atoi(argv[2]);
        logName = argv[3];
    }
    guiSetAppInfo("Frame host", "frame_host");
    guiInit(handle);
    return guiStart(nullptr);
}
