// What a file box looks like.

#include "file_boxes_support.h"

#include <X11/Xatom.h>
#include <Xm/FileSB.h>
#include <Xm/MwmUtil.h>

using namespace kite::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::SizeIs;

namespace {

constexpr char kLargeFont[] = "-misc-fixed-medium-r-normal--20-200-75-75-c-100-iso8859-1";

const std::vector<unsigned char> kButtons{XmDIALOG_OK_BUTTON, XmDIALOG_APPLY_BUTTON,
                                          XmDIALOG_CANCEL_BUTTON};
const std::vector<unsigned char> kLists{XmDIALOG_DIR_LIST, XmDIALOG_LIST};
const std::vector<unsigned char> kTexts{XmDIALOG_FILTER_TEXT, XmDIALOG_TEXT};
const std::vector<unsigned char> kLabels{XmDIALOG_FILTER_LABEL, XmDIALOG_DIR_LIST_LABEL,
                                         XmDIALOG_LIST_LABEL, XmDIALOG_SELECTION_LABEL};

std::vector<unsigned char> allParts()
{
    std::vector<unsigned char> parts;
    for (const auto& kind : {kButtons, kLists, kTexts, kLabels})
        parts.insert(parts.end(), kind.begin(), kind.end());
    return parts;
}

void expectFont(const std::string& font)
{
    for (FileAsk const ask : kBothBoxes)
        look(ask, {}, [&](Shown box) {
            for (const unsigned char part : allParts()) {
                Widget const widget = filePart(box.widget(), part);
                EXPECT_EQ(fontNameOf(widget), font) << XtName(widget);
            }
        });
}

// The Cancel button as the toolkit makes it, in the font of the box.
Dimension naturalCancelWidth(Shown box)
{
    auto* const font =
        resource<XmFontList>(filePart(box.widget(), XmDIALOG_OK_BUTTON), XmNfontList);
    Arg arguments[1];
    XtSetArg(arguments[0], XmNbuttonFontList, font);
    Widget const bare =
        XmCreateFileSelectionDialog(box.widget(), const_cast<char*>("bare"), arguments, 1);
    const auto width = resource<Dimension>(filePart(bare, XmDIALOG_CANCEL_BUTTON), XmNwidth);
    XtDestroyWidget(XtParent(bare));
    return width;
}

void expectInside(Widget widget, const Rect& whole)
{
    const Rect part = rectOf(widget);
    EXPECT_TRUE(whole.contains(part.corner()) &&
                whole.contains({part.right() - 1, part.bottom() - 1}))
        << XtName(widget) << ' ' << part;
}

// Buttons are shown as wide as their labels need, and nothing leaves the box or lies on another part.
void expectAllCanBeSeen(Shown box)
{
    const Rect whole = rectOf(box.widget());
    std::vector<Rect> rows;
    for (Widget const child : childrenOf(box.widget())) {
        if (!isShown(child)) continue;
        expectInside(child, whole);
        const Rect rect = rectOf(child);
        for (const Rect& other : rows)
            EXPECT_TRUE(rect.right() <= other.x || other.right() <= rect.x ||
                        rect.bottom() <= other.y || other.bottom() <= rect.y)
                << XtName(child) << ' ' << rect << " and " << other;
        rows.push_back(rect);
    }
}

}  // namespace

GUI_TEST(FileBoxLook, Is400By300)
{
    const FileTree tree;
    for (const int flag : {0, -1})
        look(openFile, {.flag = flag}, [](Shown box) {
            EXPECT_EQ(rectOf(box.widget()).width, 400);
            EXPECT_EQ(rectOf(box.widget()).height, 300);
        });
    std::string name(150, 'w');
    tree.add("sub/" + name);
    look(openFile, {}, [&](Shown box) {
        doubleClickEntry(box, XmDIALOG_DIR_LIST, tree.path("sub"));
        EXPECT_EQ(maskOf(box), tree.path("sub/*"));
        EXPECT_EQ(rectOf(box.shell()).width, 400);
        EXPECT_EQ(rectOf(box.shell()).height, 300);
    });
    look(saveFile, {.initial = std::string(200, 'w')}, [](Shown box) {
        EXPECT_EQ(rectOf(box.widget()).width, 400);
        EXPECT_EQ(rectOf(box.widget()).height, 300);
        EXPECT_EQ(rectOf(box.shell()).width, 400);
        EXPECT_EQ(rectOf(box.shell()).height, 300);
    });
}

