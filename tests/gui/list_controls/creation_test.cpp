// What the constructors make: widgets, their names and tags; and the ids that they take.

#include <Xm/ComboBox.h>
#include <Xm/List.h>
#include <Xm/ScrolledW.h>

#include <cstdint>

#include "list_controls_support.h"

using namespace kite::testing;

namespace {

struct Kind {
    std::string name;
    int type;
    const char* widget;
    WidgetClass widgetClass;
    std::function<int(int id)> make;
};

const std::vector<Kind>& allKinds()
{
    static const std::vector<Kind> kinds{
        {"List", 7, "v_dlgscroll", xmScrolledWindowWidgetClass,
         [](int id) { return guiList(id, 0, 3, 0, 40, GUI_BROWSE); }},
        {"Choice", 6, "v_dlgchoice", xmComboBoxWidgetClass,
         [](int id) { return guiChoice(id, 3, 0, 40); }},
        {"Combo", 12, "v_dlgcombo", xmComboBoxWidgetClass,
         [](int id) { return guiCombo(id, 4, 0, 40); }},
    };
    return kinds;
}

std::intptr_t userDataOf(Widget widget)
{
    return reinterpret_cast<std::intptr_t>(resource<XtPointer>(widget, XmNuserData));
}

}  // namespace

GUI_TEST(ListControls, AreWidgetsWithTheirIdAndType)
{
    for (const Kind& kind : allKinds()) {
        SCOPED_TRACE(kind.name);
        for (const int id : {1, 2, 300, 32767}) {
            ASSERT_EQ(guiDialog(""), 0);
            kind.make(id);
            const std::vector<Widget> controls = childrenOf(newestBoard());
            ASSERT_EQ(controls.size(), 1U);
            EXPECT_EQ(XtName(controls[0]), std::string{kind.widget});
            EXPECT_EQ(XtClass(controls[0]), kind.widgetClass);
            EXPECT_EQ(static_cast<std::int32_t>(userDataOf(controls[0])), id << 16 | kind.type);
            EXPECT_TRUE(XtIsManaged(controls[0]));
            guiClose(0);
        }
    }
}

GUI_TEST(ListControls, ListIsInAScrolledWindow)
{
    ASSERT_EQ(guiDialog(""), 0);
    guiList(5, 0, 3, 0, 40, GUI_BROWSE);
    Widget const list = listOf(5);
    ASSERT_TRUE(list);
    EXPECT_EQ(XtName(list), std::string{"v_dlglist"});
    EXPECT_EQ(XtClass(list), xmListWidgetClass);
    EXPECT_EQ(XtParent(list), controlOf(5));
    EXPECT_TRUE(XtIsManaged(list));
    EXPECT_EQ(userDataOf(list), 0);
    guiClose(0);
}

GUI_TEST(ListControls, AreEmptyAtFirst)
{
    ASSERT_EQ(guiDialog(""), 0);
    guiList(1, 0, 3, 0, 40, GUI_BROWSE);
    guiChoice(2, 3, 0, 40);
    guiCombo(3, 4, 0, 40);
    for (const int id : {1, 2, 3}) EXPECT_EQ(resource<int>(listOf(id), XmNitemCount), 0) << id;
    for (const int id : {2, 3}) EXPECT_EQ(textOf(fieldOf(id)), "") << id;
    guiClose(0);
}

GUI_TEST(ListControls, RefuseIdsThatAreNone)
{
    for (const Kind& kind : allKinds()) {
        SCOPED_TRACE(kind.name);
        EXPECT_MISUSE(kind.make(1), kind.name + ": no dialog is built at the moment");
        ASSERT_EQ(guiDialog(""), 0);
        for (const int id : {0, -1, -2, 32768})
            EXPECT_MISUSE(kind.make(id), kind.name + ": invalid control id " + std::to_string(id));
        kind.make(9);
        for (const Kind& second : allKinds())
            EXPECT_MISUSE(second.make(9), second.name + ": duplicate control id 9");
        EXPECT_EQ(childrenOf(newestBoard()).size(), 1U);
        guiClose(0);
    }
}

// Nothing of it is seen, but the dialog can be used.
GUI_TEST(ListControls, OfNoSizeAreNoHarm)
{
    runDialog({.build =
                   [] {
                       guiLabel(9, 6, 0, 80, "Label");
                       guiList(1, 0, 0, 0, 0, GUI_BROWSE);
                       guiChoice(2, 3, 0, 0);
                       guiCombo(3, 4, 0, 0);
                   },
               .fill =
                   [] {
                       for (const int id : {1, 2, 3}) appendItems(id, 20);
                   },
               .use =
                   [](Shown) {
                       for (const int id : {1, 2, 3})
                           EXPECT_EQ(resource<int>(listOf(id), XmNitemCount), 20) << id;
                   }});
}
