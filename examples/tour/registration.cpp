// registration.cpp: a form with every control that data is entered with.

#include <array>
#include <string>

#include "dialogs.h"
#include "report.h"

namespace tour {

namespace {

enum Control {
    Cancel = GUI_CANCEL_BUTTON,
    Name = 1,
    Password,
    Number,
    Student,
    Working,
    Retired,
    ByPost,
    ByMail,
    News,
    Ok,
    Hint
};

// In dialog units.
constexpr int kLabels = 4;
constexpr int kFields = 52;
constexpr int kFieldWidth = 96;
constexpr int kSecondColumn = 80;
constexpr int kWidth = 152;

void label(int row, int x, const char* text)
{
    guiLabel(GUI_ANONYMOUS, row, x, kFields - kLabels, text);
}

void build()
{
    guiDialog("Registration");
    label(0, kLabels, "&Name:");
    guiEdit(Name, 0, kFields, kFieldWidth, 0, 0);
    label(1, kLabels, "&Password:");
    guiEdit(Password, 1, kFields, kFieldWidth, 1, 0);
    label(2, kLabels, "Number:");
    guiEdit(Number, 2, kFields, kFieldWidth, 0, 1);

    guiLine(GUI_ANONYMOUS, 3, 1, 0, kWidth);
    label(4, kLabels, "You are");
    guiRadio(Student, 5, kLabels, 60, "a &student");
    guiRadio(Working, 6, kLabels, 60, "&working");
    guiRadio(Retired, 7, kLabels, 60, "&retired");
    guiLine(GUI_ANONYMOUS, 4, 4, kSecondColumn - 8, 1);
    label(4, kSecondColumn, "We write");
    guiRadio(ByPost, 5, kSecondColumn, 60, "by &post");
    guiRadio(ByMail, 6, kSecondColumn, 60, "by &mail");
    guiCheck(News, 7, kSecondColumn, 68, "and send &news");
    guiLine(GUI_ANONYMOUS, 8, 1, 0, kWidth);

    guiLabel(Hint, 9, kLabels, kWidth - kLabels, "");
    guiButton(Ok, 10, 16, 48, "Register", 1);
    guiButton(Cancel, 10, 88, 48, "Cancel", 0);
}

void hint(const char* text)
{
    guiSetText(Hint, text);
}

void begin()
{
    guiSetText(Number, "2026-1121");
    guiEnable(Ok, 0);
    guiSetFocus(Name);
    hint("Please enter your name.");
}

// Nobody can register without a name.
void nameChanged(int isThere)
{
    guiEnable(Ok, isThere);
    hint(isThere ? "" : "Please enter your name.");
}

void left(int id)
{
    if (id == Password && guiGetTextLen(Password) < 6)
        hint("Six letters would be a safer password.");
}

void finish()
{
    std::array<char, 64> name{};
    guiGetText(Name, name.data(), static_cast<int>(name.size()));
    report(std::string{name.data()} + " is registered" +
           (guiGetCheck(News) == 1 ? " and gets the news" : ""));
    guiClose(1);
}

int handle(int event, int id, int a, int)
{
    if (event == GUI_EVENT_INIT) begin();
    if (event == GUI_EVENT_TEXT_CHANGED && id == Name) nameChanged(a);
    if (event == GUI_EVENT_LEFT) left(id);
    if (event == GUI_EVENT_RADIO && id == ByMail) hint("We answer within a day.");
    if (event == GUI_EVENT_COMMAND && id == Ok) finish();
    if (event == GUI_EVENT_COMMAND && id == Cancel) guiClose(0);
    return 0;
}

}  // namespace

void showRegistration()
{
    build();
    if (runDialog(handle) == 0) report("Nobody was registered");
}

}  // namespace tour
