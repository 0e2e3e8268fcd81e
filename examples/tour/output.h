// output.h: what the tour does with the Output area.

#pragma once

namespace tour {

void welcome();
void writeLines();
void writeHtml();
void replaceSelection();
void selectFirstLine();
void selectLastLine();
void selectEverything();
void countLines();
void showCursor();
void clearOutput();
void saveOutput();

}  // namespace tour
