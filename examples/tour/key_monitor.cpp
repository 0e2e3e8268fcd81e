// key_monitor.cpp: shows the keys that a dialog hears of.

#include <deque>
#include <string>

#include "dialogs.h"
#include "report.h"

namespace tour {

namespace {

enum Control { Close = GUI_CANCEL_BUTTON, Button = 1, Field, FirstLine };

constexpr int kLines = 4;
constexpr int kWidth = 148;  // dialog units
constexpr int kHistory = 3;  // the row where it begins

std::deque<std::string> latest;  // the newest first
int keyCount = 0;

const char* nameOf(int key)
{
    switch (key) {
    case GUI_KEY_UP: return "Up";
    case GUI_KEY_DOWN: return "Down";
    case GUI_KEY_LEFT: return "Left";
    case GUI_KEY_RIGHT: return "Right";
    case GUI_KEY_DELETE: return "Delete";
    case GUI_KEY_INSERT: return "Insert";
    case GUI_KEY_BACKSPACE: return "BackSpace";
    default: return nullptr;
    }
}

std::string described(int key, bool hasControl)
{
    const char* const name = nameOf(key);
    return std::to_string(++keyCount) + ".  " + (hasControl ? "Control + " : "") +
           (name ? name : "F" + std::to_string(key)) + "  (code " + std::to_string(key) + ")";
}

void build()
{
    guiDialog("Keyboard");
    guiLabel(GUI_ANONYMOUS, 0, 0, kWidth, "F1 to F12 are heard anywhere; arrows, Delete,");
    guiLabel(GUI_ANONYMOUS, 1, 0, kWidth, "Insert and BackSpace on the button only.");
    guiButton(Button, 2, 0, 48, "A button", 0);
    guiEdit(Field, 2, 56, kWidth - 56, 0, 0);
    guiLine(GUI_ANONYMOUS, kHistory, kLines + 1, 0, kWidth);
    for (int line = 0; line < kLines; ++line)
        guiLabel(FirstLine + line, kHistory + line, 6, kWidth - 12, "");
    guiButton(Close, kHistory + kLines + 1, 50, 48, "Close", 0);
}

void begin()
{
    latest.clear();
    keyCount = 0;
    guiSetText(FirstLine, "No key yet");
}

void pressed(int key, bool hasControl)
{
    latest.push_front(described(key, hasControl));
    latest.resize(kLines);
    for (int line = 0; line < kLines; ++line)
        guiSetText(FirstLine + line, latest.at(static_cast<std::size_t>(line)).c_str());
}

int handle(int event, int id, int a, int b)
{
    if (event == GUI_EVENT_INIT) begin();
    if (event == GUI_EVENT_KEY) pressed(a, b != 0);
    if (event == GUI_EVENT_COMMAND && id == Close) guiClose(0);
    return 0;
}

}  // namespace

void showKeys()
{
    build();
    runDialog(handle);
    report(std::to_string(keyCount) + " keys were heard of");
}

}  // namespace tour
