// guiSetImage: what image controls and push buttons show.

#include <Xm/Label.h>
#include <Xm/ToggleB.h>

#include "pictures.h"

using namespace kite::testing;

namespace {

void whileShown(const std::function<void(Shown)>& look)
{
    runDialog({.build = buildPictured, .look = look});
}

Pixmap pixmapOf(int id, const char* name)
{
    return resource<Pixmap>(outerOf(id), name);
}

// The label is in the middle of the button.
void expectPatternOnButton(Widget button, int width, int height)
{
    ASSERT_TRUE(screen::waitUntilPainted(button));
    const screen::Picture shown = screen::grab(button);
    const screen::Colour background = backgroundOf(button);
    int found = 0;
    for (int y = 0; y + height <= shown.height(); ++y)
        for (int x = 0; x + width <= shown.width(); ++x) {
            bool isHere = true;
            for (int i = 0; isHere && i < width * height; ++i)
                isHere = shown.at(x + i % width, y + i / width) == patternAt(i % width, i / width);
            if (!isHere) continue;
            ++found;
            EXPECT_NEAR(x, (shown.width() - width) / 2, 1);
            EXPECT_NEAR(y, (shown.height() - height) / 2, 1);
            EXPECT_EQ(shown.at(x - 1, y), background);
            EXPECT_EQ(shown.at(x + width, y), background);
        }
    EXPECT_EQ(found, 1);
}

}  // namespace

GUI_TEST(Image, SmallerThanTheControlIsInItsCorner)
{
    const std::string file = patternFile("small.bmp", 11, 7);
    whileShown([&](Shown) {
        for (const int id : {1, 2}) {
            EXPECT_EQ(guiSetImage(id, file.c_str()), 0);
            expectPattern(outerOf(id), 11, 7);
        }
    });
}

GUI_TEST(Image, LargerThanTheControlIsClipped)
{
    const std::string file = patternFile("large.bmp", 400, 300);
    const std::string wide = patternFile("wide.bmp", 400, 5);
    const std::string tall = patternFile("tall.bmp", 5, 300);
    whileShown([&](Shown) {
        for (const int id : {1, 2}) {
            EXPECT_EQ(guiSetImage(id, file.c_str()), 0);
            expectPattern(outerOf(id), 400, 300);
            EXPECT_EQ(guiSetImage(id, wide.c_str()), 0);
            expectPattern(outerOf(id), 400, 5);
            EXPECT_EQ(guiSetImage(id, tall.c_str()), 0);
            expectPattern(outerOf(id), 5, 300);
        }
    });
}

GUI_TEST(Image, OfTheControlsSizeFillsIt)
{
    whileShown([&](Shown) {
        for (const int id : {1, 2}) {
            const int shadow = id == 1 ? 2 : 0;
            const Rect rect = rectOf(outerOf(id));
            const int width = rect.width - 2 * shadow;
            const int height = rect.height - 2 * shadow;
            EXPECT_EQ(guiSetImage(id, patternFile("exact.bmp", width, height).c_str()), 0);
            expectPattern(outerOf(id), width, height);
            EXPECT_EQ(rectOf(outerOf(id)), rect);
        }
    });
}

GUI_TEST(Image, WhatTheFileDoesNotDrawIsBackground)
{
    const std::string file = holedFile("holed.bmp", 8, 8);
    whileShown([&](Shown) {
        for (const int id : {1, 2}) {
            Widget const image = outerOf(id);
            XtVaSetValues(image, XmNbackground, WhitePixelOfScreen(XtScreen(image)), nullptr);
            EXPECT_EQ(guiSetImage(id, file.c_str()), 0);
            ASSERT_TRUE(screen::waitUntilPainted(image));
            const Rect rect = rectOf(image);
            const int shadow = id == 1 ? 2 : 0;
            const screen::Picture shown =
                screen::grab(Rect{rect.x + shadow, rect.y + shadow, 30, 20});
            EXPECT_EQ(shown.at(0, 7), (screen::Colour{255, 0, 0}));
            EXPECT_EQ(shown.count({255, 255, 255}), 30 * 20 - 1);
        }
    });
}

GUI_TEST(Image, IsReplacedAndCleared)
{
    const std::string first = patternFile("first.bmp", 20, 20);
    const std::string second = patternFile("second.bmp", 6, 6);
    whileShown([&](Shown) {
        for (const int id : {1, 2}) {
            for (const char* const nothing : {"", static_cast<const char*>(nullptr)}) {
                EXPECT_EQ(guiSetImage(id, nothing), 0);
                expectCleared(outerOf(id));
                EXPECT_EQ(guiSetImage(id, first.c_str()), 0);
                EXPECT_EQ(guiSetImage(id, second.c_str()), 0);
                expectPattern(outerOf(id), 6, 6);
                EXPECT_EQ(guiSetImage(id, nothing), 0);
                expectCleared(outerOf(id));
                EXPECT_EQ(pixmapOf(id, XmNlabelPixmap), XmUNSPECIFIED_PIXMAP);
            }
        }
    });
}

