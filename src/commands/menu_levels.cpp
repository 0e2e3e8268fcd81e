#include "commands/menu_levels.h"

#include <Xm/Xm.h>

#include "commands/command_room.h"
#include "frame/frame_fonts.h"
#include "frame/main_frame.h"

namespace kite::commands {

namespace {

WidgetRef& menuOfLevel(int level)
{
    return room().menus.at(static_cast<std::size_t>(level));
}

KeySym symbolOf(char mnemonic)
{
    const char name[] = {mnemonic, '\0'};
    return XStringToKeysym(name);
}

}  // namespace

Widget currentMenu()
{
    const int level = room().level;
    return level == 0 ? frame::widgets().menuBar : menuOfLevel(level).get();
}

void openMenu(Widget pulldown)
{
    ++room().level;
    menuOfLevel(room().level).reset(pulldown);
}

void closeMenu()
{
    menuOfLevel(room().level).reset();
    --room().level;
}

MenuLabel::MenuLabel(const char* name) : text_(parseLabel(name)), label_(text_.label.c_str()) {}

void MenuLabel::addTo(ArgumentList& arguments, Widget parent) const
{
    arguments.set(XmNlabelString, label_.get());
    if (text_.mnemonic) arguments.set(XmNmnemonic, symbolOf(text_.mnemonic));
    if (XmFontList const font = frameFonts::of(parent, frameFonts::Use::MenuBar))
        arguments.set(XmNfontList, font);
}

}  // namespace kite::commands
