// menus.cpp: the menu bar and the toolbar, as tables.

#include <kitegui.h>

#include "commands.h"

namespace tour {

namespace {

constexpr int kPlain = GUI_PLAIN;
constexpr int kCheck = GUI_CHECK;

enum class Entry { Menu, Item, Separator, End };

struct MenuEntry {
    Entry kind;
    const char* name = nullptr;  // "&" before the letter that chooses it
    char accelerator = 0;        // with Control; upper case: with Shift, too
    int style = kPlain;
    int id = 0;
};

constexpr MenuEntry kSeparator{Entry::Separator};
constexpr MenuEntry kEnd{Entry::End};

constexpr MenuEntry menu(const char* name)
{
    return {Entry::Menu, name};
}

constexpr MenuEntry item(const char* name, int id, char accelerator = 0, int style = kPlain)
{
    return {Entry::Item, name, accelerator, style, id};
}

constexpr MenuEntry kMenuBar[] = {
    menu("&File"),
    item("&Open a text...", Open, 'O'),
    item("&Save the output...", Save, 's'),
    item("A &directory...", ChooseDirectory, 'D'),
    kSeparator,
    item("&Print the output", Print, 'P'),
    item("Default pa&ge settings", ShowPageSettings),
    kSeparator,
    item("&Quit", Close, 'q'),
    kEnd,

    menu("&Edit"),
    item("Cu&t", Cut),
    item("&Copy", Copy, 'c'),
    item("&Paste", Paste),
    kSeparator,
    item("Copy the &line of the cursor", CopyLine, 'C'),
    item("&Add that line to the clipboard", AppendLine, 'a'),
    item("&Show the clipboard", ShowClipboard, 'z'),
    kSeparator,
    item("The whole output in an &editor...", EditOutput, 'E'),
    kEnd,

    menu("&Output"),
    item("Write some &lines", WriteLines, 'l'),
    item("Write some &HTML", WriteHtml, 'h'),
    kSeparator,
    menu("&Select"),
    item("The &first line", SelectFirst, '1'),
    item("The &last line", SelectLast, '9'),
    kSeparator,
    item("&Everything", SelectAll, 'A'),
    kEnd,
    item("&Replace the selection...", Replace, 'r'),
    item("&Count the lines", CountLines, 'n'),
    item("&Where is the cursor?", ShowCursor, 'w'),
    kSeparator,
    item("&Protect it from clearing", Protect, 'p', kCheck),
    item("C&lear", Clear, 'k'),
    kEnd,

    menu("F&rame"),
    item("&Timer feeds the gauge", Timer, 't', kCheck),
    item("Run a &plug-in", RunPlugin),
    item("Run a plug-in &now", RunPluginNow),
    item("&Compute for a second", Compute),
    item("&Start anew", StartAnew),
    kSeparator,
    menu("&Move it"),
    menu("Into a &corner"),
    item("Top &left", MoveToTopLeft, '7'),
    item("Bottom &right", MoveToBottomRight, '3'),
    kEnd,
    item("To the c&entre", MoveToCentre, '5'),
    kEnd,
    kEnd,

    menu("&Boxes"),
    item("&Information", ShowInformation, 'i'),
    item("&Error", ShowError, 'e'),
    item("&Note at the pointer", ShowTip),
    kSeparator,
    item("&OK or Cancel", AskOkCancel),
    item("&Yes or No", AskYesNo, 'y'),
    item("Yes, No or &Cancel", AskYesNoCancel),
    item("&Boxes in boxes", NestBoxes),
    item("A &window of the host's own", ShowOwnWindow),
    kSeparator,
    item("A &text...", AskText),
    item("A &hidden text...", AskHiddenText),
    kEnd,

    menu("&Dialogs"),
    item("&Registration...", ShowRegistration, 'g'),
    item("&Pictures...", ShowPictures, 'v'),
    item("&Keyboard...", ShowKeys, 'b'),
    item("A dialog in a &dialog...", ShowNestedDialogs, 'd'),
    item("&Help at hand...", ShowHoverHelp, 'u'),
    kSeparator,
    item("&Tasks...", ShowTasks, 'j'),
    item("&Files...", ShowFiles, 'f'),
    item("&Settings...", ShowSettings, 'm'),
    item("&Letter...", ShowLetter, 'o'),
    item("Fonts and &colours...", ShowFontsAndColours, 'x'),
    kSeparator,
    item("Meas&urements...", ShowMeasurements, 'M'),
    item("Layou&t...", ShowLayout, 'L'),
    item("A re&minder, when this is done", AskForReminder, 'R'),
    kEnd,

    menu("&Help"),
    item("&About the tour", ShowAbout),
    kEnd,
};

struct Button {
    const char* image;  // of tbbb/, without ".bmp"; null: a gap
    const char* tip = nullptr;
    int id = 0;
    int style = kPlain;
};

constexpr Button kGap{nullptr};

constexpr Button kToolbar[] = {
    {"save", "Save the output", Save},
    kGap,
    {"line", "Write some lines", WriteLines},
    {"html", "Write some HTML", WriteHtml},
    {"select", "Select everything", SelectAll},
    {"clear", "Clear the output", Clear},
    {"lock", "Protect the output from clearing", Protect, kCheck},
    kGap,
    {"timer", "Timer that feeds the gauge", Timer, kCheck},
    kGap,
    {"question", "Ask a question", AskYesNo},
    {"information", "About the tour", ShowAbout},
    kGap,
    {"quit", "Leave the tour", Close},
};

void add(const MenuEntry& entry)
{
    switch (entry.kind) {
    case Entry::Menu: guiMenu(entry.name); break;
    case Entry::Item: guiMenuItem(entry.name, entry.accelerator, entry.style, entry.id); break;
    case Entry::Separator: guiMenuSeparator(); break;
    case Entry::End: guiMenuEnd(); break;
    }
}

void add(const Button& button)
{
    if (button.image)
        guiToolbarButton(button.image, button.tip, button.style, button.id);
    else
        guiToolbarSeparator();
}

}  // namespace

void buildMenuBar()
{
    for (const MenuEntry& entry : kMenuBar) add(entry);
}

void buildToolbar()
{
    for (const Button& button : kToolbar) add(button);
}

}  // namespace tour
