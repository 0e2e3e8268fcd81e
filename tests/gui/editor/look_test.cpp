// What the editor box is made of, and how it is laid out.

#include <X11/Xatom.h>
#include <Xm/BulletinB.h>
#include <Xm/DialogS.h>
#include <Xm/MwmUtil.h>
#include <Xm/PushB.h>
#include <Xm/ScrolledW.h>
#include <Xm/Text.h>

#include "editor_support.h"

using namespace kite::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::SizeIs;

namespace {

int dimension(Widget widget, const char* name)
{
    return resource<Dimension>(widget, name);
}

int position(Widget widget, const char* name)
{
    return resource<Position>(widget, name);
}

// The width that the toolkit gives such a button where there is no default button.
int naturalWidth(Widget box, const std::string& label)
{
    Widget const board = XtVaCreateWidget("board", xmBulletinBoardWidgetClass, box, nullptr);
    XmString string = XmStringCreateLocalized(const_cast<char*>(label.c_str()));
    Widget const button = XtVaCreateWidget(
        "bare", xmPushButtonWidgetClass, board, XmNlabelString, string, XmNfontList,
        resource<XmFontList>(findWidget("v_clpbtn"), XmNfontList), XmNshadowThickness, 2,
        XmNhighlightThickness, 1, XmNdefaultButtonShadowThickness, 0, nullptr);
    XmStringFree(string);
    const int width = dimension(button, XmNwidth);
    XtDestroyWidget(board);
    return width;
}

void expectLayout(Widget board)
{
    const int width = dimension(board, XmNwidth), height = dimension(board, XmNheight);
    EXPECT_EQ(width, 550);
    EXPECT_EQ(height, 400);
    const int across = dimension(board, XmNmarginWidth), down = dimension(board, XmNmarginHeight);
    Widget const scrolled = findWidget("v_scroll", board);
    Widget const ok = findWidget("v_okpbtn"), cancel = findWidget("v_clpbtn");
    const int buttonWidth = dimension(cancel, XmNwidth),
              buttonHeight = dimension(cancel, XmNheight);

    EXPECT_EQ(position(scrolled, XmNx), across);
    EXPECT_EQ(position(scrolled, XmNy), down);
    EXPECT_EQ(dimension(scrolled, XmNwidth), width - 2 * across);
    EXPECT_EQ(dimension(scrolled, XmNheight), height - 2 * down - buttonHeight - down / 2);
    EXPECT_EQ(position(ok, XmNx), (width - 3 * buttonWidth) / 2);
    EXPECT_EQ(position(ok, XmNy), height - down - buttonHeight);
    EXPECT_EQ(dimension(ok, XmNwidth), buttonWidth);
    EXPECT_EQ(position(cancel, XmNx), (width - 3 * buttonWidth) / 2 + 2 * buttonWidth);
    EXPECT_EQ(position(cancel, XmNy), height - down - buttonHeight);
    EXPECT_EQ(buttonWidth, naturalWidth(board, "Cancel"));
}

}  // namespace

