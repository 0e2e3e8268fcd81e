// file_source_test.cpp: bytes from disk.

#include <gmock/gmock.h>

#include "images/file_source.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>

#include "temporary_directory.h"

using kite::images::ByteSource;
using kite::images::FileSource;

namespace {

class FileSourceTest : public ::testing::Test {
protected:
    std::string pathOf(const std::string& name) const { return directory_.path() / name; }

    std::string write(const std::string& name, const std::string& contents) const
    {
        std::ofstream{pathOf(name), std::ios::binary} << contents;
        return pathOf(name);
    }

private:
    kite::testing::TemporaryDirectory directory_{"file-source"};
};

int openFiles()
{
    int count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator{"/proc/self/fd"})
        ++count;
    return count;
}

}  // namespace

TEST_F(FileSourceTest, GivesTheBytesAndThenTheEnd)
{
    FileSource source{write("three", "a\xFF"
                                     "c")};
    ASSERT_TRUE(source.isOpen());
    EXPECT_EQ(source.size(), 3U);
    EXPECT_EQ(source.next(), 'a');
    EXPECT_EQ(source.next(), 0xFF);
    EXPECT_EQ(source.next(), 'c');
    EXPECT_FALSE(source.hasEnded());  // not before a read goes past the last byte
    EXPECT_EQ(source.next(), ByteSource::kEnd);
    EXPECT_TRUE(source.hasEnded());
    EXPECT_EQ(source.next(), ByteSource::kEnd);
}

TEST_F(FileSourceTest, ReadsAllOrFails)
{
    std::string contents;
    for (int i = 0; i < 200'000; ++i) contents += static_cast<char>(i * 31 >> 3);
    FileSource source{write("long", contents)};
    std::vector<std::uint8_t> all(contents.size());
    ASSERT_TRUE(source.read(all));
    EXPECT_EQ(std::string(all.begin(), all.end()), contents);
    EXPECT_FALSE(source.hasEnded());
    std::array<std::uint8_t, 1> more{};
    EXPECT_FALSE(source.read(more));
    EXPECT_TRUE(source.hasEnded());
}

TEST_F(FileSourceTest, SeeksAlsoBehindTheEnd)
{
    FileSource source{write("digits", "0123456789")};
    EXPECT_EQ(source.next(), '0');
    ASSERT_TRUE(source.seek(7));
    EXPECT_EQ(source.next(), '7');
    ASSERT_TRUE(source.seek(2));
    EXPECT_EQ(source.next(), '2');
    ASSERT_TRUE(source.seek(0xFFFFFFFF));
    EXPECT_EQ(source.next(), ByteSource::kEnd);
}

TEST_F(FileSourceTest, OpensFilesOnly)
{
    EXPECT_FALSE(FileSource{pathOf("missing")}.isOpen());
    EXPECT_FALSE(FileSource{pathOf("")}.isOpen());  // the directory
    ASSERT_EQ(mkfifo(pathOf("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(FileSource{pathOf("pipe")}.isOpen());  // and does not wait for a writer
    EXPECT_FALSE(FileSource{"/dev/zero"}.isOpen());
    EXPECT_TRUE(FileSource{write("empty", "")}.isOpen());
    ASSERT_EQ(symlink("empty", pathOf("link").c_str()), 0);
    EXPECT_TRUE(FileSource{pathOf("link")}.isOpen());
}

TEST_F(FileSourceTest, LeavesNoFileOpen)
{
    const std::string path = write("file", "contents");
    const int before = openFiles();
    for (int i = 0; i < 3; ++i) {
        FileSource source{path};
        EXPECT_EQ(source.next(), 'c');
        const FileSource directory{pathOf("")};
    }
    EXPECT_EQ(openFiles(), before);
}