GUI_TEST(FileBoxLook, HasNeitherHelpNorSeparator)
{
    for (FileAsk const ask : kBothBoxes)
        look(ask, {}, [](Shown box) {
            EXPECT_FALSE(isShown(filePart(box.widget(), XmDIALOG_HELP_BUTTON)));
            EXPECT_FALSE(isShown(filePart(box.widget(), XmDIALOG_SEPARATOR)));
            for (const unsigned char part : allParts())
                EXPECT_TRUE(isShown(filePart(box.widget(), part)))
                    << XtName(filePart(box.widget(), part));
        });
}

GUI_TEST(FileBoxLook, IsModalForTheWholeApplication)
{
    for (const int flag : {0, -1})
        look(openFile, {.flag = flag}, [&](Shown box) {
            EXPECT_EQ(resource<unsigned char>(box.widget(), XmNdialogStyle),
                      XmDIALOG_FULL_APPLICATION_MODAL);
            const auto hints = wm::itemsOf(windowOf(box.shell()), "_MOTIF_WM_HINTS");
            ASSERT_THAT(hints, SizeIs(5));
            EXPECT_EQ(hints[3], MWM_INPUT_FULL_APPLICATION_MODAL);
            EXPECT_THAT(wm::protocolsOf(box.widget()), Contains("WM_DELETE_WINDOW"));
            EXPECT_EQ(resource<unsigned char>(box.shell(), XmNdeleteResponse), XmDO_NOTHING);
            EXPECT_EQ(wm::transientFor(box.widget()), windowOf(app.shell()));
        });
}

GUI_TEST(FileBoxLook, ListsAreBlackOnWhite)
{
    const FileTree tree;
    look(openFile, {}, [](Shown box) {
        for (const unsigned char which : kLists) {
            Widget const list = filePart(box.widget(), which);
            Screen* const screen = XtScreen(list);
            EXPECT_EQ(resource<Pixel>(list, XmNforeground), BlackPixelOfScreen(screen));
            EXPECT_EQ(resource<Pixel>(list, XmNbackground), WhitePixelOfScreen(screen));
            EXPECT_EQ(resource<Dimension>(list, XmNshadowThickness), 2);
            screen::waitUntilPainted(list);
            const screen::Picture picture = screen::grab(list);
            EXPECT_EQ(picture.colours().front(), screen::colourNamed("white"));
            EXPECT_GT(picture.count(screen::colourNamed("black")), 20);
        }
    });
}

GUI_TEST(FileBoxLook, ButtonsAreAsWideAsCancel)
{
    const FileTree tree;
    for (const int flag : {0, -1})
        look(openFile, {.flag = flag}, [](Shown box) {
            const Dimension natural = naturalCancelWidth(box);
            for (const unsigned char which : kButtons) {
                Widget const button = filePart(box.widget(), which);
                EXPECT_EQ(rectOf(button).width, natural) << labelOf(button);
                EXPECT_EQ(resource<Dimension>(button, XmNshadowThickness), 2);
                EXPECT_EQ(resource<Dimension>(button, XmNhighlightThickness), 1);
            }
            EXPECT_EQ(labelOf(filePart(box.widget(), XmDIALOG_OK_BUTTON)), "OK");
            EXPECT_EQ(labelOf(filePart(box.widget(), XmDIALOG_APPLY_BUTTON)), "Filter");
            EXPECT_EQ(labelOf(filePart(box.widget(), XmDIALOG_CANCEL_BUTTON)), "Cancel");
        });
}

