// What a file box makes of a name, without a box.

#include <gtest/gtest.h>

#include <string>

#include "boxes/file_choice.h"

using namespace kite;

TEST(FileChoice, ExtensionGoesToNamesWithoutOne)
{
    EXPECT_EQ(withExtension("d.1/a", "txt"), "d.1/a.txt");
    EXPECT_EQ(withExtension("a.b", "txt"), "a.b");
    EXPECT_EQ(withExtension("a", ""), "a");
    EXPECT_EQ(withExtension(std::string(1019, 'a'), "txt").size(), 1023U);
    EXPECT_EQ(withExtension(std::string(1020, 'a'), "txt").size(), 1020U);
}

TEST(FileChoice, FindsFilesAndDirectories)
{
    EXPECT_EQ(findFile("/"), FileFound::Directory);
    EXPECT_EQ(findFile("/dev/null"), FileFound::File);
    EXPECT_EQ(findFile("/dev/null/x"), FileFound::Missing);
    EXPECT_EQ(findFile(""), FileFound::Missing);
}
