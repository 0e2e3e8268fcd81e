// The texts of labels, buttons, check boxes and radio buttons.

#include "simple_controls_support.h"

using namespace kite::testing;

namespace {

struct Labelled {
    std::string name;
    std::function<void(const char* text)> make;
};

const std::vector<Labelled>& allLabelled()
{
    static const std::vector<Labelled> kinds{
        {"label", [](const char* text) { guiLabel(1, 0, 0, 40, text); }},
        {"button", [](const char* text) { guiButton(1, 0, 0, 40, text, 0); }},
        {"check box", [](const char* text) { guiCheck(1, 0, 0, 40, text); }},
        {"radio button", [](const char* text) { guiRadio(1, 0, 0, 40, text); }},
    };
    return kinds;
}

// The label, and that the dialog can be shown with it.
void expectLabel(const char* text, const std::string& expected)
{
    for (const Labelled& kind : allLabelled()) {
        SCOPED_TRACE(kind.name);
        runDialog([&] { kind.make(text); },
                  [&](Shown) { EXPECT_EQ(labelOf(controlOf(1)), expected); });
    }
}

void expectLabelAsMade(const std::string& text, const std::string& expected)
{
    for (const Labelled& kind : allLabelled()) {
        ASSERT_EQ(guiDialog(""), 0);
        kind.make(text.c_str());
        EXPECT_EQ(labelOf(lastControl()), expected) << kind.name << ", text \"" << text << '"';
        guiClose(0);
    }
}

// All bytes above ASCII that a font of ISO 8859-1 can show.
std::string upperHalf(int first)
{
    std::string text;
    for (int c = first; c <= 0xFF; ++c) text += static_cast<char>(c);
    return text;
}

}  // namespace

GUI_TEST(ControlText, EveryAmpersandIsRemoved)
{
    const std::pair<const char*, const char*> texts[] = {
        {"Plain", "Plain"}, {"&File", "File"},  {"Save && Exit", "Save  Exit"},
        {"&", ""},          {"&&", ""},         {"&&&", ""},
        {"a&", "a"},        {"&a&b&c&", "abc"}, {"", ""},
    };
    for (const auto& [text, label] : texts) expectLabelAsMade(text, label);
}

GUI_TEST(ControlText, IsCutTo255BytesBeforeAmpersandsGo)
{
    const std::string longText = std::string(254, 'x') + "yz" + std::string(44, 'w');
    for (const int length : {254, 255, 256, 300})
        expectLabelAsMade(longText.substr(0, static_cast<std::size_t>(length)),
                          longText.substr(0, std::min<std::size_t>(255, longText.size()))
                              .substr(0, static_cast<std::size_t>(length)));

    expectLabelAsMade(std::string(10, '&') + std::string(250, 'x'), std::string(245, 'x'));
    expectLabelAsMade(std::string(255, '&') + "behind", "");
    expectLabelAsMade(std::string(255, 'x') + "&y", std::string(255, 'x'));
}

GUI_TEST(ControlText, MayBeNullOrOfManyLinesOrOfAnyBytes)
{
    expectLabel(nullptr, "");

    expectLabel("one\n&two\n\nfour", "one\ntwo\n\nfour");

    expectLabel(upperHalf(0xA0).c_str(), upperHalf(0xA0));
    expectLabelAsMade(upperHalf(0x80), upperHalf(0x80));
}

// What the host does with its text afterwards is its own business.
GUI_TEST(ControlText, IsACopy)
{
    char text[] = "Before";
    ASSERT_EQ(guiDialog(""), 0);
    guiLabel(1, 0, 0, 40, text);
    text[0] = 'X';
    EXPECT_EQ(labelOf(lastControl()), "Before");
    EXPECT_STREQ(text, "Xefore");
    guiClose(0);
}
