#include "editor_support.h"

#include <Xm/Text.h>

namespace kite::testing {

Widget editorText()
{
    return findWidget("v_mltext");
}

std::string edited()
{
    return textOf(editorText());
}

void setEdited(const std::string& text)
{
    XmTextSetString(editorText(), const_cast<char*>(text.c_str()));
}

void fillEditor(const std::vector<std::string>& lines)
{
    EXPECT_EQ(guiEditorReset(), 0);
    for (const std::string& line : lines)
        EXPECT_EQ(guiEditorPutLine(line.c_str()), static_cast<int>(line.size()));
}

int editAndAccept(const std::function<void(Shown)>& look, const char* title)
{
    Script::instance().whenShown(kEditor, [&](Shown box) {
        look(box);
        box.click("OK");
    });
    return guiEditorBox(title);
}

std::string nextEditorLine(int size)
{
    std::vector<char> buffer(static_cast<std::size_t>(size) + 1, '#');
    const int result = guiEditorGetLine(buffer.data(), size);
    EXPECT_EQ(buffer.back(), '#');
    if (result < 0) {
        EXPECT_STREQ(buffer.data(), "");
        return "[" + std::to_string(result) + "]";
    }
    const std::string line = buffer.data();
    EXPECT_EQ(result, static_cast<int>(line.size()));
    return line;
}

std::vector<std::string> editorLines(int size)
{
    std::vector<std::string> lines;
    for (std::string line = nextEditorLine(size); line != "[-1]"; line = nextEditorLine(size))
        lines.push_back(line);
    return lines;
}

}  // namespace kite::testing