GUI_TEST(FileBoxLook, FontIsTheOneOfTheStatusLine)
{
    const std::string font = fontNameOf(app.find("v_sline"));
    EXPECT_EQ(font, "-Adobe-Helvetica-Medium-R-Normal--14-100-100-100-P-76-ISO8859-1");
    expectFont(font);
}

GUI_STARTUP_TEST(FileBoxLook, FontIsTheOneOfTheProfile)
{
    host.profile().setString("fnamm", kLargeFont);
    app.run([] { expectFont("-Misc-Fixed-Medium-R-Normal--20-200-75-75-C-100-ISO8859-1"); });
}

GUI_STARTUP_TEST(FileBoxLook, FontIsTheToolkitsWhenThereIsNone)
{
    host.profile().setString("fnamm", "-no-such-font-*-*-*--14-*-*-*-*-*-*-*");
    app.run([] {
        look(openFile, {}, [](Shown box) {
            Widget const bare =
                XmCreateFileSelectionDialog(box.widget(), const_cast<char*>("bare"), nullptr, 0);
            for (const unsigned char part : allParts())
                EXPECT_EQ(fontNameOf(filePart(box.widget(), part)),
                          fontNameOf(filePart(bare, part)));
            XtDestroyWidget(XtParent(bare));
        });
    });
}

GUI_TEST(FileBoxLook, InsertionCursorIsWhereTheKeyboardIs)
{
    const FileTree tree;
    const auto hasCursor = [](Shown box, unsigned char which) {
        return resource<Boolean>(filePart(box.widget(), which), XmNcursorPositionVisible) != 0;
    };
    for (FileAsk const ask : kBothBoxes)
        look(ask, {}, [&](Shown box) {
            EXPECT_TRUE(wm::waitForFocus(box.widget()));
            EXPECT_TRUE(pumpUntil([&] { return hasCursor(box, XmDIALOG_TEXT); }));
            EXPECT_FALSE(hasCursor(box, XmDIALOG_FILTER_TEXT));
            Robot::instance().click(filePart(box.widget(), XmDIALOG_FILTER_TEXT));
            EXPECT_FALSE(hasCursor(box, XmDIALOG_TEXT));
            EXPECT_TRUE(hasCursor(box, XmDIALOG_FILTER_TEXT));
            clickEntry(box, XmDIALOG_LIST, tree.path("a.txt"));
            EXPECT_FALSE(hasCursor(box, XmDIALOG_TEXT));
            EXPECT_FALSE(hasCursor(box, XmDIALOG_FILTER_TEXT));
        });
}

GUI_TEST(FileBoxLook, AllCanBeSeen)
{
    const FileTree tree;
    for (int i = 0; i < 40; ++i) tree.add("sub/" + std::string(120, 'm') + std::to_string(i));
    for (const int flag : {0, -1})
        for (const std::string& initial : {std::string{"a.txt"}, std::string{"sub/inner.txt"}})
            look(openFile, {.flag = flag, .initial = initial}, [&](Shown box) {
                expectAllCanBeSeen(box);
                box.savePicture("file_box_" + std::to_string(flag) + initial.substr(0, 1));
            });
}

GUI_STARTUP_TEST(FileBoxLook, AllCanBeSeenInALargeFont)
{
    host.profile().setString("fnamm", kLargeFont);
    app.run([] {
        const FileTree tree;
        for (const int flag : {0, -1})
            look(openFile, {.flag = flag, .initial = "a.txt"}, [&](Shown box) {
                expectAllCanBeSeen(box);
                EXPECT_EQ(rectOf(box.shell()).width, 400);
                EXPECT_EQ(rectOf(box.shell()).height, 300);
                box.savePicture("file_box_large_" + std::to_string(flag));
            });
    });
}
