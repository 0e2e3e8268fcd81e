// What a dialog leaves behind when it is closed, on the server: nothing.

#include "pictures.h"
#include "server_resources.h"

using namespace kite::testing;

namespace {

constexpr int kImage = 1, kPictureButton = 2;
constexpr int kList = 7, kChoice = 8, kCombo = 9, kText = 10, kTree = 11, kProgress = 12,
              kSpin = 13;
constexpr int kSlider = 14;

void build()
{
    guiDialog("Dialog");
    guiImage(kImage, 0, 3, 0, 40, 1);
    guiButton(kPictureButton, 4, 0, 60, "Text", 1);
    guiLabel(3, 5, 0, 60, "Label");
    guiEdit(4, 6, 0, 60, 0, 0);
    guiCheck(5, 7, 0, 60, "Check");
    guiRadio(6, 8, 0, 60, "Radio");
    guiLine(GUI_ANONYMOUS, 0, 9, 0, 80);
    guiList(kList, 0, 3, 90, 40, GUI_EXTENDED);
    guiChoice(kChoice, 3, 90, 60);
    guiCombo(kCombo, 4, 90, 60);
    guiText(kText, 5, 3, 90, 60, 0);
    guiTree(kTree, 8, 3, 90, 60);
    guiSpin(kSpin, 11, 90, 40);
    guiSlider(kSlider, 12, 1, 90, 60);
    guiProgress(kProgress, 13, 1, 90, 60);
    guiButton(GUI_CANCEL_BUTTON, 9, 0, 0, "", 0);
}

void fill(const std::string& picture)
{
    for (const int id : {kImage, kPictureButton}) EXPECT_EQ(guiSetImage(id, picture.c_str()), 0);
    for (const int id : {kList, kChoice, kCombo})
        for (int item = 0; item < 20; ++item) guiAppendItemInt(id, item);
    guiAppendLine(kText, "A line");
    for (int key = 1; key < 20; ++key) guiAddTree(kTree, key / 4, key, "Item");
    guiDelTree(kTree, 2);
    guiSetTextAtt(kTree, 1, "Times");
    guiSetTextAtt(kProgress, 0, "#c00000");
    guiSetPos(kProgress, 50);
}

// The dialog is closed when it is on the screen.
void openAndClose(const std::string& picture)
{
    Recorder::instance().onEvent(GUI_EVENT_INIT, 0, [&] { fill(picture); });
    build();
    Script::instance().whenShown("v_dlgbbr", [](Shown) { guiClose(1); });
    ASSERT_EQ(guiRunDialog(Recorder::dialogHandler()), 1);
    settle();
}

}  // namespace

GUI_TEST(Leftovers, OfClosedDialogsAreNone)
{
    const std::string picture = patternFile("picture.bmp", 60, 30);
    for (int i = 0; i < 5; ++i) openAndClose(picture);
    const auto before = serverResources(toolkit::display());
    EXPECT_GT(before.at("WINDOW"), 0U);
    for (int i = 0; i < 30; ++i) openAndClose(picture);
    EXPECT_EQ(serverResources(toolkit::display()), before);
}
