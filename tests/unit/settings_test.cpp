#include "frame/settings.h"

#include <gmock/gmock.h>

#include <climits>
#include <clocale>

#include "host_services_double.h"

using kite::testing::profile;
using ::testing::ElementsAre;
namespace settings = kite::settings;

namespace {

constexpr char kHelvetica[] = "-adobe-helvetica-medium-r-normal--14-100-100-100-p-*-iso8859-1";
constexpr char kFixed[] = "-misc-fixed-medium-r-normal--14-110-100-100-c-*-iso8859-1";

class Settings : public ::testing::Test {
protected:
    Settings() { profile() = {}; }
};

}  // namespace

TEST_F(Settings, HaveTheirDefaults)
{
    EXPECT_EQ(settings::startupHook(), 0);
    EXPECT_EQ(settings::logMode(), 0);
    EXPECT_EQ(settings::logFileName(), "output.log");
    EXPECT_TRUE(settings::savesGeometry());
    EXPECT_EQ(settings::statusLineFont(), kHelvetica);
    EXPECT_EQ(settings::menuBarFont(), kHelvetica);
    EXPECT_EQ(settings::outputFont(), kFixed);
    EXPECT_EQ(settings::dropDownHeight(), 128);
    EXPECT_EQ(settings::toolbarStyle(), 0);
    EXPECT_EQ(settings::hoverDelay(), 2000);
    const auto saved = settings::savedGeometry();
    EXPECT_THAT((std::array{saved.x, saved.y, saved.width, saved.height}),
                ElementsAre(-1, -1, -1, -1));
}

TEST_F(Settings, AskWithTheirKeysDefaultsAndSizes)
{
    settings::startupHook();
    settings::logMode();
    settings::logFileName();
    settings::savedGeometry();
    settings::savesGeometry();
    settings::statusLineFont();
    settings::menuBarFont();
    settings::outputFont();
    settings::dropDownHeight();
    settings::toolbarStyle();
    settings::hoverDelay();
    EXPECT_THAT(profile().calls,
                ElementsAre("kite/spsec 0", "kite/logfm 0", "kite/logfn 1024", "kite/mwndx -1",
                            "kite/mwndy -1", "kite/mwndw -1", "kite/mwndh -1", "kite/mwndp 1",
                            "kite/fnamm 128", "kite/fnamn 128", "kite/fnamt 128",
                            "kite/ch_height 128", "kite/tbbstyle 0", "kite/mouse_hover 64"));
}

TEST_F(Settings, AreReadFromTheProfile)
{
    profile().integers = {
        {"spsec", 7}, {"logfm", 2}, {"mwndp", 0}, {"ch_height", 64}, {"tbbstyle", 1}};
    profile().strings = {{"logfn", "my.log"}, {"fnamm", "a"}, {"fnamn", "b"}, {"fnamt", "c"}};
    EXPECT_EQ(settings::startupHook(), 7);
    EXPECT_EQ(settings::logMode(), 2);
    EXPECT_FALSE(settings::savesGeometry());
    EXPECT_EQ(settings::dropDownHeight(), 64);
    EXPECT_EQ(settings::toolbarStyle(), 1);
    EXPECT_EQ(settings::logFileName(), "my.log");
    EXPECT_EQ(settings::statusLineFont(), "a");
    EXPECT_EQ(settings::menuBarFont(), "b");
    EXPECT_EQ(settings::outputFont(), "c");
}

TEST_F(Settings, GeometryIsWrittenUnderItsFourKeys)
{
    settings::saveGeometry({1, 2, 3, 4});
    EXPECT_THAT(profile().calls,
                ElementsAre("kite/mwndx 1", "kite/mwndy 2", "kite/mwndw 3", "kite/mwndh 4"));
}

TEST_F(Settings, EmptyStringsCountAsAbsent)
{
    profile().strings = {{"logfn", ""}, {"fnamm", ""}, {"mouse_hover", ""}};
    EXPECT_EQ(settings::logFileName(), "output.log");
    EXPECT_EQ(settings::statusLineFont(), kHelvetica);
    EXPECT_EQ(settings::hoverDelay(), 2000);
}

// A host may fill its buffer to the last byte and leave the terminating null out.
TEST_F(Settings, UnterminatedStringsAreCut)
{
    profile().strings = {{"fnamm", std::string(500, 'f')}, {"logfn", std::string(5000, 'l')}};
    EXPECT_EQ(settings::statusLineFont(), std::string(127, 'f'));
    EXPECT_EQ(settings::logFileName(), std::string(1023, 'l'));
}

TEST(HoverDelay, IsSecondsAsADecimalNumber)
{
    struct {
        const char* text;
        int milliseconds;
    } const rows[] = {
        {"0.5", 500},    {"2", 2000},         {"0", 0},       {"-1", -1},
        {"-0.0001", -1}, {"", 2000},          {"soon", 2000}, {"  1.25", 1250},
        {"1.5s", 1500},  {"+3", 3000},        {".25", 250},   {"1e1", 10000},
        {"nan", 2000},   {"-inf", -1},        {"0.0004", 0},  {"-", 2000},
        {"1,5", 1000},   {"99999", 99999000}, {"0x", 2000},
    };
    for (const auto& row : rows)
        EXPECT_EQ(settings::parseHoverDelay(row.text), row.milliseconds) << '"' << row.text << '"';
}

TEST(HoverDelay, OfAnyLengthStaysAnInteger)
{
    for (const char* text : {"inf", "1e38", "1e99", "9999999999"}) {
        EXPECT_GT(settings::parseHoverDelay(text), 100000000) << text;
        EXPECT_LE(settings::parseHoverDelay(text), INT_MAX) << text;
    }
}
