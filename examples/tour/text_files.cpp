// text_files.cpp: files are read into the Output area, written from it, and printed.

#include <kitegui.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <string>

#include "output.h"
#include "report.h"

namespace tour {

namespace {

constexpr char kTexts[] = "Texts|*.txt|";
constexpr int kMustExist = 1;
constexpr int kDirectory = -1;
constexpr int kConfirm = 1;
constexpr char kPrinted[] = "tour-print.txt";

using Path = std::array<char, 1024>;

int size(const Path& path)
{
    return static_cast<int>(path.size());
}

void read(const Path& path)
{
    std::ifstream file{path.data()};
    for (std::string line; std::getline(file, line);) guiWriteLine(line.c_str());
    report(std::string{"Read: "} + path.data());
}

}  // namespace

void openFile()
{
    Path path{};
    if (guiOpenFileBox("Open a text", kTexts, nullptr, kMustExist, path.data(), size(path)) < 0)
        return report("Nothing was opened");
    read(path);
}

void openDroppedFile()
{
    Path path{};
    if (guiGetDropName(path.data(), size(path)) > 0) read(path);
}

void saveOutput()
{
    Path path{"tour-output.txt"};
    const char* const title = "Save the output, or what is selected of it";
    if (guiSaveFileBox(title, kTexts, "txt", kConfirm, path.data(), size(path)) < 0)
        return report("Nothing was saved");
    if (guiSaveOutput(path.data()) == 0) report(std::string{"Saved in "} + path.data());
}

void chooseDirectory()
{
    Path path{};
    guiOpenFileBox("A directory", nullptr, nullptr, kDirectory, path.data(), size(path));
    report(path.front() ? std::string{"The directory is "} + path.data() : "No directory");
}

// By the print command of the profile; without one, by the tour's own (settings.cpp).
void printOutput()
{
    if (guiSaveOutput(kPrinted) != 0) return;
    constexpr int kUnused = 0;
    constexpr int kNoWrapping = 0;
    report("Printing", guiPrintFile(kPrinted, kUnused, kUnused, kUnused, kUnused, kUnused, kUnused,
                                    kNoWrapping));
}

void showPageSettings()
{
    report("The default page settings", guiGetDefPrnPage());
}

// The Output area's text is taken into the editor, and comes back.
void editOutput()
{
    std::array<char, 256> line{};
    const int length = static_cast<int>(line.size());
    guiEditorReset();
    for (int number = 0; number < guiOutputLineCount(); ++number)
        if (guiOutputLine(number, line.data(), length) >= 0) guiEditorPutLine(line.data());
    const int lines = guiEditorBox("The output");
    if (lines < 0) return report("The output stays as it is");
    guiSelOutputLine(1, 0, -1);
    guiClearOutput();
    while (guiEditorGetLine(line.data(), length) >= 0) guiWriteLine(line.data());
    report("The output has " + std::to_string(lines) + " lines now");
}

}  // namespace tour
