// commands.h: the tour's commands, and where they stand in menus and toolbar.

#pragma once

namespace tour {

enum Command {
    Close = 0,
    Open,
    Save,
    ChooseDirectory,
    Print,
    ShowPageSettings,
    Cut,
    Copy,
    Paste,
    CopyLine,
    AppendLine,
    ShowClipboard,
    EditOutput,
    WriteLines,
    WriteHtml,
    Replace,
    SelectFirst,
    SelectLast,
    SelectAll,
    CountLines,
    ShowCursor,
    Protect,
    Clear,
    Timer,
    MoveToTopLeft,
    MoveToBottomRight,
    MoveToCentre,
    RunPlugin,
    RunPluginNow,
    Compute,
    StartAnew,
    ShowOwnWindow,
    ShowInformation,
    ShowError,
    ShowTip,
    AskOkCancel,
    AskYesNo,
    AskYesNoCancel,
    AskText,
    AskHiddenText,
    NestBoxes,
    ShowAbout,
    ShowRegistration,
    ShowPictures,
    ShowKeys,
    ShowNestedDialogs,
    ShowHoverHelp,
    ShowTasks,
    ShowFiles,
    ShowSettings,
    ShowLetter,
    ShowFontsAndColours,
    ShowMeasurements,
    ShowLayout,
    AskForReminder
};

// Build the menu bar and the toolbar.
void buildMenuBar();
void buildToolbar();

// Does what the user has chosen; `state` is 1 when a check item was set.
void runCommand(int id, int state);

// One step of the gauge.
void tick();

// The first text, and the states that the commands begin with.
void begin();

}  // namespace tour
