// commands.cpp: what each command does.

#include "commands.h"

#include <kitegui.h>

#include <array>
#include <chrono>
#include <thread>

#include "boxes.h"
#include "dialogs.h"
#include "output.h"
#include "report.h"

namespace tour {

namespace {

constexpr int kTick = 200;     // milliseconds between two steps of the gauge
constexpr int kGaugeStep = 5;  // per cent
constexpr int kFull = 100;     // per cent

int progress = 0;

void setTimer(int isOn)
{
    guiTimer(isOn ? kTick : 0);
    report(isOn ? "The timer feeds the gauge" : "The timer is stopped");
}

// The button of the toolbar turns grey with the item.
void setProtection(int isOn)
{
    guiEnableCommand(Clear, !isOn);
    report(isOn ? "The output cannot be cleared" : "The output can be cleared");
}

int threeTicks(GuiHandler dispatch)
{
    for (int event = 0; event < 3; ++event) dispatch(GUI_EVENT_TIMER, 0, 0, 0);
    report("The plug-in raised three timer events");
    return 0;
}

void runPlugin()
{
    guiStartPlugin(threeTicks);
}

void runPluginNow()
{
    guiRunPlugin(threeTicks);
}

// No event is delivered while it computes; the user can stop it all the same.
void compute()
{
    constexpr int kSteps = 50;
    constexpr std::chrono::milliseconds kStep{20};
    for (int step = 1; step <= kSteps; ++step) {
        guiSetProgress(step * kFull / kSteps);
        std::this_thread::sleep_for(kStep);
        if (guiUserBreak()) return report("Control+F10 has stopped it");
    }
    report("It was computed");
}

// The menus stay; the toolbar is built again.
void startAnew()
{
    guiRestart();
    buildToolbar();
}

void moveTo(int x, int y)
{
    guiMoveWin(x, y, -1, -1);
    report("The frame was moved");
}

void moveToTopLeft()
{
    moveTo(10, 10);
}

void moveToBottomRight()
{
    moveTo(230, 210);
}

void moveToCentre()
{
    moveTo(120, 110);
}

void leave()
{
    if (guiYesNoBox("Leave the tour?") == GUI_YES) guiClose(0);
}

struct Action {
    Command command;
    void (*act)();
};

constexpr Action kActions[] = {
    {Close, leave},
    {Open, openFile},
    {Save, saveOutput},
    {ChooseDirectory, chooseDirectory},
    {Print, printOutput},
    {ShowPageSettings, showPageSettings},
    {Cut, cutSelection},
    {Copy, copySelection},
    {Paste, pasteSelection},
    {CopyLine, copyLine},
    {AppendLine, appendLine},
    {ShowClipboard, showClipboard},
    {EditOutput, editOutput},
    {WriteLines, writeLines},
    {WriteHtml, writeHtml},
    {Replace, replaceSelection},
    {SelectFirst, selectFirstLine},
    {SelectLast, selectLastLine},
    {SelectAll, selectEverything},
    {CountLines, countLines},
    {ShowCursor, showCursor},
    {Clear, clearOutput},
    {MoveToTopLeft, moveToTopLeft},
    {MoveToBottomRight, moveToBottomRight},
    {MoveToCentre, moveToCentre},
    {RunPlugin, runPlugin},
    {RunPluginNow, runPluginNow},
    {Compute, compute},
    {StartAnew, startAnew},
    {ShowOwnWindow, showOwnWindow},
    {ShowInformation, showInformation},
    {ShowError, showError},
    {ShowTip, showTip},
    {AskOkCancel, askOkCancel},
    {AskYesNo, askYesNo},
    {AskYesNoCancel, askYesNoCancel},
    {AskText, askText},
    {AskHiddenText, askHiddenText},
    {NestBoxes, nestBoxes},
    {ShowAbout, showAbout},
    {ShowRegistration, showRegistration},
    {ShowPictures, showPictures},
    {ShowKeys, showKeys},
    {ShowNestedDialogs, showNestedDialogs},
    {ShowHoverHelp, showHoverHelp},
    {ShowTasks, showTasks},
    {ShowFiles, showFiles},
    {ShowSettings, showSettings},
    {ShowLetter, showLetter},
    {ShowFontsAndColours, showFontsAndColours},
    {ShowMeasurements, showMeasurements},
    {ShowLayout, showLayout},
    {AskForReminder, askForReminder},
};

// F1 to F9 in the Output area.
constexpr std::array kFunctionKeys{ShowInformation, ShowError, ShowTip,       AskOkCancel, AskYesNo,
                                   AskYesNoCancel,  AskText,   AskHiddenText, NestBoxes};

void runFunctionKey(int number)
{
    const auto key = static_cast<std::size_t>(number - 1);
    if (key < kFunctionKeys.size()) runCommand(kFunctionKeys[key], 0);
}

}  // namespace

void runCommand(int id, int state)
{
    if (id < 0) return runFunctionKey(-id);
    if (id == Timer) return setTimer(state);
    if (id == Protect) return setProtection(state);
    for (const Action& action : kActions)
        if (action.command == id) action.act();
}

int runDialog(GuiHandler handler)
{
    const int code = guiRunDialog(handler);
    guiSetCommandCheck(Timer, 0);
    return code;
}

void tick()
{
    progress = progress >= kFull ? 0 : progress + kGaugeStep;
    guiSetProgress(progress);
}

void begin()
{
    guiSetFrameTitle("kitegui tour");
    welcome();
    guiSetCommandCheck(Timer, 1);
    setTimer(1);
    report("F1 to F9: one box each");
}

}  // namespace tour
