#include <gtest/gtest.h>

#include "toolkit_errors.h"

#include <cstdlib>
#include <iostream>
#include <utility>

#include "connection.h"

namespace kite::testing {

namespace {

// The innermost scopes that expect something; set and cleared by their objects.
ExpectedXError* expectedXError = nullptr;
ExpectedWarning* expectedWarning = nullptr;

std::string errorText(Display* display, const XErrorEvent& error)
{
    char meaning[256] = "";
    char request[256] = "";
    XGetErrorText(display, error.error_code, meaning, sizeof meaning);
    const std::string number = std::to_string(error.request_code);
    XGetErrorDatabaseText(display, "XRequest", number.c_str(), number.c_str(), request,
                          sizeof request);
    return std::string{meaning} + ", request " + request + " (minor " +
           std::to_string(error.minor_code) + "), resource " + std::to_string(error.resourceid);
}

int xError(Display* display, XErrorEvent* error)
{
    if (isConnection(display)) return 0;
    if (expectedXError && expectedXError->takes(error->error_code)) return 0;
    ADD_FAILURE() << "X error: " << errorText(display, *error);
    return 0;
}

void warning(String text)
{
    if (expectedWarning && expectedWarning->takes(text)) return;
    ADD_FAILURE() << "Toolkit warning: " << text;
}

// The toolkit does not expect that this returns.
[[noreturn]] void fatalError(String text)
{
    ADD_FAILURE() << "Fatal toolkit error: " << text;
    std::cout.flush();
    std::abort();
}

}  // namespace

void watchXErrors()
{
    XSetErrorHandler(xError);
}

void watchToolkitErrors()
{
    // The handlers of the process, which every application context begins with.
    XtSetWarningHandler(warning);
    XtSetErrorHandler(fatalError);
}

void watchToolkitErrors(XtAppContext context)
{
    XtAppSetWarningHandler(context, warning);
    XtAppSetErrorHandler(context, fatalError);
}

ExpectedXError::ExpectedXError(int code) : code_(code), outer_(std::exchange(expectedXError, this))
{
}

ExpectedXError::~ExpectedXError()
{
    expectedXError = outer_;
    if (count_ == 0) ADD_FAILURE() << "The X error " << code_ << " did not come.";
}

bool ExpectedXError::takes(int code)
{
    if (code == code_) return ++count_, true;
    return outer_ && outer_->takes(code);
}

ExpectedWarning::ExpectedWarning(std::string part)
    : part_(std::move(part)), outer_(std::exchange(expectedWarning, this))
{
}

ExpectedWarning::~ExpectedWarning()
{
    expectedWarning = outer_;
    if (count_ == 0) ADD_FAILURE() << "The toolkit warning \"" << part_ << "\" did not come.";
}

bool ExpectedWarning::takes(const std::string& text)
{
    if (text.find(part_) != std::string::npos) return ++count_, true;
    return outer_ && outer_->takes(text);
}

}  // namespace kite::testing
