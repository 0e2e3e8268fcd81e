// What the controls are made of: names, classes, parts and tags; and which ids are refused.

#include <Xm/Container.h>
#include <Xm/SSpinB.h>
#include <Xm/Scale.h>
#include <Xm/ScrolledW.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>

#include <cstdint>

#include "other_controls_support.h"

using namespace kite::testing;

namespace {

std::uint32_t userDataOf(Widget widget)
{
    return static_cast<std::uint32_t>(
        reinterpret_cast<std::uintptr_t>(resource<XtPointer>(widget, XmNuserData)));
}

bool isMade(const std::function<void()>& make)
{
    const std::size_t before = controlsOfBoard().size();
    make();
    return controlsOfBoard().size() > before;
}

}  // namespace

GUI_TEST(OtherControls, HaveTheirNamesAndClasses)
{
    struct {
        Kind kind;
        WidgetClass outerClass;
        std::string inner;  // nothing when the toolkit names it
        WidgetClass innerClass;
    } const rows[] = {
        {kText, xmScrolledWindowWidgetClass, "v_dlgtext", xmTextWidgetClass},
        {kTree, xmScrolledWindowWidgetClass, "v_dlgtree", xmContainerWidgetClass},
        {kSpin, xmSimpleSpinBoxWidgetClass, "", xmTextFieldWidgetClass},
        {kSlider, xmScaleWidgetClass, "Scrollbar", nullptr},
        {kProgress, xmScaleWidgetClass, "Scrollbar", nullptr},
    };
    runDialog(makeAllKinds, [&](Shown) {
        ASSERT_EQ(controlsOfBoard().size(), std::size(rows));
        for (const KindOfControl& kind : allKinds())
            EXPECT_EQ(XtName(controlOf(kind.kind)), kind.widget);
        for (const auto& row : rows) {
            SCOPED_TRACE(row.kind);
            EXPECT_EQ(XtClass(controlOf(row.kind)), row.outerClass);
            Widget const inner = innerOf(row.kind);
            ASSERT_TRUE(inner);
            if (!row.inner.empty()) {
                EXPECT_EQ(XtName(inner), row.inner);
            }
            if (row.innerClass) {
                EXPECT_EQ(XtClass(inner), row.innerClass);
            }
            EXPECT_TRUE(isShown(inner));
        }
    });
}

GUI_TEST(OtherControls, CarryTheirTags)
{
    // The id above, the type code below, on the outer widget; the inner ones have none.
    for (const int id : {1, 255, 32767})
        for (const KindOfControl& kind : allKinds()) {
            SCOPED_TRACE(kind.call + " " + std::to_string(id));
            ASSERT_EQ(guiDialog(""), 0);
            kind.make(id);
            EXPECT_EQ(userDataOf(lastControl()), static_cast<std::uint32_t>(id << 16 | kind.kind));
            if (kind.kind == kText || kind.kind == kTree) {
                EXPECT_EQ(userDataOf(innerOf(id)), 0U);
            }
            guiClose(0);
        }

    ASSERT_EQ(guiDialog(""), 0);
    for (const KindOfControl& kind : allKinds()) {
        if (!kind.mayBeAnonymous) continue;
        for (int i = 0; i < 2; ++i) {
            EXPECT_TRUE(isMade([&] { kind.make(-1); })) << kind.call;
            EXPECT_EQ(userDataOf(lastControl()), 0xFFFF0000U | static_cast<unsigned>(kind.kind));
        }
    }
    guiClose(0);
}

GUI_TEST(OtherControls, RefuseIdsWithTheirNames)
{
    for (const KindOfControl& kind : allKinds())
        EXPECT_MISUSE(kind.make(1), kind.call + ": no dialog is built at the moment");
    ASSERT_EQ(guiDialog(""), 0);
    for (const KindOfControl& kind : allKinds()) {
        for (const int id : {-2, 0, 32768})
            EXPECT_MISUSE(kind.make(id), kind.call + ": invalid control id " + std::to_string(id));
        if (!kind.mayBeAnonymous) {
            EXPECT_MISUSE(kind.make(-1), kind.call + ": invalid control id -1");
        }
    }
    EXPECT_EQ(controlsOfBoard().size(), 0U);
    guiCheck(1, 20, 0, 40, "the one");
    for (const KindOfControl& kind : allKinds())
        EXPECT_MISUSE(kind.make(1), kind.call + ": duplicate control id 1");
    EXPECT_EQ(controlsOfBoard().size(), 1U);
    guiClose(0);
}

GUI_TEST(OtherControls, ScalesOfNoSizeAreNotMade)
{
    // Of no size: nothing, and nothing is said. Both limits of the smallest ones.
    struct {
        int rows, width;
        bool isAbsolute, isSlider, isProgress;
    } const rows[] = {
        {1, 0, false, false, false}, {1, -1, false, false, false}, {1, 1, false, true, false},
        {1, 2, false, true, true},   {0, 40, false, true, true},   {-5, 40, false, true, true},
        {2, 0, false, false, false}, {2, 1, false, true, true},    {1, 40, false, true, true},
        {0, 40, true, false, false}, {-1, 40, true, false, false}, {1, 40, true, true, true},
        {1, 1, true, true, false},   {1, 2, true, true, true},     {2, 1, true, true, true},
        {40, 0, true, false, false}, {40, 1, true, true, true},    {0, 0, true, false, false},
    };
    const auto errors = errorsDuring([&] {
        for (const auto& row : rows) {
            SCOPED_TRACE(::testing::Message() << row.rows << " x " << row.width
                                              << (row.isAbsolute ? " absolute" : " in rows"));
            ASSERT_EQ(guiDialog(""), 0);
            guiUseAbsPos(row.isAbsolute);
            EXPECT_EQ(isMade([&] { guiSlider(1, 0, row.rows, 0, row.width); }), row.isSlider);
            EXPECT_EQ(isMade([&] { guiProgress(2, 0, row.rows, 0, row.width); }), row.isProgress);
            guiClose(0);
        }
    });
    EXPECT_THAT(errors, ::testing::IsEmpty());

    // The id of one that was not made is still free.
    runDialog(
        [] {
            guiSlider(1, 0, 1, 0, 0);
            guiProgress(1, 0, 1, 0, 1);
            guiSpin(1, 0, 0, 40);
        },
        [](Shown) { EXPECT_EQ(XtName(controlOf(1)), std::string{"v_dlgspinbox"}); });
}
