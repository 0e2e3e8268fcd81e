#include "gallery_steps.h"

#include "robot.h"
#include "window_manager.h"

namespace tour {

namespace {

using namespace kite::testing;

Robot& robot()
{
    return Robot::instance();
}

std::function<void()> key(KeySym symbol, unsigned modifiers = NoModifier)
{
    return [=] { robot().key(symbol, modifiers); };
}

std::function<void()> keys(std::vector<KeySym> symbols)
{
    return [=] {
        for (const KeySym symbol : symbols) robot().key(symbol);
    };
}

std::function<void()> typed(const std::string& text)
{
    return [=] {
        robot().type(text);
        robot().key(XK_Return);
    };
}

std::function<void()> text(const std::string& text)
{
    return [=] { robot().type(text); };
}

std::function<void()> keysThenText(KeySym first, const std::string& text)
{
    return [=] {
        robot().key(first);
        robot().type(text);
    };
}

Window frame()
{
    static const Window window = wm::waitForWindow(kFrameTitle);
    return window;
}

// The toolbar's buttons, in pixels of the frame.
constexpr int kFirstButton = 22;
constexpr int kButtonWidth = 35;
constexpr int kGap = 5;
constexpr int kToolbarMiddle = 47;

enum ToolbarButton { SaveButton, LineButton, HtmlButton, SelectButton, ClearButton, LockButton };

Point middleOf(ToolbarButton button)
{
    const int gaps = button > SaveButton ? 1 : 0;
    return wm::clientRect(frame()).corner() +
           Point{kFirstButton + kButtonWidth * button + kGap * gaps, kToolbarMiddle};
}

std::function<void()> clicked(ToolbarButton button)
{
    return [=] {
        robot().moveTo(middleOf(button));
        robot().click();
    };
}

void rest()
{
    robot().moveTo(middleOf(SelectButton));
}

// The label at the top left of "Help at hand".
void restOnDialog()
{
    const Window dialog = wm::waitForWindow("Help at hand");
    robot().moveTo(wm::clientRect(dialog).corner() + Point{30, 28});
}

// A place in pixels of the dialog.
std::function<void()> clickedInDialog(const char* title, Point place)
{
    return [=] {
        robot().moveTo(wm::clientRect(wm::waitForWindow(title)).corner() + place);
        robot().click();
    };
}

void contextMenuAt(Point place)
{
    robot().moveTo(place);
    robot().click(RightButton);
}

void contextMenu()
{
    contextMenuAt(wm::clientRect(frame()).centre());
}

void contextMenuOfTasks()
{
    contextMenuAt(wm::clientRect(wm::waitForWindow("Tasks")).corner() + Point{80, 60});
}

void leaveToolbar()
{
    robot().moveTo(wm::clientRect(frame()).centre());
}

}  // namespace

const std::vector<Step>& gallerySteps()
{
    // The timer would change the screen for ever: it goes first.
    static const std::vector<Step> all{
        {"timer", "Control+T stops the timer that feeds the gauge", key(XK_t, Control)},
        {"tooltip", "the pointer rests on a button", rest},
        {"tooltip-left", "the pointer leaves it", leaveToolbar},
        {"menu", "Alt+F opens a menu", key(XK_f, Alt)},
        {"menu-edit", "Right: the next one", key(XK_Right)},
        {"menu-output", "and the one after it", key(XK_Right)},
        {"menu-select", "S: a menu in it", key(XK_s)},
        {"menus-left", "Escape closes them", keys({XK_Escape, XK_Escape})},
        {"menus-nested", "Alt+R, M, C: three levels",
         [] {
             robot().key(XK_r, Alt);
             robot().key(XK_m);
             robot().key(XK_c);
         }},
        {"moved", "R: the frame is moved to the bottom right", key(XK_r)},
        {"lines", "a button writes lines", clicked(LineButton)},
        {"lines-again", "Control+L writes more", key(XK_l, Control)},
        {"html", "a button writes HTML", clicked(HtmlButton)},
        {"select-line", "Control+1 selects the first line", key(XK_1, Control)},
        {"replace", "Control+R asks for what replaces it", key(XK_r, Control)},
        {"replaced", "a text is typed", typed("This is the tour of kitegui, the first line says.")},
        {"select-all", "Control+Shift+A selects everything", key(XK_a, Control | Shift)},
        {"save", "Control+S asks for a file name", key(XK_s, Control)},
        {"saved", "Return saves the selection", key(XK_Return)},
        {"edit-menu", "mouse button 3 pops up the edit menu", contextMenu},
        {"edit-copied", "C copies the selection", key(XK_c)},
        {"clipboard", "Control+Z shows the lines on the clipboard", key(XK_z, Control)},
        {"open", "Control+Shift+O asks for a text to open", key(XK_o, Control | Shift)},
        {"opened", "its name is typed", typed("recipes/bread.txt")},
        {"directory", "Control+Shift+D asks for a directory", key(XK_d, Control | Shift)},
        {"directory-left", "Escape gives up", key(XK_Escape)},
        {"editor", "Control+Shift+E takes the output into an editor", key(XK_e, Control | Shift)},
        {"editor-typed", "something is typed into it", text("Edited: ")},
        {"editor-done", "Control+Tab to OK, and Space: the output is as it was edited",
         [] {
             robot().key(XK_Tab, Control);
             robot().key(XK_space);
         }},
        {"printing", "Control+Shift+P prints: a box asks for patience", key(XK_p, Control | Shift)},
        {"printed", "the command has ended", [] {}},
        {"protect", "a check button protects the output: the eraser turns grey",
         clicked(LockButton)},
        {"menu-check", "the item of the menu is set with it", key(XK_o, Alt)},
        {"unprotect", "P takes the protection away", key(XK_p)},
        {"cleared", "a button clears what is selected: everything", clicked(ClearButton)},
        {"information", "F1 shows an information", key(XK_F1)},
        {"information-read", "Return: it was read", key(XK_Return)},
        {"error", "F2 shows an error", key(XK_F2)},
        {"error-read", "Return again", key(XK_Return)},
        {"tip", "F3 shows a note at the pointer", key(XK_F3)},
        {"tip-left", "the pointer leaves it", leaveToolbar},
        {"ok-cancel", "F4 asks for OK or Cancel", key(XK_F4)},
        {"ok-cancel-answered", "Escape is Cancel", key(XK_Escape)},
        {"yes-no", "F5 asks for Yes or No", key(XK_F5)},
        {"yes-no-answered", "Return is Yes", key(XK_Return)},
        {"yes-no-cancel", "F6 asks for Yes, No or Cancel", key(XK_F6)},
        {"yes-no-cancel-answered", "Escape is Cancel", key(XK_Escape)},
        {"text", "F7 asks for a text", key(XK_F7)},
        {"text-answered", "a name is typed", typed(" Lovelace")},
        {"hidden-text", "F8 asks for a text that stays hidden", key(XK_F8)},
        {"hidden-text-answered", "a secret is typed", typed("secret")},
        {"nested-outer", "F9 asks before it nests", key(XK_F9)},
        {"nested-inner", "Yes: a box on a box", key(XK_Return)},
        {"nested-answered", "Return closes both", key(XK_Return)},
        {"menu-dialogs", "Alt+D: the dialogs", key(XK_d, Alt)},
        {"registration", "R: a form", key(XK_r)},
        {"registration-name", "a name is typed: the button can be pressed", text("Ada Lovelace")},
        {"registration-password", "Tab, a password: it cannot be read",
         keysThenText(XK_Tab, "abc")},
        {"registration-left", "Tab: a word on the password", key(XK_Tab)},
        {"registration-chosen", "Tab and Space: radio buttons and the check box are set",
         keys({XK_Tab, XK_Tab, XK_space, XK_Tab, XK_Tab, XK_Tab, XK_space, XK_Tab, XK_space})},
        {"registration-done", "Return registers", key(XK_Return)},
        {"pictures", "Control+V shows pictures", key(XK_v, Control)},
        {"pictures-next", "Right: the next one", key(XK_Right)},
        {"pictures-last", "and the last one", key(XK_Right)},
        {"pictures-cleared", "Tab to None, and Space", keys({XK_Tab, XK_Tab, XK_space})},
        {"pictures-closed", "Escape closes them", key(XK_Escape)},
        {"keyboard", "Control+B shows the keyboard", key(XK_b, Control)},
        {"keyboard-keys", "Up, Delete and F7 on the button", keys({XK_Up, XK_Delete, XK_F7})},
        {"keyboard-control", "Control+F2", key(XK_F2, Control)},
        {"keyboard-closed", "Escape closes it", key(XK_Escape)},
        {"outer", "Control+D opens a dialog", key(XK_d, Control)},
        {"inner", "Return opens another one in it", key(XK_Return)},
        {"inner-typed", "a town is typed", text(" and Paris")},
        {"inner-closed", "Return: it is in the outer one", key(XK_Return)},
        {"outer-closed", "Escape closes that too", key(XK_Escape)},
        {"hover-help", "Control+U has help at hand", key(XK_u, Control)},
        {"hover-help-rested", "the pointer rests on the first control", restOnDialog},
        {"hover-help-asked", "F1 asks for help on the edit", key(XK_F1)},
        {"hover-help-closed", "Return closes it", key(XK_Return)},
        {"tasks", "Control+J lists tasks", key(XK_j, Control)},
        {"tasks-range", "Shift+Down: two more are selected",
         [] {
             robot().key(XK_Down, Shift);
             robot().key(XK_Down, Shift);
         }},
        {"tasks-moved", "Down, and a click on the button Down: that task moves",
         [] {
             robot().key(XK_Down);
             clickedInDialog("Tasks", {288, 60})();
         }},
        {"tasks-added", "a task is typed, and Return adds it",
         [] {
             for (int tab = 0; tab < 2; ++tab) robot().key(XK_Tab);
             robot().type("Read a book");
             robot().key(XK_Return);
         }},
        {"tasks-context", "mouse button 3 on the list pops up a menu", contextMenuOfTasks},
        {"tasks-all", "A selects all of them", key(XK_a)},
        {"tasks-closed", "Escape closes them", key(XK_Escape)},
        {"files", "Control+F shows the files", key(XK_f, Control)},
        {"files-expanded", "a click on a mark expands a directory",
         clickedInDialog("Files", {24, 24})},
        {"files-selected", "Down: a file in it is selected", keys({XK_Down, XK_Down})},
        {"files-closed", "Escape closes them", key(XK_Escape)},
        {"settings", "Control+M shows settings", key(XK_m, Control)},
        {"settings-dropped", "Control+Down drops the list of a choice down", key(XK_Down, Control)},
        {"settings-chosen", "Down and Return: another paper", keys({XK_Down, XK_Return})},
        {"settings-typed", "Tab, and a printer is typed", keysThenText(XK_Tab, "Home ")},
        {"settings-copies", "Tab, and Up steps the copies", keys({XK_Tab, XK_Up, XK_Up, XK_Up})},
        {"settings-darkness", "Tab, and Right moves the slider: the bar follows",
         [] {
             robot().key(XK_Tab);
             for (int step = 0; step < 15; ++step) robot().key(XK_Right);
         }},
        {"settings-done", "Return takes them", key(XK_Return)},
        {"letter", "Control+O opens a letter", key(XK_o, Control)},
        {"letter-typed", "something is typed: line and column are in the status line",
         keysThenText(XK_Down, "It is Sunday, and")},
        {"letter-signed", "a button signs it", clickedInDialog("Letter", {165, 312})},
        {"letter-closed", "Escape closes it", key(XK_Escape)},
        {"fonts", "Control+X shows fonts and colours", key(XK_x, Control)},
        {"fonts-courier", "Down: another font", key(XK_Down)},
        {"fonts-colour", "Tab and Down: other colours", keys({XK_Tab, XK_Down})},
        {"fonts-large", "Tab and Space: bold and large",
         keys({XK_Tab, XK_space, XK_Tab, XK_Tab, XK_space})},
        {"fonts-closed", "Escape closes them", key(XK_Escape)},
        {"measurements", "Control+Shift+M shows measurements", key(XK_m, Control | Shift)},
        {"measurements-added", "one is typed, and Return adds it: the mean is another", typed("5")},
        {"measurements-closed", "Escape closes them", key(XK_Escape)},
        {"layout", "Control+Shift+L shows a layout by heights", key(XK_l, Control | Shift)},
        {"layout-unlocked", "Tab to the check box, and Space unlocks the edit",
         keys({XK_Tab, XK_Tab, XK_Tab, XK_space})},
        {"layout-hidden", "Return hides it", key(XK_Return)},
        {"layout-closed", "Escape closes it", key(XK_Escape)},
        {"reminder", "Control+Shift+R: a dialog when the command is done",
         key(XK_r, Control | Shift)},
        {"reminder-closed", "Return closes it", key(XK_Return)},
        {"icon", "the frame is iconified", [] { wm::iconify(frame()); }},
        {"restored", "and brought back", [] { wm::deiconify(frame()); }},
        {"closing", "Control+Q leaves", key(XK_q, Control)},
    };
    return all;
}

}  // namespace tour
