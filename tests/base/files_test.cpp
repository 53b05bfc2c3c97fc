#include "base/files.h"
#include "support/scratchfolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace brindor {

namespace fs = std::filesystem;

class Files : public testing::Test {
protected:
    ~Files() override { faultplan = {}; }

    tests::ScratchFolder folder;
};

TEST_F(Files, OnlyRegularFilesAreOpened)
{
    fs::create_directory("folder");
    ASSERT_EQ(::mkfifo("pipe", 0600), 0);
    fs::create_symlink("/dev/zero", "device");
    for (const char* name : {"folder", "pipe", "device"}) {
        EXPECT_EQ(readwhole(name, 100).reason, "Not a regular file") << name;
        EXPECT_EQ(appendtofile(name, "x").reason, "Not a regular file") << name;
        EXPECT_EQ(emptyfile(name).reason, "Not a regular file") << name;
        EXPECT_EQ(replacefile(name, "x").reason, "Not a regular file") << name;
        EXPECT_FALSE(isregularfile(name)) << name;
    }
    EXPECT_EQ(readwhole("missing", 100).reason, "No such file or directory");
}

TEST_F(Files, ReadingStopsAtTheLimit)
{
    tests::writefile("a", std::string(100, 'x'));
    EXPECT_EQ(*readwhole("a", 100).value, std::string(100, 'x'));
    EXPECT_EQ(readwhole("a", 99).reason, "File too large");
}

} // namespace brindor
