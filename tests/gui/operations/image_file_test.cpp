// guiSetImage with files that cannot be shown.

#include <Xm/Label.h>

#include "pictures.h"

using namespace kite::testing;

GUI_TEST(ImageFile, ThatCannotBeLoadedClearsThePicture)
{
    const std::string good = patternFile("good.bmp", 10, 10);
    const std::string broken = host.addFile("broken.bmp", "BM, and no more").string();
    const std::string gif = host.addFile("picture.gif", "GIF89a").string();
    const std::string bare = host.addFile("picture", "BM").string();
    const std::string missing = (host.appDir() / "missing.bmp").string();
    runDialog({.build = buildPictured, .look = [&](Shown) {
                   for (const int id : {1, 2, 3})
                       for (const std::string& file : {missing, broken, gif, bare}) {
                           ASSERT_EQ(guiSetImage(id, good.c_str()), 0);
                           EXPECT_MISUSE(guiSetImage(id, file.c_str()),
                                         "guisetimage: cannot load image " + file, -1);
                           EXPECT_EQ(resource<Pixmap>(outerOf(id), XmNlabelPixmap),
                                     XmUNSPECIFIED_PIXMAP);
                           if (id != 3) expectCleared(outerOf(id));
                       }
               }});
}

GUI_TEST(ImageFile, OfAButtonThatCannotBeLoadedTakesItsText)
{
    runDialog({.build = buildPictured, .fill = [] {
                   EXPECT_MISUSE(guiSetImage(3, "missing.bmp"),
                                 "guisetimage: cannot load image missing.bmp", -1);
                   EXPECT_EQ(resource<unsigned char>(outerOf(3), XmNlabelType), XmPIXMAP);
               }});
}

GUI_TEST(ImageFile, OfALongNameIsNamedWhole)
{
    const std::string name = std::string(3000, 'n') + "%s%n.bmp";
    runDialog({.build = buildPictured, .fill = [&] {
                   EXPECT_MISUSE(guiSetImage(1, name.c_str()),
                                 "guisetimage: cannot load image " + name, -1);
               }});
}

GUI_TEST(ImageFile, InCapitalsIsRead)
{
    const std::string file = patternFile("CAPITALS.BMP", 10, 10);
    runDialog({.build = buildPictured, .look = [&](Shown) {
                   EXPECT_EQ(guiSetImage(1, file.c_str()), 0);
                   expectPattern(outerOf(1), 10, 10);
               }});
}

// No pixmap has no width.
GUI_TEST(ImageFile, HasNoPlaceInAControlThatIsTooSmall)
{
    const std::string file = patternFile("good.bmp", 10, 10);
    runDialog({.build = [] { guiImage(1, 0, 1, 0, 1, 1); },
               .look =
                   [&](Shown) {
                       const Rect rect = rectOf(outerOf(1));
                       ASSERT_LE(rect.width, 4) << "two shadows";
                       EXPECT_EQ(guiSetImage(1, file.c_str()), -1);
                       EXPECT_EQ(guiSetImage(1, ""), 0);
                       EXPECT_EQ(rectOf(outerOf(1)), rect);
                   }});
}

GUI_TEST(ImageFile, OfWhichOneColumnFits)
{
    const std::string file = patternFile("good.bmp", 10, 10);
    runDialog({.build = [] { guiImage(1, 0, 1, 0, 1, 0); },
               .look =
                   [&](Shown) {
                       EXPECT_EQ(guiSetImage(1, file.c_str()), 0);
                       expectPattern(outerOf(1), 10, 10);
                   }});
}

// While its box waits, anything may happen: the dialog may be closed behind it.
GUI_TEST(ImageFile, TheControlMayGoWhileTheBoxIsOpen)
{
    runDialog({.build = buildPictured, .look = [&](Shown dialog) {
                   Widget const image = outerOf(1);
                   app.whenShown("v_errorbox", [&](Shown box) {
                       XtDestroyWidget(image);
                       box.key(XK_Return);
                   });
                   EXPECT_EQ(guiSetImage(1, "missing.bmp"), -1);
                   EXPECT_EQ(guiIdStatus(1), -1);
                   EXPECT_EQ(guiGetTopWnd(), dialog.widget());
               }});
}
