// tour: shows every feature of the library, one key or command each, and says in the status line what
// came of it.

#include <kitegui.h>

#include <array>
#include <cstdio>
#include <string>

namespace {

constexpr int kTick = 200;     // milliseconds between two steps of the gauge
constexpr int kGaugeStep = 5;  // per cent

int progress = 0;
bool isTicking = false;

void report(const std::string& text)
{
    guiSetStatusLine(text.c_str());
}

void report(const char* what, int result)
{
    report(std::string{what} + " answered " + std::to_string(result));
}

void showInfo()
{
    guiInfoBox("kitegui shows plain messages\nin as many lines as it takes.");
    report("The information was read");
}

void showError()
{
    guiErrorBox("This is how a mistake is reported.");
    report("The error was read");
}

void showTip()
{
    report("The note", guiTipBox("A note at the pointer:\nclick, or move over it"));
}

void askOkCancel()
{
    report("OK or Cancel", guiOkCancelBox("Send all 12 letters now?"));
}

void askYesNo()
{
    report("Yes or No", guiYesNoBox("Delete the file?"));
}

void askYesNoCancel()
{
    report("Yes, No or Cancel", guiYesNoCancelBox("Save the changes before leaving?"));
}

void askText(const char* prompt, const char* proposal, bool isHidden)
{
    std::array<char, 64> answer{};
    std::snprintf(answer.data(), answer.size(), "%s", proposal);
    const int length =
        guiGetTextBox(prompt, answer.data(), static_cast<int>(answer.size()), isHidden);
    if (length < 0)
        report("No text was given");
    else if (isHidden)
        report("A secret of " + std::to_string(length) + " characters was given");
    else
        report(std::string{"The text is: "} + answer.data());
}

void askName()
{
    askText("Your name:", "Ada", false);
}

void askPassword()
{
    askText("Your password:", "", true);
}

void toggleTimer()
{
    isTicking = !isTicking;
    guiTimer(isTicking ? kTick : 0);
    report(isTicking ? "The timer feeds the gauge" : "The timer is stopped");
}

int countDown(GuiHandler dispatch)
{
    for (int event = 0; event < 3; ++event) dispatch(GUI_EVENT_TIMER, 0, 0, 0);
    report("The plug-in raised three timer events");
    return 0;
}

void runPlugin()
{
    guiStartPlugin(countDown);
}

void moveFrame()
{
    guiMoveWin(40, 60, 640, 360);
    report("The frame was moved");
}

void nestBoxes()
{
    if (guiYesNoBox("Open another box on top of this answer?") == GUI_YES)
        report("The second box", guiOkCancelBox("Boxes nest as deep as you like."));
    else
        report("No second box");
}

struct Key {
    const char* what;
    void (*act)();
};

// F1 to F12.
constexpr std::array<Key, 12> kKeys{{
    {"information", showInfo},
    {"error", showError},
    {"tip", showTip},
    {"OK or Cancel", askOkCancel},
    {"Yes or No", askYesNo},
    {"Yes, No or Cancel", askYesNoCancel},
    {"text", askName},
    {"hidden text", askPassword},
    {"timer", toggleTimer},
    {"plug-in", runPlugin},
    {"move the frame", moveFrame},
    {"boxes in boxes", nestBoxes},
}};

void command(int id)
{
    if (id == GUI_COMMAND_CLOSE) {
        if (guiYesNoBox("Leave the tour?") == GUI_YES) guiClose(0);
        return;
    }
    const auto key = static_cast<std::size_t>(-id - 1);
    if (key < kKeys.size()) kKeys[key].act();
}

void tick()
{
    progress = progress >= 100 ? 0 : progress + kGaugeStep;
    guiSetProgress(progress);
}

void greet()
{
    guiSetFrameTitle("kitegui tour");
    toggleTimer();
    report("F1 to F12: one feature each");
}

int handle(int event, int id, int, int)
{
    if (event == GUI_EVENT_INIT && id == 0) greet();
    if (event == GUI_EVENT_COMMAND) command(id);
    if (event == GUI_EVENT_TIMER) tick();
    return 0;
}

}  // namespace

int main()
{
    guiSetAppInfo("kitegui tour", "tour");
    guiInit(handle);
    return guiStart(handle);
}
