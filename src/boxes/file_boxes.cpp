// file_boxes.cpp: the boxes for a file to open, a file to save to, and a directory.

#include <kitegui.h>
#include <unistd.h>

#include <cstring>

#include "boxes/directory_box.h"
#include "boxes/file_box.h"
#include "boxes/file_choice.h"
#include "boxes/misuse.h"
#include "frame/host_services.h"
#include "frame/settings.h"
#include "toolkit/host_buffer.h"

namespace kite {

namespace {

constexpr char kEveryFile[] = "All files|*.*|";

// What becomes of a choice; false after a box that says why not.
using Check = bool (*)(const std::string& path);

bool refuse(const char* message)
{
    guiInfoBox(message);
    return false;
}

bool mayOpen(const std::string& path)
{
    switch (findFile(path)) {
    case FileFound::Missing: return refuse("Cannot access the file");
    case FileFound::Directory: return refuse("It's a directory, not a file");
    case FileFound::File: break;
    }
    return true;
}

bool maySave(const std::string& path)
{
    switch (findFile(path)) {
    case FileFound::Missing: break;
    case FileFound::Directory: return refuse("It's a directory, not a file");
    case FileFound::File: return guiYesNoBox("File exists. Overwrite?") != 0;
    }
    return true;
}

bool mayAny(const std::string&)
{
    return true;
}

std::optional<std::string> chooseFile(const FileBox::Content& content, const std::string& extension,
                                      Check check)
{
    FileBox box{content};
    for (;;) {
        const auto chosen = box.ask();
        if (!chosen || chosen->empty() || chosen->back() == '/') return std::nullopt;
        const std::string path = withExtension(*chosen, extension);
        if (check(path)) return path;
    }
}

std::string orDefault(const char* text, const char* byDefault)
{
    return text && *text ? text : byDefault;
}

FileBox::Content contentFor(const char* title, const char* filter, const char* buffer, int size)
{
    return {title, firstPattern(orDefault(filter, kEveryFile)),
            std::string(buffer, strnlen(buffer, static_cast<std::size_t>(size)))};
}

void follow(const std::string& path)
{
    const int nameStart = kxLocNamePos(path.c_str());
    if (nameStart <= 0 || !settings::followsFiles()) return;
    // A directory that cannot be entered is left alone: the host has its file all the same.
    [[maybe_unused]] const int result =
        chdir(path.substr(0, static_cast<std::size_t>(nameStart)).c_str());
}

int deliver(const std::optional<std::string>& path, char* buffer, int size)
{
    buffer[0] = '\0';
    if (!path || path->size() >= static_cast<std::size_t>(size)) return GUI_FAILED;
    follow(*path);
    return copyToBuffer(buffer, size, *path);
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiOpenFileBox(const char* title, const char* filter, const char* defExt, int mustExist,
                   char* buffer, int size)
{
    if (!isUsableBuffer(buffer, size)) return reportMisuse("OpenFileBox: invalid buffer");
    const auto content = contentFor(orDefault(title, "Open").c_str(), filter, buffer, size);
    if (mustExist < 0) return deliver(chooseDirectory(content), buffer, size);
    const auto path = chooseFile(content, orDefault(defExt, ""), mustExist ? mayOpen : mayAny);
    return deliver(path, buffer, size);
}

int guiSaveFileBox(const char* title, const char* filter, const char* defExt, int confirmOverwrite,
                   char* buffer, int size)
{
    if (!isUsableBuffer(buffer, size)) return reportMisuse("SaveFileBox: invalid buffer");
    const auto content = contentFor(orDefault(title, "Save As").c_str(), filter, buffer, size);
    const auto path =
        chooseFile(content, orDefault(defExt, ""), confirmOverwrite ? maySave : mayAny);
    return deliver(path, buffer, size);
}
