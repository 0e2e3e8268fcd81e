#include "dialogs_support.h"

#include <cstdint>

namespace kite::testing {

const std::vector<ControlKind>& allControls()
{
    static const std::vector<ControlKind> kinds{
        {"Label", 1, -1, [](int id, int row) { return guiLabel(id, row, 0, 20, "Label"); }},
        {"Edit", 2, 1, [](int id, int row) { return guiEdit(id, row, 0, 20, 0, 0); }},
        {"Button", 3, 0, [](int id, int row) { return guiButton(id, row, 0, 20, "Button", 0); }},
        {"Check", 4, 1, [](int id, int row) { return guiCheck(id, row, 0, 20, "Check"); }},
        {"Radio", 5, 1, [](int id, int row) { return guiRadio(id, row, 0, 20, "Radio"); }},
        {"Line", 9, -1, [](int id, int row) { return guiLine(id, row, 1, 0, 20); }},
        {"Image", 10, 1, [](int id, int row) { return guiImage(id, row, 1, 0, 20, 0); }},
    };
    return kinds;
}

// A dialog's shell is a pop-up child of the board before it: the last one found is the innermost.
Widget board()
{
    const std::vector<Widget> boards = findWidgets("v_dlgbbr");
    return boards.empty() ? nullptr : boards.back();
}

int tagOf(Widget widget)
{
    return static_cast<int>(
        reinterpret_cast<std::intptr_t>(resource<XtPointer>(widget, XmNuserData)));
}

int tagFor(int id, int type)
{
    return static_cast<int>(static_cast<unsigned>(id) << 16) | type;
}

Widget control(int id)
{
    Widget const dialog = board();
    if (!dialog) return nullptr;
    for (Widget const child : childrenOf(dialog))
        if (!XtIsShell(child) && tagOf(child) >> 16 == id) return child;
    return nullptr;
}

int controlCount()
{
    Widget const dialog = board();
    return dialog ? static_cast<int>(resource<Cardinal>(dialog, XmNnumChildren)) : 0;
}

Units unitsOf(const std::string& name)
{
    XFontStruct* const font = XLoadQueryFont(toolkit::display(), name.c_str());
    if (!font) {
        ADD_FAILURE() << "The server has no font " << name;
        return {};
    }
    constexpr char kLetters[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const double width = XTextWidth(font, kLetters, 52);
    const double height = font->max_bounds.ascent + font->max_bounds.descent + 1;
    XFreeFont(toolkit::display(), font);
    return {((width / 26.0 + 1.0) / 2.0) / 4.0, height / 8.0};
}

void buildDialog(const char* title)
{
    ASSERT_EQ(guiDialog(title), 0);
    guiButton(1, 0, 0, 40, "OK", 0);
}

int runWhileShown(const std::function<void(Shown)>& look, int code)
{
    Script::instance().whenShown("v_dlgbbr", [&look, code](Shown dialog) {
        look(dialog);
        guiClose(code);
    });
    return guiRunDialog(Recorder::dialogHandler());
}

}  // namespace kite::testing
