// commands_support.h: what the tests of menus and toolbar share: images, and ways to choose a command.

#pragma once

#include <functional>
#include <string>

#include "gui_test.h"

namespace kite::testing {

// What the application does between guiInit and guiStart, and the rest in the main loop.
void buildThenRun(const std::function<void()>& build, const std::function<void()>& body);

// A widget of the menu bar by its label; a failure when there is none.
Widget entry(const std::string& label);

// By mouse: a click on the menu's title, then one on the item.
void openMenu(const std::string& title);
void choose(const std::string& title, const std::string& item);

// The menu that the label belongs to is on the screen.
bool isOpen(const std::string& itemLabel);
bool isClosed(const std::string& itemLabel);

// ---- toolbar images ---------------------------------------------------------------------------

using ColourOf = std::function<screen::Colour(int x, int y)>;

// A BMP file of 24 bits a pixel.
std::string bmp(int width, int height, const ColourOf& colourOf);

// Four quarters of different colours, so that every turn and shift shows.
screen::Colour quarters(int x, int y);

// Makes "tbbb/" + name + ".bmp" in the application directory.
std::string addImage(const std::string& name, int width = 21, int height = 21,
                     const ColourOf& colourOf = quarters);

// The toolbar buttons from left to right.
std::vector<Widget> toolbarButtons();

}  // namespace kite::testing
