// The pixmaps of pictures on the server: each control has one at most, and it is freed once. (What is freed
// twice is an X error, and fails the test.)

#include "pictures.h"
#include "server_resources.h"

using namespace kite::testing;

namespace {

unsigned pixmaps()
{
    settle();
    return serverResources(toolkit::display())["PIXMAP"];
}

constexpr int kControls[] = {1, 2, 3};

}  // namespace

GUI_TEST(ImagePixmaps, ReplacedPicturesAreFreed)
{
    const std::string files[] = {patternFile("a.bmp", 12, 12), patternFile("b.bmp", 300, 200)};
    runDialog({.build = buildPictured, .look = [&](Shown) {
                   const unsigned without = pixmaps();
                   for (const int id : kControls) EXPECT_EQ(guiSetImage(id, files[0].c_str()), 0);
                   const unsigned with = pixmaps();
                   EXPECT_EQ(with, without + std::size(kControls));
                   for (int i = 0; i < 100; ++i)
                       for (const int id : kControls) guiSetImage(id, files[i % 2].c_str());
                   EXPECT_EQ(pixmaps(), with);
                   for (const int id : kControls) guiSetImage(id, "");
                   EXPECT_EQ(pixmaps(), without);
                   for (int i = 0; i < 10; ++i)
                       for (const int id : kControls) {
                           guiSetImage(id, files[0].c_str());
                           guiSetImage(id, nullptr);
                       }
                   EXPECT_EQ(pixmaps(), without);
               }});
}

GUI_TEST(ImagePixmaps, FailuresFreeWhatWasShown)
{
    const std::string good = patternFile("good.bmp", 12, 12);
    runDialog({.build = buildPictured, .look = [&](Shown) {
                   // The first box makes the toolkit keep pixmaps of its own.
                   EXPECT_MISUSE(guiSetImage(1, "missing.bmp"),
                                 "guisetimage: cannot load image missing.bmp", -1);
                   const unsigned without = pixmaps();
                   for (int i = 0; i < 5; ++i)
                       for (const int id : kControls) {
                           guiSetImage(id, good.c_str());
                           EXPECT_MISUSE(guiSetImage(id, "missing.bmp"),
                                         "guisetimage: cannot load image missing.bmp", -1);
                       }
                   EXPECT_EQ(pixmaps(), without);
               }});
}

GUI_TEST(ImagePixmaps, AControlThatIsTooSmallKeepsNone)
{
    const std::string good = patternFile("good.bmp", 12, 12);
    runDialog({.build =
                   [] {
                       guiUseAbsPos(1);
                       guiImage(1, 0, 1, 0, 1, 1);
                   },
               .look =
                   [&](Shown) {
                       const unsigned without = pixmaps();
                       for (int i = 0; i < 20; ++i) EXPECT_EQ(guiSetImage(1, good.c_str()), -1);
                       EXPECT_EQ(pixmaps(), without);
                   }});
}

GUI_TEST(ImagePixmaps, ATextOnAButtonKeepsAtMostOne)
{
    const std::string good = patternFile("good.bmp", 12, 12);
    runDialog({.build = buildPictured, .look = [&](Shown) {
                   const unsigned without = pixmaps();
                   for (int i = 0; i < 20; ++i) {
                       guiSetImage(3, good.c_str());
                       guiSetText(3, "Text");
                   }
                   EXPECT_LE(pixmaps(), without + 1);
                   guiSetImage(3, "");
                   EXPECT_EQ(pixmaps(), without);
               }});
}

// The dialog is on the screen in the middle of an event: what is destroyed goes at its end.
GUI_TEST(ImagePixmaps, DestroyedControlsFreeTheirs)
{
    const std::string good = patternFile("good.bmp", 12, 12);
    unsigned without = 0;
    ASSERT_EQ(guiDialog("Dialog"), 0);
    buildPictured();
    const auto destroy = [&](Shown) {
        without = pixmaps();
        for (const int id : kControls) {
            guiSetImage(id, good.c_str());
            guiSetImage(id, good.c_str());
            XtDestroyWidget(outerOf(id));
        }
    };
    const auto freed = [&] { return pixmaps() <= without; };
    script.inOrder(
        {script.shown("v_dlgbbr", destroy), {"the pixmaps are freed", freed, [] { guiClose(1); }}});
    EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 1);
}

GUI_TEST(ImagePixmaps, ClosedDialogsFreeTheirs)
{
    const std::string good = patternFile("good.bmp", 12, 12);
    const auto show = [&](bool withPictures) {
        runDialog({.build = buildPictured, .look = [&](Shown) {
                       if (!withPictures) return;
                       for (const int id : kControls) EXPECT_EQ(guiSetImage(id, good.c_str()), 0);
                   }});
        return pixmaps();
    };
    show(false);
    const unsigned before = show(false);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(show(true), before);
}

// The toolkit makes a grey picture of each that it paints on a disabled button.
GUI_TEST(ImagePixmaps, GreyOnesAreFreedToo)
{
    const std::string good = patternFile("good.bmp", 12, 12);
    const auto run = [&](int pictures) {
        runDialog({.build = buildPictured, .look = [&](Shown) {
                       for (int i = 0; i < pictures; ++i) {
                           EXPECT_EQ(guiSetImage(3, good.c_str()), 0);
                           guiEnable(3, i % 2);
                           settle();
                           guiEnable(3, 0);
                           settle();
                       }
                   }});
        return pixmaps();
    };
    run(0);
    const unsigned before = run(0);
    for (const int pictures : {1, 2, 5}) EXPECT_EQ(run(pictures), before) << pictures;
}
