// task_list.cpp: a list that the user fills, empties and brings into order.

#include <array>
#include <string>

#include "dialogs.h"
#include "report.h"

namespace tour {

namespace {

enum Control { Close = GUI_CANCEL_BUTTON, Tasks = 1, NewTask, Add, Remove, Up, Down, More, Count };

constexpr int kButtons = 108;  // dialog units
constexpr int kButtonWidth = 40;

void build()
{
    guiDialog("Tasks");
    guiList(Tasks, 0, 7, 0, 100, GUI_EXTENDED);
    guiButton(Up, 0, kButtons, kButtonWidth, "&Up", 0);
    guiButton(Down, 1, kButtons, kButtonWidth, "&Down", 0);
    guiButton(Remove, 2, kButtons, kButtonWidth, "&Remove", 0);
    guiButton(More, 3, kButtons, kButtonWidth, "&More...", 0);
    guiLabel(Count, 6, kButtons, kButtonWidth, "");
    guiEdit(NewTask, 7, 0, 100, 0, 0);
    guiButton(Add, 7, kButtons, kButtonWidth, "&Add", 1);
    guiButton(Close, 9, kButtons, kButtonWidth, "Close", 0);
}

// What can be done depends on what is selected.
void showState()
{
    const int selected = guiGetSelCount(Tasks);
    guiSetText(Count, (std::to_string(selected) + " selected").c_str());
    guiEnable(Remove, selected > 0);
    guiEnable(Up, selected == 1);
    guiEnable(Down, selected == 1);
}

void begin()
{
    for (const char* const task : {"Sharpen the pencils", "Water the plants", "Write the letter",
                                   "Buy stamps", "Post the letter", "Go for a walk"})
        guiAppendItem(Tasks, task);
    guiSetFocus(Tasks);
    showState();
}

void add()
{
    std::array<char, 128> task{};
    if (guiGetText(NewTask, task.data(), static_cast<int>(task.size())) < 1) return;
    guiAppendItem(Tasks, task.data());
    guiClrAll(Tasks);
    guiSetSel(Tasks, guiGetItemCount(Tasks) - 1);
    guiSetText(NewTask, "");
}

// From the end: the indexes of the others stay as they are.
void removeSelected()
{
    for (int n = guiGetSelCount(Tasks) - 1; n >= 0; --n)
        guiRemoveItem(Tasks, guiGetNthSel(Tasks, n));
}

// At the pointer, or beside the button.
void offerMore(int besideControl)
{
    guiCreatePopMenu();
    guiAppendPopMenu("Select &all");
    guiAppendPopMenu("Select &nothing");
    guiSepPopMenu();
    guiAppendPopMenu("&Remove what is selected");
    switch (guiShowPopMenu(0, 0, 0, besideControl)) {
    case 1: guiSelAll(Tasks); break;
    case 2: guiClrAll(Tasks); break;
    case 3: removeSelected(); break;
    default: return;
    }
    showState();
}

void press(int button)
{
    switch (button) {
    case Add: add(); break;
    case Remove: removeSelected(); break;
    case Up: guiMoveItemUp(Tasks); break;
    case Down: guiMoveItemDown(Tasks); break;
    case More: offerMore(More); break;
    default: guiClose(guiGetItemCount(Tasks)); return;
    }
    showState();
}

void selected(bool isDouble)
{
    if (isDouble) removeSelected();
    showState();
}

int handle(int event, int id, int, int b)
{
    if (event == GUI_EVENT_INIT) begin();
    if (event == GUI_EVENT_SELECT) selected(b == 1);
    if (event == GUI_EVENT_COMMAND) press(id);
    if (event == GUI_EVENT_CONTEXT && id == Tasks) offerMore(0);
    return 0;
}

}  // namespace

void showTasks()
{
    build();
    report(std::to_string(runDialog(handle)) + " tasks are left");
}

}  // namespace tour