GUI_TEST(Image, OfAButtonTakesThePlaceOfItsText)
{
    const std::string file = patternFile("face.bmp", 14, 9);
    whileShown([&](Shown) {
        const Rect rect = rectOf(outerOf(3));
        EXPECT_EQ(guiSetImage(3, file.c_str()), 0);
        EXPECT_EQ(resource<unsigned char>(outerOf(3), XmNlabelType), XmPIXMAP);
        expectPatternOnButton(outerOf(3), 14, 9);
        EXPECT_EQ(rectOf(outerOf(3)), rect);
    });
}

GUI_TEST(Image, OfAButtonGivesWayToAText)
{
    const std::string file = patternFile("face.bmp", 14, 9);
    whileShown([&](Shown dialog) {
        ASSERT_TRUE(screen::waitUntilPainted(dialog.widget()));
        const screen::Picture withText = screen::grab(outerOf(3));
        for (int i = 0; i < 2; ++i) {
            guiSetImage(3, file.c_str());
            guiSetText(3, "Text");
            EXPECT_EQ(resource<unsigned char>(outerOf(3), XmNlabelType), XmSTRING);
            ASSERT_TRUE(screen::waitUntilPainted(outerOf(3)));
            EXPECT_EQ(screen::grab(outerOf(3)) == withText, true);
        }
        guiSetImage(3, file.c_str());
        expectPatternOnButton(outerOf(3), 14, 9);
        EXPECT_EQ(guiSetImage(3, nullptr), 0);
        ASSERT_TRUE(screen::waitUntilPainted(outerOf(3)));
        EXPECT_EQ(pixmapOf(3, XmNlabelPixmap), XmUNSPECIFIED_PIXMAP);
        EXPECT_EQ(resource<unsigned char>(outerOf(3), XmNlabelType), XmPIXMAP);
    });
}

GUI_TEST(Image, IsTheSelectedOneTooAndNoneForADisabledControl)
{
    const std::string file = patternFile("face.bmp", 14, 9);
    whileShown([&](Shown) {
        for (const int id : {1, 2, 3}) {
            SCOPED_TRACE(id);
            guiSetImage(id, file.c_str());
            EXPECT_NE(pixmapOf(id, XmNlabelPixmap), XmUNSPECIFIED_PIXMAP);
            EXPECT_EQ(pixmapOf(id, XmNlabelInsensitivePixmap), XmUNSPECIFIED_PIXMAP);
            if (id == 3) continue;  // the toolkit's push buttons have no others
            EXPECT_EQ(pixmapOf(id, XmNselectPixmap), pixmapOf(id, XmNlabelPixmap));
            EXPECT_EQ(pixmapOf(id, XmNselectInsensitivePixmap), XmUNSPECIFIED_PIXMAP);
        }
    });
}

GUI_TEST(Image, OfADisabledButtonIsSeenWhenItIsEnabled)
{
    const std::string file = patternFile("face.bmp", 14, 9);
    whileShown([&](Shown) {
        guiEnable(3, 0);
        EXPECT_EQ(guiSetImage(3, file.c_str()), 0);
        ASSERT_TRUE(screen::waitUntilPainted(outerOf(3)));
        guiEnable(3, 1);
        settle();
        expectPatternOnButton(outerOf(3), 14, 9);
    });
}

GUI_TEST(Image, IsThereWhenTheDialogIsFirstSeen)
{
    const std::string file = patternFile("early.bmp", 12, 12);
    runDialog({.build = buildPictured,
               .fill =
                   [&] {
                       for (const int id : {1, 2, 3}) EXPECT_EQ(guiSetImage(id, file.c_str()), 0);
                   },
               .look =
                   [](Shown) {
                       expectPattern(outerOf(1), 12, 12);
                       expectPattern(outerOf(2), 12, 12);
                       expectPatternOnButton(outerOf(3), 12, 12);
                   }});
}

GUI_TEST(Image, StaysWhenItIsClicked)
{
    const std::string file = patternFile("face.bmp", 200, 200);
    whileShown([&](Shown) {
        for (const int id : {1, 2}) {
            guiSetImage(id, file.c_str());
            robot.click(outerOf(id));
            expectPattern(outerOf(id), 200, 200);
            robot.click(outerOf(id));
            expectPattern(outerOf(id), 200, 200);
        }
    });
}
