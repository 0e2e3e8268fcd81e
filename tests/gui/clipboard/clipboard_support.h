// clipboard_support.h: what other programs see on the clipboard, and what they put there.

#pragma once

#include <Xm/Text.h>

#include <memory>
#include <string>
#include <vector>

#include "gui_test.h"

namespace kite::testing {

// As xclip and xsel print it; empty when there is nothing.
std::string pastedByXclip();
std::string pastedByXsel();

// As a line of the library; the result in brackets when it is none.
std::string clipLine(int number);

// The test's own client (see clipboard_client.cpp), once it is ready.
class Client {
public:
    explicit Client(const std::vector<std::string>& arguments);

    Process* operator->() { return &process_; }

private:
    Process process_;
};

// A client that has the clipboard, once it has: xclip or xsel with that text.
class Owner {
public:
    Owner(const std::vector<std::string>& command, const std::string& text);

private:
    Window before_;
    Process process_;
};

Window clipboardOwner();

// For another client.
bool isClipboardFree();

// Time in which the toolkit waits for another client.
void setSelectionPatience(milliseconds time);

// The whole text widget, with the library's or the toolkit's calls.
void select(Widget text, XmTextPosition left, XmTextPosition right);

}  // namespace kite::testing
