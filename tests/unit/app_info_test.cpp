#include "frame/app_info.h"

#include <gtest/gtest.h>
#include <kitegui.h>

#include <string>

#include "frame/settings.h"
#include "host_services_double.h"

// The texts belong to the process: each test puts the defaults back.
class AppInfo : public ::testing::Test {
protected:
    ~AppInfo() override { guiSetAppInfo("Kite", "kite"); }
};

TEST_F(AppInfo, KeepsItsTextsForNullAndEmpty)
{
    guiSetAppInfo(nullptr, nullptr);
    EXPECT_STREQ(kite::appTitle(), "Kite");
    EXPECT_STREQ(kite::appName(), "kite");
    guiSetAppInfo("", "");
    EXPECT_STREQ(kite::appTitle(), "Kite");
    EXPECT_STREQ(kite::appName(), "kite");
}

TEST_F(AppInfo, SetsEachTextAlone)
{
    guiSetAppInfo("Title", nullptr);
    EXPECT_STREQ(kite::appTitle(), "Title");
    EXPECT_STREQ(kite::appName(), "kite");
    guiSetAppInfo("", "name");
    EXPECT_STREQ(kite::appTitle(), "Title");
    EXPECT_STREQ(kite::appName(), "name");
}

TEST_F(AppInfo, ReplacesALongerTextWhole)
{
    guiSetAppInfo("A longer title", "longer-name");
    guiSetAppInfo("T", "n");
    EXPECT_STREQ(kite::appTitle(), "T");
    EXPECT_STREQ(kite::appName(), "n");
}

TEST_F(AppInfo, KeepsSixtyThreeCharacters)
{
    const std::string long100(100, 'x');
    for (const std::size_t length :
         {std::size_t{62}, std::size_t{63}, std::size_t{64}, std::size_t{100}}) {
        const std::string text = long100.substr(0, length);
        guiSetAppInfo(text.c_str(), text.c_str());
        EXPECT_EQ(kite::appTitle(), text.substr(0, 63));
        EXPECT_EQ(kite::appName(), text.substr(0, 63));
    }
}

TEST_F(AppInfo, NameIsTheSectionOfEverySetting)
{
    guiSetAppInfo(nullptr, "mine");
    kite::testing::profile() = {};
    kite::settings::logMode();
    kite::settings::logFileName();
    ASSERT_EQ(kite::testing::profile().calls.size(), 2U);
    for (const std::string& call : kite::testing::profile().calls)
        EXPECT_TRUE(call.starts_with("mine/")) << call;
}
