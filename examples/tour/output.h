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

// Files
void openFile();
void openDroppedFile();
void saveOutput();
void chooseDirectory();
void printOutput();
void showPageSettings();
void editOutput();

// The clipboard
void cutSelection();
void copySelection();
void pasteSelection();
void copyLine();
void appendLine();
void showClipboard();

}  // namespace tour
