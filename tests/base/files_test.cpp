#include "base/files.h"
#include "support/scratchfolder.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace brindor {

namespace fs = std::filesystem;

class Files : public testing::Test {
protected:
    ~Files() override { faultplan = {}; }

    tests::ScratchFolder folder;
};

TEST_F(Files, OnlyRegularFilesAreOpenedAndReadUpToALimit)
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
    tests::writefile("a", std::string(100, 'x'));
    EXPECT_EQ(*readwhole("a", 100).value, std::string(100, 'x'));
    EXPECT_EQ(readwhole("a", 99).reason, "File too large");
}

// Whatever call fails, and only that: the old file stands whole and nothing is left beside it.
TEST_F(Files, AFailedReplaceLeavesTheOldFile)
{
    tests::writefile("a", "old");
    for (std::int64_t n = 1; n <= 6; ++n) { // open, write, flush, close, rename, and none
        faultplan = {n, false, 0};
        EXPECT_EQ(replacefile("a", "new").reason, n == 6 ? "" : "Input/output error") << n;
        faultplan = {};
        EXPECT_EQ(tests::contentof("a"), n == 6 ? "new" : "old") << n;
        EXPECT_EQ(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 1) << n;
    }
}

// The system sends a signal with the refused write, which would end the program.
TEST_F(Files, ALimitOnTheSizeOfFilesIsAFailureLikeOthers)
{
    tests::writefile("a", "old");
    tests::writefile("a.new", std::string(100, 'x')); // as a kill leaves it
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit low{50, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &low), 0);
    const Result<Done> large = replacefile("a", std::string(60, 'y'));
    const std::string then = tests::contentof("a");
    const Result<Done> small = replacefile("a", "new");
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(large.reason, "File too large");
    EXPECT_EQ(then, "old");
    EXPECT_TRUE(small);
    EXPECT_EQ(tests::contentof("a"), "new");
    EXPECT_FALSE(fs::exists("a.new"));
}

} // namespace brindor
