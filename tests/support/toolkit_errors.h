// toolkit_errors.h: X errors and toolkit warnings are test failures, unless a scope expects them:
//
//     {
//         ExpectedXError expected{BadWindow};
//         XMapWindow(display, 1);
//         XSync(display, False);
//     }                                        // fails here when none came
//     ExpectedWarning expected{"Illegal value"};  // a part of the warning's text

#pragma once

#include <X11/Intrinsic.h>

#include <string>

namespace kite::testing {

// From now on, in the whole process.
void watchXErrors();
void watchToolkitErrors();

// Once more for a context whose warning handler was replaced, as guiSetAppInfo does.
void watchToolkitErrors(XtAppContext context);

class ExpectedXError {
public:
    explicit ExpectedXError(int code);
    ~ExpectedXError();
    ExpectedXError(const ExpectedXError&) = delete;
    ExpectedXError& operator=(const ExpectedXError&) = delete;

    int count() const { return count_; }
    bool takes(int code);

private:
    int code_;
    int count_ = 0;
    ExpectedXError* outer_;
};

class ExpectedWarning {
public:
    explicit ExpectedWarning(std::string part);
    ~ExpectedWarning();
    ExpectedWarning(const ExpectedWarning&) = delete;
    ExpectedWarning& operator=(const ExpectedWarning&) = delete;

    int count() const { return count_; }
    bool takes(const std::string& text);

private:
    std::string part_;
    int count_ = 0;
    ExpectedWarning* outer_;
};

}  // namespace kite::testing