GUI_TEST(EditorLook, IsThatOfATextWithTwoButtons)
{
    // Is a modal box of the main window.
    {
        editAndAccept([&](Shown box) {
            EXPECT_TRUE(XtIsSubclass(box.shell(), xmDialogShellWidgetClass));
            EXPECT_STREQ(XtName(box.shell()), "v_editorshell");
            EXPECT_EQ(XtParent(box.shell()), app.find("v_mainwnd"));
            EXPECT_EQ(XtParent(box.widget()), box.shell());
            EXPECT_EQ(guiGetTopWnd(), box.widget());
            EXPECT_EQ(wm::transientFor(box.widget()), windowOf(app.shell()));
            EXPECT_TRUE(XtIsSubclass(box.widget(), xmBulletinBoardWidgetClass));
            EXPECT_EQ(resource<unsigned char>(box.widget(), XmNdialogStyle),
                      XmDIALOG_FULL_APPLICATION_MODAL);
            EXPECT_FALSE(resource<Boolean>(box.widget(), XmNautoUnmanage));
            EXPECT_TRUE(resource<Boolean>(box.widget(), XmNnoResize));
            const auto hints = wm::itemsOf(windowOf(box.shell()), "_MOTIF_WM_HINTS");
            ASSERT_THAT(hints, SizeIs(5));
            EXPECT_EQ(hints[3], MWM_INPUT_FULL_APPLICATION_MODAL);
            EXPECT_FALSE(hints[1] & (MWM_FUNC_ALL | MWM_FUNC_RESIZE));
            EXPECT_THAT(wm::protocolsOf(box.widget()), Contains("WM_DELETE_WINDOW"));
            EXPECT_EQ(resource<unsigned char>(box.shell(), XmNdeleteResponse), XmDO_NOTHING);
        });
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
        EXPECT_FALSE(findWidget("v_editorshell"));
    }

    // Has its title.
    {
        struct {
            const char* given;
            std::string shown;
        } const rows[] = {{"Letter", "Letter"},
                          {"", "Editor"},
                          {nullptr, "Editor"},
                          {"A: b, c (d)", "A: b, c (d)"}};
        for (const auto& row : rows)
            editAndAccept(
                [&](Shown box) {
                    EXPECT_EQ(box.title(), row.shown);
                    EXPECT_EQ(dialogTitleOf(box.widget()), row.shown);
                },
                row.given);
    }

    // Has its parts.
    {
        editAndAccept([&](Shown box) {
            Widget const scrolled = box.child("v_scroll");
            EXPECT_EQ(XtParent(scrolled), box.widget());
            EXPECT_TRUE(XmIsScrolledWindow(scrolled));
            EXPECT_EQ(dimension(scrolled, XmNshadowThickness), 0);
            EXPECT_EQ(dimension(scrolled, XmNspacing), 0);

            Widget const text = editorText();
            EXPECT_EQ(XtParent(text), scrolled);
            EXPECT_TRUE(XmIsText(text));
            EXPECT_EQ(resource<int>(text, XmNeditMode), XmMULTI_LINE_EDIT);
            EXPECT_TRUE(resource<Boolean>(text, XmNeditable));
            EXPECT_EQ(dimension(text, XmNshadowThickness), 2);
            EXPECT_EQ(dimension(text, XmNhighlightThickness), 0);
            EXPECT_EQ(dimension(text, XmNmarginWidth), 3);
            EXPECT_EQ(dimension(text, XmNmarginHeight), 1);
            EXPECT_EQ(screen::colourOf(text, resource<Pixel>(text, XmNforeground)),
                      screen::colourNamed("black"));
            EXPECT_EQ(screen::colourOf(text, resource<Pixel>(text, XmNbackground)),
                      screen::colourNamed("white"));

            for (const char* const name : {XmNhorizontalScrollBar, XmNverticalScrollBar}) {
                Widget const bar = resource<Widget>(scrolled, name);
                ASSERT_TRUE(bar) << name;
                EXPECT_EQ(dimension(bar, XmNshadowThickness), 2);
                EXPECT_EQ(dimension(bar, XmNhighlightThickness), 0);
                EXPECT_EQ(resource<Pixel>(bar, XmNforeground),
                          resource<Pixel>(box.widget(), XmNforeground));
                EXPECT_EQ(resource<Pixel>(bar, XmNbackground),
                          resource<Pixel>(box.widget(), XmNbackground));
                EXPECT_TRUE(isShown(bar));
            }

            EXPECT_EQ(labelOf(box.child("v_okpbtn")), "OK");
            EXPECT_EQ(labelOf(box.child("v_clpbtn")), "Cancel");
            for (const char* const name : {"v_okpbtn", "v_clpbtn"}) {
                Widget const button = box.child(name);
                EXPECT_TRUE(XmIsPushButton(button));
                EXPECT_EQ(dimension(button, XmNshadowThickness), 2);
                EXPECT_EQ(dimension(button, XmNhighlightThickness), 1);
                EXPECT_EQ(dimension(button, XmNdefaultButtonShadowThickness), 0);
            }
            EXPECT_EQ(resource<Widget>(box.widget(), XmNinitialFocus), scrolled);
            EXPECT_EQ(resource<Widget>(box.widget(), XmNdefaultButton), box.child("v_okpbtn"));
            EXPECT_EQ(resource<Widget>(box.widget(), XmNcancelButton), box.child("v_clpbtn"));
        });
    }

    // Is laid out from its size and its margins.
    {
        for (int time = 0; time < 2; ++time)
            editAndAccept([](Shown box) { expectLayout(box.widget()); });
    }

    // Has the fonts of the frame.
    {
        editAndAccept([&](Shown) {
            EXPECT_EQ(fontNameOf(editorText()), fontNameOf(app.find("v_text")));
            EXPECT_EQ(fontNameOf(findWidget("v_okpbtn")), fontNameOf(app.find("v_sline")));
            EXPECT_EQ(fontNameOf(findWidget("v_clpbtn")), fontNameOf(app.find("v_sline")));
            EXPECT_NE(fontNameOf(app.find("v_text")), fontNameOf(app.find("v_sline")));
        });
    }
}

// What Xt resources of the user ask for.
GUI_STARTUP_TEST(EditorLook, FollowsOtherMarginsAndFonts)
{
    host.profile().setString("fnamm", "-misc-fixed-medium-r-normal--20-200-75-75-c-100-iso8859-1");
    host.profile().setString("fnamt", "-misc-fixed-medium-r-normal--20-200-75-75-c-100-iso8859-1");
    app.run([&] {
        XrmDatabase database = XtDatabase(toolkit::display());
        XrmPutStringResource(&database, "*v_editorbox.marginWidth", "23");
        XrmPutStringResource(&database, "*v_editorbox.marginHeight", "17");
        editAndAccept([&](Shown box) {
            EXPECT_EQ(dimension(box.widget(), XmNmarginWidth), 23);
            EXPECT_EQ(dimension(box.widget(), XmNmarginHeight), 17);
            expectLayout(box.widget());
            const std::string font = "-Misc-Fixed-Medium-R-Normal--20-200-75-75-C-100-ISO8859-1";
            for (const char* const name : {"v_mltext", "v_okpbtn", "v_clpbtn"})
                EXPECT_EQ(fontNameOf(findWidget(name)), font) << name;
        });
    });
}
