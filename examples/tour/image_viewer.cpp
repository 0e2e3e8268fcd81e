// image_viewer.cpp: pictures in a frame, and on a button.

#include <string>

#include "dialogs.h"
#include "painted_pictures.h"
#include "report.h"

namespace tour {

namespace {

enum Control { Close = GUI_CANCEL_BUTTON, View = 1, Caption, Previous, Next, Clear };

// In dialog units; the view is as large as the pictures with the default fonts.
constexpr int kWidth = 116;
constexpr int kRows = 6;

int shown = 0;

void build()
{
    guiDialog("Pictures");
    guiImage(View, 0, kRows, 0, kWidth, 1);
    guiLabel(Caption, kRows, 0, kWidth, "");
    guiButton(Previous, kRows + 1, 0, 28, "&<", 0);
    guiButton(Next, kRows + 1, 32, 28, "&>", 0);
    guiButton(Clear, kRows + 1, 64, 28, "None", 0);
    guiButton(Close, kRows + 1, 96, 32, "Close", 1);
}

void show(int picture)
{
    shown = (picture + kPictureCount) % kPictureCount;
    if (guiSetImage(View, pictureFile(shown).c_str()) == 0) guiSetText(Caption, pictureName(shown));
}

void clear()
{
    guiSetImage(View, nullptr);
    guiSetText(Caption, "No picture");
}

void press(int button)
{
    switch (button) {
    case Previous: show(shown - 1); break;
    case Next: show(shown + 1); break;
    case Clear: clear(); break;
    case Close: guiClose(0); break;
    default: break;
    }
}

void showPlace(int x, int y)
{
    guiSetText(Caption, ("At " + std::to_string(x) + ", " + std::to_string(y)).c_str());
}

// A key, wherever the keyboard is, on the picture or on one of the buttons; or a click on the picture.
void keyOrClick(int id, int a, int b)
{
    if (id == View) return showPlace(a, b);
    if (a == GUI_KEY_LEFT) show(shown - 1);
    if (a == GUI_KEY_RIGHT) show(shown + 1);
}

int handle(int event, int id, int a, int b)
{
    if (event == GUI_EVENT_INIT) show(shown);
    if (event == GUI_EVENT_COMMAND) press(id);
    if (event == GUI_EVENT_KEY) keyOrClick(id, a, b);
    if (event == GUI_EVENT_CONTEXT && id == View) clear();
    return 0;
}

}  // namespace

void showPictures()
{
    build();
    runDialog(handle);
    report(std::string{"The last picture was "} + pictureName(shown));
}

}  // namespace tour
