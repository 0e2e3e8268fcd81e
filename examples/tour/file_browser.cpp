// file_browser.cpp: the files below the current directory, as a tree.

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "dialogs.h"
#include "report.h"

namespace tour {

namespace {

namespace fs = std::filesystem;

enum Control { Close = GUI_CANCEL_BUTTON, Files = 1, Path, Size };

constexpr int kWidth = 160;  // dialog units
constexpr int kLevels = 3;
constexpr std::size_t kMost = 500;  // items

// The file of each item: keys count from 1, as key 0 is the root.
std::vector<fs::path> files;

int keyOf(const fs::path& file)
{
    files.push_back(file);
    return static_cast<int>(files.size());
}

std::vector<fs::directory_entry> entriesOf(const fs::path& directory)
{
    std::error_code ignored;
    std::vector<fs::directory_entry> entries;
    for (const auto& entry : fs::directory_iterator{directory, ignored}) entries.push_back(entry);
    std::sort(entries.begin(), entries.end());
    return entries;
}

void addEntries(const fs::path& directory, int parent, int levels)
{
    for (const auto& entry : entriesOf(directory)) {
        if (files.size() >= kMost) return;
        const int key = keyOf(entry.path());
        guiAddTree(Files, parent, key, entry.path().filename().c_str());
        std::error_code ignored;
        if (levels > 1 && entry.is_directory(ignored) && !entry.is_symlink(ignored))
            addEntries(entry.path(), key, levels - 1);
    }
}

void build()
{
    guiDialog("Files");
    guiTree(Files, 0, 9, 0, kWidth);
    guiLabel(Path, 9, 0, kWidth, "");
    guiLabel(Size, 10, 0, 100, "");
    guiButton(Close, 10, 112, 48, "Close", 1);
}

void begin()
{
    files.clear();
    addEntries(fs::current_path(), 0, kLevels);
    guiSetText(Path, "Double click a file to choose it.");
    guiSetFocus(Files);
}

std::string sizeOf(int index)
{
    const fs::path& file = files[static_cast<std::size_t>(index)];
    std::error_code failed;
    const auto bytes = fs::file_size(file, failed);
    if (!failed) return std::to_string(bytes) + " bytes";
    return std::to_string(guiNumTree(Files, index + 1)) + " files";
}

void show(int index)
{
    if (index < 0) return;
    guiSetText(Path, fs::relative(files[static_cast<std::size_t>(index)]).c_str());
    guiSetText(Size, sizeOf(index).c_str());
}

// After guiGetPos no event comes until a control was changed.
int selectedKey()
{
    const int key = guiGetPos(Files);
    guiSetText(Size, "");
    return key;
}

// Of the directory below the one that was chosen, or of a file, only the mark in the tree goes.
void offerMore(int key)
{
    if (key == 0) return;
    guiCreatePopMenu();
    guiAppendPopMenu("&First entry");
    guiAppendPopMenu("&Hide it");
    const int choice = guiShowPopMenu(0, 0, 0, 0);
    if (choice == 1) show(guiNthTree(Files, key, 1) - 1);
    if (choice == 2) guiDelTree(Files, key);
}

void choose(int index)
{
    if (index < 0) return;
    report(files[static_cast<std::size_t>(index)].filename().string() + " was chosen");
    guiClose(1);
}

int handle(int event, int id, int a, int b)
{
    if (event == GUI_EVENT_INIT) begin();
    if (event == GUI_EVENT_SELECT && b == 0) show(a);
    if (event == GUI_EVENT_SELECT && b == 1) choose(a);
    if (event == GUI_EVENT_CONTEXT) offerMore(selectedKey());
    if (event == GUI_EVENT_COMMAND && id == Close) guiClose(0);
    return 0;
}

}  // namespace

void showFiles()
{
    build();
    if (runDialog(handle) == 0) report("No file was chosen");
}

}  // namespace tour
