#include "frame/settings.h"

#include <clocale>
#include <cmath>
#include <cstdio>
#include <string_view>
#include <vector>

#include "frame/app_info.h"
#include "frame/host_services.h"

namespace kite::settings {

namespace {

struct IntKey {
    const char* name;
    int byDefault;
};

struct StringKey {
    const char* name;
    int size;  // bytes that the host may write, with the terminating null
    const char* byDefault;
    const char* before = "";  // what the buffer holds when the host gets it
};

constexpr char kHelvetica[] = "-adobe-helvetica-medium-r-normal--14-100-100-100-p-*-iso8859-1";
constexpr char kFixed[] = "-misc-fixed-medium-r-normal--14-110-100-100-c-*-iso8859-1";

// Every key that the profile may hold.
constexpr IntKey kStartupHook{"spsec", 0};
constexpr IntKey kLogMode{"logfm", 0};
constexpr StringKey kLogFileName{"logfn", 1024, "output.log", "output.log"};
constexpr IntKey kFrameX{"mwndx", -1};
constexpr IntKey kFrameY{"mwndy", -1};
constexpr IntKey kFrameWidth{"mwndw", -1};
constexpr IntKey kFrameHeight{"mwndh", -1};
constexpr IntKey kSavesGeometry{"mwndp", 1};
constexpr StringKey kStatusLineFont{"fnamm", 128, kHelvetica};
constexpr StringKey kMenuBarFont{"fnamn", 128, kHelvetica};
constexpr StringKey kOutputFont{"fnamt", 128, kFixed};
constexpr IntKey kDropDownHeight{"ch_height", 128};
constexpr IntKey kToolbarStyle{"tbbstyle", 0};
constexpr IntKey kFollowsFiles{"cddir", 0};
constexpr IntKey kPrintsAcross{"landscape", 0};
constexpr char kPrintCommand[] = "lpcmd";
constexpr int kPrintCommandSize = 1024;
constexpr StringKey kHoverDelay{"mouse_hover", 64, ""};

constexpr int kDefaultHoverDelay = 2000;  // milliseconds

int read(const IntKey& key)
{
    return kxGetUPInt(appName(), key.name, key.byDefault);
}

void write(const IntKey& key, int value)
{
    kxSetUPInt(appName(), key.name, value);
}

// The host leaves alone what was there before, when it has no such key.
std::string read(const char* key, int size, std::string_view before)
{
    std::vector<char> buffer(static_cast<std::size_t>(size), '\0');
    before.copy(buffer.data(), buffer.size() - 1);
    kxGetUPStr(appName(), key, buffer.data(), size);
    buffer.back() = '\0';
    return buffer.data();
}

// An empty value counts as absent.
std::string read(const StringKey& key)
{
    const std::string value = read(key.name, key.size, key.before);
    return value.empty() ? key.byDefault : value;
}

}  // namespace

int startupHook()
{
    return read(kStartupHook);
}

int logMode()
{
    return read(kLogMode);
}

bool savesGeometry()
{
    return read(kSavesGeometry) != 0;
}

int dropDownHeight()
{
    return read(kDropDownHeight);
}

int toolbarStyle()
{
    return read(kToolbarStyle);
}

bool followsFiles()
{
    return read(kFollowsFiles) == 1;
}

bool printsAcross()
{
    return read(kPrintsAcross) == 1;
}

Geometry savedGeometry()
{
    return {read(kFrameX), read(kFrameY), read(kFrameWidth), read(kFrameHeight)};
}

void saveGeometry(const Geometry& geometry)
{
    write(kFrameX, geometry.x);
    write(kFrameY, geometry.y);
    write(kFrameWidth, geometry.width);
    write(kFrameHeight, geometry.height);
}

std::string logFileName()
{
    return read(kLogFileName);
}

std::string statusLineFont()
{
    return read(kStatusLineFont);
}

std::string menuBarFont()
{
    return read(kMenuBarFont);
}

std::string outputFont()
{
    return read(kOutputFont);
}

std::string printCommand(const std::string& byDefault)
{
    return read(kPrintCommand, kPrintCommandSize, byDefault);
}

int hoverDelay()
{
    return parseHoverDelay(read(kHoverDelay).c_str());
}

int parseHoverDelay(const char* text)
{
    // The decimal point is a point, whatever locale the host has chosen.
    static const locale_t plain = newlocale(LC_NUMERIC_MASK, "C", nullptr);
    const locale_t chosen = uselocale(plain);
    float seconds = 0.0F;
    const bool isNumber = std::sscanf(text, "%f", &seconds) == 1 && !std::isnan(seconds);
    uselocale(chosen);
    if (!isNumber) return kDefaultHoverDelay;
    const float milliseconds = seconds * 1000.0F;
    if (milliseconds < 0.0F) return -1;
    constexpr auto kLongest = 1.0e9F;
    return static_cast<int>(std::fmin(milliseconds, kLongest));
}

}  // namespace kite::settings
