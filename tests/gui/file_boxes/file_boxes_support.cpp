#include "file_boxes_support.h"

#include <Xm/FileSB.h>
#include <Xm/List.h>
#include <Xm/Xm.h>

#include <algorithm>
#include <fstream>
#include <ostream>

namespace kite::testing {

namespace {

namespace fs = std::filesystem;

using Call = int (*)(const char*, const char*, const char*, int, char*, int);

Point placeOfRow(Widget list, int position)
{
    Position x = 0;
    Position y = 0;
    Dimension width = 0;
    Dimension height = 0;
    if (!XmListPosToBounds(list, position, &x, &y, &width, &height))
        ADD_FAILURE() << "row " << position << " cannot be seen";
    return {rectOf(list).width / 2, y + height / 2};
}

// Nothing is written behind the buffer.
FileResult ask(Call box, const FileCall& call)
{
    constexpr char kBehind = '\x7f';
    const auto size = static_cast<std::size_t>(call.size);
    std::vector<char> buffer(size + 1, '\0');
    call.initial.copy(buffer.data(), size);
    buffer[size] = kBehind;
    const int length =
        box(call.title, call.filter, call.extension, call.flag, buffer.data(), call.size);
    EXPECT_EQ(buffer[size], kBehind);
    EXPECT_LT(strnlen(buffer.data(), size), size) << "not terminated";
    return {length, std::string(buffer.data(), strnlen(buffer.data(), size))};
}

Point placeOfEntry(Shown box, unsigned char which, const std::string& entry)
{
    Widget const list = filePart(box.widget(), which);
    const std::vector<std::string> entries = entriesOf(box, which);
    const auto found = std::ranges::find(entries, entry);
    if (found == entries.end())
        ADD_FAILURE() << "no such entry: " << entry << ' ' << ::testing::PrintToString(entries);
    return placeOfRow(list, static_cast<int>(found - entries.begin()) + 1);
}

}  // namespace

const FileResult kNothing{-1, ""};
const std::vector<FileAsk> kBothBoxes{openFile, saveFile};

std::ostream& operator<<(std::ostream& out, const FileResult& result)
{
    return out << result.length << " \"" << result.path << '"';
}

FileResult chosen(const std::string& path)
{
    return {static_cast<int>(path.size()), path};
}

FileResult openFile(const FileCall& call)
{
    return ask(guiOpenFileBox, call);
}

FileResult saveFile(const FileCall& call)
{
    return ask(guiSaveFileBox, call);
}

FileResult during(FileAsk ask, const FileCall& call, const std::function<void(Shown)>& action)
{
    Script::instance().whenShown("v_filebox", action);
    return ask(call);
}

void look(FileAsk ask, const FileCall& call, const std::function<void(Shown)>& action)
{
    const FileResult result = during(ask, call, [&](Shown box) {
        action(box);
        box.key(XK_Escape);
    });
    EXPECT_EQ(result, kNothing);
}

Step fileBoxAgain(const std::function<void(Shown)>& action)
{
    return {"the file box waits again",
            [] {
                Widget const box = findWidget("v_filebox");
                return box && guiGetTopWnd() == box && isShown(box);
            },
            [action] {
                const Shown box{findWidget("v_filebox")};
                EXPECT_TRUE(wm::waitForFocus(box.widget()));
                action(box);
            }};
}

Widget filePart(Widget box, unsigned char which)
{
    return XmFileSelectionBoxGetChild(box, which);
}

std::string selectionOf(Shown box)
{
    return textOf(filePart(box.widget(), XmDIALOG_TEXT));
}

std::string maskOf(Shown box)
{
    return textOf(filePart(box.widget(), XmDIALOG_FILTER_TEXT));
}

std::vector<std::string> entriesOf(Shown box, unsigned char list)
{
    Widget const widget = filePart(box.widget(), list);
    auto* const items = resource<XmStringTable>(widget, XmNitems);
    std::vector<std::string> entries;
    for (int i = 0; i < resource<int>(widget, XmNitemCount); ++i)
        entries.push_back(toString(items[i]));
    return entries;
}

void writeInto(Shown box, unsigned char which, const std::string& text)
{
    Widget const field = filePart(box.widget(), which);
    if (XmGetFocusWidget(box.widget()) != field) Robot::instance().click(field);
    box.key(XK_slash, Control);
    box.key(XK_Delete);
    EXPECT_EQ(textOf(field), "");
    if (!text.empty()) box.type(text);
    EXPECT_EQ(textOf(field), text);
}

void write(Shown box, const std::string& name)
{
    writeInto(box, XmDIALOG_TEXT, name);
}

void choose(Shown box, const std::string& name)
{
    write(box, name);
    box.key(XK_Return);
}

void clickRow(Widget list, int position)
{
    Robot::instance().click(list, LeftButton, placeOfRow(list, position));
}

void clickEntry(Shown box, unsigned char list, const std::string& entry)
{
    Robot::instance().click(filePart(box.widget(), list), LeftButton,
                            placeOfEntry(box, list, entry));
}

void doubleClickEntry(Shown box, unsigned char list, const std::string& entry)
{
    Robot::instance().doubleClick(filePart(box.widget(), list), LeftButton,
                                  placeOfEntry(box, list, entry));
}

FileTree::FileTree() : before_(fs::current_path())
{
    for (const char* const name : {"a.txt", "b.txt", "c.dat", "plain", "sub/inner.txt"}) add(name);
    fs::current_path(directory_.path());
}

FileTree::~FileTree()
{
    fs::current_path(before_);
}

std::string FileTree::path(const std::string& name) const
{
    return directory_.path().string() + '/' + name;
}

void FileTree::add(const std::string& name) const
{
    const fs::path file = directory_.path() / name;
    fs::create_directories(file.parent_path());
    std::ofstream{file} << "content";
}

}  // namespace kite::testing
