#include "boxes/print_command.h"

#include <gmock/gmock.h>

#include "host_services_double.h"

using kite::printCommandFor;
using kite::testing::profile;

namespace {

class PrintCommandLine : public ::testing::Test {
protected:
    PrintCommandLine() { profile() = {}; }

    // "none" when there is none.
    static std::string lineFor(const std::string& file, bool wrapsLines = false)
    {
        return printCommandFor(file, wrapsLines).value_or("none");
    }
};

}  // namespace

TEST_F(PrintCommandLine, HasTheOptionsOfTheDefault)
{
    struct {
        int landscape;
        bool wraps;
        const char* line;
    } const rows[] = {{0, false, "lp -c f"},
                      {0, true, "lp -c -oeolwrap f"},
                      {1, false, "lp -c -olandscape f"},
                      {1, true, "lp -c -olandscape -oeolwrap f"},
                      {2, true, "lp -c -oeolwrap f"},
                      {-1, false, "lp -c f"}};
    for (const auto& row : rows) {
        profile().integers["landscape"] = row.landscape;
        EXPECT_EQ(lineFor("f", row.wraps), row.line);
    }
}

TEST_F(PrintCommandLine, IsTheUsersWithTheFileInItsPlace)
{
    struct {
        const char* command;
        const char* file;
        const char* line;
    } const rows[] = {{"a2ps", "f", "a2ps f"},
                      {"a2ps %file", "f", "a2ps f"},
                      {"%file", "f", "f"},
                      {"a %file b %file", "f", "a f b %file"},
                      {"a %file%file", "%file", "a %file%file"},
                      {"a %fil", "f", "a %fil f"},
                      {"a %FILE", "f", "a %FILE f"},
                      {"a %%file", "f", "a %f"},
                      {"a %filename", "f", "a fname"},
                      {"a 100% %s", "f %d", "a 100% %s f %d"},
                      {" ", "f", "  f"},
                      {"", "f", "none"}};
    profile().integers["landscape"] = 1;
    for (const auto& row : rows) {
        profile().strings["lpcmd"] = row.command;
        EXPECT_EQ(lineFor(row.file, true), row.line) << row.command;
    }
}

TEST_F(PrintCommandLine, IsAtMost2047BytesLong)
{
    EXPECT_EQ(lineFor(std::string(2041, 'f')), "lp -c " + std::string(2041, 'f'));
    EXPECT_EQ(lineFor(std::string(2042, 'f')), "none");
    EXPECT_EQ(lineFor(std::string(5000, 'f')), "none");
    profile().strings["lpcmd"] = "a %file b";
    EXPECT_EQ(lineFor(std::string(2043, 'f')), "a " + std::string(2043, 'f') + " b");
    EXPECT_EQ(lineFor(std::string(2044, 'f')), "none");

    // Of the command, 1023 bytes are known.
    profile().strings["lpcmd"] = std::string(2000, 'x');
    EXPECT_EQ(lineFor("f"), std::string(1023, 'x') + " f");
}
