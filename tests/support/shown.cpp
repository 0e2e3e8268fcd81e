#include <gtest/gtest.h>

#include "shown.h"

#include <Xm/Text.h>
#include <Xm/TextF.h>

#include "artefacts.h"
#include "screen.h"
#include "widgets.h"
#include "window_manager.h"
#include "window_properties.h"

namespace kite::testing {

Widget Shown::shell() const
{
    return shellOf(widget_);
}

Widget Shown::child(const std::string& name) const
{
    Widget const found = findWidget(name, widget_);
    if (!found) ADD_FAILURE() << XtName(widget_) << " has no child " << name;
    return found;
}

std::string Shown::title() const
{
    return wm::nameOf(widget_);
}

std::string Shown::message() const
{
    return messageOf(widget_);
}

std::string Shown::label() const
{
    return kite::testing::labelOf(widget_);
}

std::string Shown::labelOf(const std::string& name) const
{
    Widget const widget = child(name);
    return widget ? kite::testing::labelOf(widget) : "";
}

std::string Shown::textOf(const std::string& name) const
{
    Widget const widget = child(name);
    return widget ? kite::testing::textOf(widget) : "";
}

std::vector<std::string> Shown::texts() const
{
    std::vector<std::string> texts;
    forEachWidget(widget_, [&](Widget widget) {
        if (XmIsText(widget) || XmIsTextField(widget))
            texts.push_back(kite::testing::textOf(widget));
    });
    return texts;
}

std::vector<std::string> Shown::labels() const
{
    std::vector<std::string> labels;
    forEachWidget(widget_, [&](Widget widget) {
        if (!isShown(widget)) return;
        if (std::string label = kite::testing::labelOf(widget); !label.empty())
            labels.push_back(std::move(label));
    });
    return labels;
}

void Shown::click(const std::string& labelOrName) const
{
    Widget button = findByLabel(labelOrName, widget_);
    if (!button) button = child(labelOrName);
    if (button) Robot::instance().click(button);
}

void Shown::key(KeySym symbol, unsigned modifiers) const
{
    EXPECT_TRUE(wm::waitForFocus(widget_)) << XtName(widget_) << " has no focus";
    Robot::instance().keyHandled(symbol, modifiers);
}

void Shown::type(std::string_view utf8) const
{
    EXPECT_TRUE(wm::waitForFocus(widget_)) << XtName(widget_) << " has no focus";
    Robot::instance().typeHandled(utf8);
}

void Shown::closeByWindowManager() const
{
    wm::close(widget_);
}

void Shown::savePicture(const std::string& name) const
{
    screen::waitUntilPainted(widget_);
    screen::grab(widget_).savePng(artefacts::pathOf('.' + name + ".png"));
}

}  // namespace kite::testing
