// The box that asks for patience while a file is printed.

#include <Xm/BulletinB.h>
#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/MwmUtil.h>

#include <algorithm>
#include <chrono>

#include "connection.h"
#include "printing_support.h"

using namespace kite::testing;
using ::testing::SizeIs;

GUI_TEST(PrintBox, IsPaintedBeforeTheCommandRuns)
{
    // Has its parts.
    {
        const auto look = [&] {
            ASSERT_TRUE(printShell() && printBox() && printLabel());
            EXPECT_TRUE(XtIsSubclass(printShell(), xmDialogShellWidgetClass));
            EXPECT_EQ(XtParent(printShell()), app.find("v_mainwnd"));
            EXPECT_EQ(wm::nameOf(printShell()), "Printing...");
            EXPECT_EQ(XtParent(printBox()), printShell());
            EXPECT_TRUE(XtIsSubclass(printBox(), xmBulletinBoardWidgetClass));
            EXPECT_EQ(dialogTitleOf(printBox()), "Printing...");
            EXPECT_EQ(resource<unsigned char>(printBox(), XmNdialogStyle),
                      XmDIALOG_FULL_APPLICATION_MODAL);
            EXPECT_FALSE(resource<Boolean>(printBox(), XmNautoUnmanage));
            EXPECT_TRUE(resource<Boolean>(printBox(), XmNnoResize));
            const auto hints = wm::itemsOf(windowOf(printShell()), "_MOTIF_WM_HINTS");
            ASSERT_THAT(hints, SizeIs(5));
            EXPECT_EQ(hints[3], MWM_INPUT_FULL_APPLICATION_MODAL);
            EXPECT_FALSE(hints[1] & (MWM_FUNC_ALL | MWM_FUNC_RESIZE));
            EXPECT_EQ(XtParent(printLabel()), printBox());
            EXPECT_TRUE(XmIsLabel(printLabel()));
            EXPECT_EQ(labelOf(printLabel()), "Waiting for print command to return...");
            EXPECT_EQ(guiGetTopWnd(), printBox());
        };
        EXPECT_EQ(printWhile(look), 0);
        EXPECT_FALSE(printShell());
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
        const std::size_t before = childrenOf(app.find("v_mainwnd")).size();
        EXPECT_EQ(printWhile(look), 0);
        EXPECT_EQ(childrenOf(app.find("v_mainwnd")).size(), before);
    }

    // Is painted before the command runs.
    {
        const auto start = std::chrono::steady_clock::now();
        printWhile([&] {
            EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::seconds{1});
            ASSERT_TRUE(isViewable(XtWindow(printLabel())));
            const auto colours = screen::grab(rectOf(printLabel())).colours();
            const auto colour = [](const char* name) {
                return screen::colourOf(printLabel(), resource<Pixel>(printLabel(), name));
            };
            ASSERT_THAT(colours, SizeIs(::testing::Ge(2u)));
            EXPECT_EQ(colours[0], colour(XmNbackground));
            EXPECT_EQ(std::ranges::count(colours, colour(XmNforeground)), 1) << "the text";
        });
    }

    // The font of the status line gives it its size.
    {
        printWhile([&] {
            const auto extent = [](Widget widget, XmString text) {
                return XmStringWidth(resource<XmFontList>(widget, XmNfontList), text);
            };
            XmString const text = resource<XmString>(printLabel(), XmNlabelString);
            EXPECT_EQ(extent(printLabel(), text), extent(app.find("v_sline"), text));
            EXPECT_NE(extent(printLabel(), text), extent(app.find("v_text"), text));
            EXPECT_GE(int{resource<Dimension>(printLabel(), XmNwidth)}, extent(printLabel(), text));
            XmStringFree(text);
        });
    }

    // May be taken away by the host.
    {
        EXPECT_EQ(printWhile([] { XtDestroyWidget(printShell()); }), 0);
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
        EXPECT_EQ(printWhile([] { XtDestroyWidget(printBox()); }), 0);
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    }
}

GUI_STARTUP_TEST(PrintBox, HasTheToolkitsFontWhenThereIsNone)
{
    host.profile().setString("fnamm", "-no-such-font-*-*-*--14-*-*-*-*-*-*-*");
    app.run([&] {
        EXPECT_EQ(printWhile([&] {
                      XmString text = resource<XmString>(printLabel(), XmNlabelString);
                      Widget const bare = XtVaCreateWidget("bare", xmLabelWidgetClass, printBox(),
                                                           XmNlabelString, text, nullptr);
                      EXPECT_EQ(resource<Dimension>(printLabel(), XmNwidth),
                                resource<Dimension>(bare, XmNwidth));
                      XmStringFree(text);
                  }),
                  0);
    });
}

// What the user does meanwhile, and time-outs, are seen to afterwards.
GUI_TEST(PrintBox, LetsNoEventsPass)
{
    settle();
    recorder.clear();
    const int keys = toolkit::received(KeyPress);
    guiTimer(100);
    robot.key(XK_F5);
    printWhile([&] {
        EXPECT_EQ(toolkit::received(KeyPress), keys);
        EXPECT_TRUE(recorder.events().empty());
    });
    EXPECT_TRUE(recorder.events().empty());
    EXPECT_TRUE(pumpUntil([&] { return toolkit::received(KeyPress) > keys; }));
    EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_TIMER)));
    guiTimer(0);
}
