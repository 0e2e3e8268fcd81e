// editor_support.h: the editor box, filled, shown and read.

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "gui_test.h"

namespace kite::testing {

inline constexpr char kEditor[] = "v_editorbox";

// The widgets of the box that is open.
Widget editorText();
std::string edited();  // what it shows
void setEdited(const std::string& text);

// Puts the lines into the empty buffer.
void fillEditor(const std::vector<std::string>& lines);

// Shows the box, looks at it, and presses OK. Returns what guiEditorBox returned.
int editAndAccept(const std::function<void(Shown)>& look, const char* title = "Editor");

// Lines as guiEditorGetLine reads them into a buffer of that size, until it returns -1.
std::vector<std::string> editorLines(int size = 4096);

// "" or "[-1]", and so on, for one of them.
std::string nextEditorLine(int size = 4096);

}  // namespace kite::testing
