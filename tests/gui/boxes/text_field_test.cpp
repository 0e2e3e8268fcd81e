// The field of the text prompt: how it looks, and the keyboard in it.

#include "box_kinds.h"

#include <Xm/TextF.h>

using namespace kite::testing;

namespace {

const screen::Colour kWhite{255, 255, 255};
const screen::Colour kBlack{0, 0, 0};

// Shows a prompt for a text of up to 19 bytes, and answers it with Return.
void whilePrompting(const std::string& start, int hidden,
                    const std::function<void(Shown, Widget field)>& look)
{
    char buffer[20] = "";
    start.copy(buffer, sizeof buffer - 1);
    Script::instance().whenShown("v_promptbox", [&](Shown box) {
        look(box, partOf(box.widget(), XmDIALOG_TEXT));
        box.key(XK_Return);
    });
    guiGetTextBox("Say it", buffer, sizeof buffer, hidden);
}

// The inside of the field, without its shadow.
screen::Picture pictureOfText(Widget field)
{
    screen::waitUntilPainted(field);
    const Rect rect = rectOf(field);
    return screen::grab(Rect{rect.x + 2, rect.y + 2, rect.width - 4, rect.height - 4});
}

bool hasCursor(Widget field)
{
    return resource<Boolean>(field, XmNcursorPositionVisible);
}

// The insertion cursor blinks, and would be taken for text.
void moveFocusToOk(Shown box)
{
    box.key(XK_Tab);
}

}  // namespace

GUI_TEST(TextField, HasItsMargins)
{
    whilePrompting("", 0, [](Shown, Widget field) {
        EXPECT_EQ(resource<Dimension>(field, XmNmarginWidth), 3);
        EXPECT_EQ(resource<Dimension>(field, XmNmarginHeight), 1);
    });
}

GUI_TEST(TextField, HasShadowTwoAndNoHighlight)
{
    whilePrompting("", 0, [](Shown, Widget field) {
        EXPECT_EQ(resource<Dimension>(field, XmNshadowThickness), 2);
        EXPECT_EQ(resource<Dimension>(field, XmNhighlightThickness), 0);
    });
}

GUI_TEST(TextField, IsLimitedToTheBuffer)
{
    whilePrompting("", 0,
                   [](Shown, Widget field) { EXPECT_EQ(resource<int>(field, XmNmaxLength), 19); });
}

GUI_TEST(TextField, IsBlackOnWhite)
{
    whilePrompting("abc", 0, [](Shown box, Widget field) {
        Screen* const screen = XtScreen(field);
        EXPECT_EQ(resource<Pixel>(field, XmNforeground), BlackPixelOfScreen(screen));
        EXPECT_EQ(resource<Pixel>(field, XmNbackground), WhitePixelOfScreen(screen));
        moveFocusToOk(box);
        const screen::Picture text = pictureOfText(field);
        EXPECT_EQ(text.colours().front(), kWhite);
        EXPECT_GT(text.count(kBlack), 10);
    });
}

GUI_TEST(TextField, HiddenIsWhiteOnWhite)
{
    whilePrompting("abc", 1, [](Shown box, Widget field) {
        EXPECT_EQ(resource<Pixel>(field, XmNforeground), resource<Pixel>(field, XmNbackground));
        EXPECT_EQ(resource<Pixel>(field, XmNbackground), WhitePixelOfScreen(XtScreen(field)));
        box.type("secret");
        EXPECT_EQ(textOf(field), "abcsecret");
        moveFocusToOk(box);
        const screen::Picture text = pictureOfText(field);
        EXPECT_EQ(text.count(kWhite), text.width() * text.height());
    });
}

GUI_TEST(TextField, AnyNumberButZeroHides)
{
    for (const int hidden : {1, 2, -1, 256})
        whilePrompting("abc", hidden, [&](Shown, Widget field) {
            EXPECT_EQ(resource<Pixel>(field, XmNforeground), WhitePixelOfScreen(XtScreen(field)))
                << hidden;
        });
}

GUI_TEST(TextField, SelectedHiddenTextCannotBeRead)
{
    whilePrompting("secret", 1, [](Shown box, Widget field) {
        box.key(XK_slash, Control);
        char* const selected = XmTextFieldGetSelection(field);
        EXPECT_STREQ(selected, "secret");
        XtFree(selected);
        const screen::Picture text = pictureOfText(field);
        EXPECT_EQ(text.colours().size(), 1U) << "one colour, and nothing in it";
    });
}

GUI_TEST(TextField, HasTheKeyboardAtFirst)
{
    whilePrompting("", 0, [](Shown box, Widget field) {
        EXPECT_EQ(resource<Widget>(box.widget(), XmNinitialFocus), field);
        ASSERT_TRUE(wm::waitForFocus(box.widget()));
        EXPECT_TRUE(pumpUntil([&] { return XmGetFocusWidget(box.widget()) == field; }));
    });
}

GUI_TEST(TextField, ShowsTheInsertionCursorWithTheKeyboardOnly)
{
    whilePrompting("", 0, [](Shown box, Widget field) {
        EXPECT_TRUE(pumpUntil([&] { return hasCursor(field); }));
        box.key(XK_Tab);
        EXPECT_FALSE(hasCursor(field));
        box.key(XK_Tab, Shift);
        EXPECT_TRUE(hasCursor(field));
    });
}

GUI_TEST(TextField, HidesTheInsertionCursorBelowAnotherBox)
{
    whilePrompting("", 0, [](Shown, Widget field) {
        ASSERT_TRUE(pumpUntil([&] { return hasCursor(field); }));
        whileShown(boxKind("guiInfoBox"), [&](Shown inner) {
            ASSERT_TRUE(wm::waitForFocus(inner.widget()));
            EXPECT_TRUE(pumpUntil([&] { return !hasCursor(field); }));
        });
        EXPECT_TRUE(pumpUntil([&] { return hasCursor(field); }));
    });
}

GUI_TEST(TextField, InsertionCursorCanBeSeen)
{
    whilePrompting("", 0, [](Shown box, Widget field) {
        ASSERT_TRUE(pumpUntil([&] { return hasCursor(field); }));
        EXPECT_TRUE(pumpUntil([&] { return screen::grab(field).count(kBlack) > 5; }));
        box.key(XK_Tab);
        EXPECT_EQ(pictureOfText(field).count(kBlack), 0);
    });
}

GUI_TEST(TextField, TakesClicksOfTheMouse)
{
    whilePrompting("abc", 0, [](Shown box, Widget field) {
        Robot::instance().click(field, LeftButton, Point{4, 8});
        EXPECT_EQ(XmTextFieldGetInsertionPosition(field), 0);
        box.type("x");
        EXPECT_EQ(textOf(field), "xabc");
    });
}

// A longer text would be one drawing request that no server takes.
GUI_TEST(TextField, TakesNoMoreThanCanBeDrawn)
{
    constexpr std::size_t kMost = 250000;
    std::vector<char> buffer(1000000, '\0');
    std::fill_n(buffer.begin(), 300000, 'a');
    app.whenShown("v_promptbox", [](Shown box) {
        Widget const field = partOf(box.widget(), XmDIALOG_TEXT);
        EXPECT_EQ(resource<int>(field, XmNmaxLength), static_cast<int>(kMost));
        box.type("b");
        box.key(XK_Return);
    });
    EXPECT_EQ(guiGetTextBox("Say it", buffer.data(), static_cast<int>(buffer.size()), 0),
              static_cast<int>(kMost));
    EXPECT_EQ(std::string(buffer.data()), std::string(kMost, 'a'));
}
