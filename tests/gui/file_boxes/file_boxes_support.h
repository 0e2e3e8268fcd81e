// file_boxes_support.h: the file boxes as the tests call them, and what a user does in one.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "gui_test.h"

namespace kite::testing {

struct FileCall {
    const char* title = nullptr;
    const char* filter = "All|*|";
    const char* extension = nullptr;
    int flag = 0;              // mustExist, confirmOverwrite
    std::string initial = {};  // what the buffer holds on entry
    int size = 1024;
};

struct FileResult {
    int length = 0;
    std::string path;

    bool operator==(const FileResult&) const = default;
};

std::ostream& operator<<(std::ostream& out, const FileResult& result);

// The result that goes with a path, and that of a user who gives up.
FileResult chosen(const std::string& path);
extern const FileResult kNothing;

FileResult openFile(const FileCall& call);
FileResult saveFile(const FileCall& call);

// Both boxes ask the same way.
using FileAsk = FileResult (*)(const FileCall&);
extern const std::vector<FileAsk> kBothBoxes;

// Shows the box, lets a user do that (answering it is a part of it), and returns what came of it.
FileResult during(FileAsk ask, const FileCall& call, const std::function<void(Shown)>& action);

// Shows the box, looks at it, and cancels.
void look(FileAsk ask, const FileCall& call, const std::function<void(Shown)>& action);

// For scripts: the file box waits for the user again, after a message box of it.
Step fileBoxAgain(const std::function<void(Shown)>& action);

// The toolkit's parts (XmDIALOG_TEXT …), and what they show.
Widget filePart(Widget box, unsigned char which);
std::string selectionOf(Shown box);
std::string maskOf(Shown box);
std::vector<std::string> entriesOf(Shown box, unsigned char list);

// By keyboard, after a click into the field when it has not the focus.
void writeInto(Shown box, unsigned char field, const std::string& text);

// Writes the name over the selection text.
void write(Shown box, const std::string& name);

// The same, and Return.
void choose(Shown box, const std::string& name);

// By mouse, on the entry of a list that can be seen. Positions count from 1.
void clickRow(Widget list, int position);
void clickEntry(Shown box, unsigned char list, const std::string& entry);
void doubleClickEntry(Shown box, unsigned char list, const std::string& entry);

// A directory with some files: a.txt, b.txt, c.dat, plain, sub/inner.txt; it is the working directory.
class FileTree {
public:
    FileTree();
    ~FileTree();
    FileTree(const FileTree&) = delete;
    FileTree& operator=(const FileTree&) = delete;

    // The path of a file or directory in it: the directory itself, with "/" behind it, by default.
    std::string path(const std::string& name = {}) const;

    void add(const std::string& name) const;

private:
    std::filesystem::path before_;
    TemporaryDirectory directory_{"files"};
};

}  // namespace kite::testing
