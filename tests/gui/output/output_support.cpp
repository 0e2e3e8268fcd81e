#include "output_support.h"

#include <fstream>
#include <iterator>
#include <ostream>
#include <vector>

namespace kite::testing {

Widget outputText()
{
    return findWidget("v_text");
}

std::string output()
{
    return textOf(outputText());
}

void setOutput(const std::string& text)
{
    XmTextSetString(outputText(), const_cast<char*>(text.c_str()));
}

void selectOutput(XmTextPosition left, XmTextPosition right)
{
    XmTextSetSelection(outputText(), left, right, XtLastTimestampProcessed(toolkit::display()));
}

std::ostream& operator<<(std::ostream& out, const Selected& selected)
{
    return out << selected.left << " to " << selected.right;
}

Selected outputSelection()
{
    Selected selected;
    if (!XmTextGetSelectionPosition(outputText(), &selected.left, &selected.right)) return kNothing;
    return selected;
}

XmTextPosition insertionPoint()
{
    return XmTextGetInsertionPosition(outputText());
}

std::string line(int number)
{
    std::vector<char> buffer(100000);
    const int result = guiOutputLine(number, buffer.data(), static_cast<int>(buffer.size()));
    if (result < 0) return "[" + std::to_string(result) + "]";
    const std::string text = buffer.data();
    EXPECT_EQ(result, static_cast<int>(text.size()));
    return text;
}

std::string contentsOf(const std::string& path)
{
    std::ifstream file{path, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

}  // namespace kite::testing
