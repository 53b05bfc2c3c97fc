#include "base/files.h"
#include "support/scratchfolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/resource.h>
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

TEST_F(Files, AppendEmptyAndReplace)
{
    ASSERT_TRUE(appendtofile("a", "one\r\n"));
    ASSERT_TRUE(appendtofile("a", "two\r\n"));
    EXPECT_EQ(tests::contentof("a"), "one\r\ntwo\r\n");
    ASSERT_TRUE(emptyfile("a"));
    EXPECT_EQ(tests::contentof("a"), "");
    ASSERT_TRUE(replacefile("a", "three"));
    EXPECT_EQ(tests::contentof("a"), "three");
}

// Whatever call fails, the old file stands whole and nothing is left beside it.
TEST_F(Files, AFailedReplaceLeavesTheOldFile)
{
    tests::writefile("a", "old");
    bool succeeded = false;
    std::int64_t failures = 0;
    for (std::int64_t n = 1; !succeeded; ++n) {
        ASSERT_LT(n, 20);
        faultplan = {n, false, 0};
        const Result<Done> result = replacefile("a", "new");
        faultplan = {};
        succeeded = static_cast<bool>(result);
        EXPECT_EQ(tests::contentof("a"), succeeded ? "new" : "old");
        EXPECT_EQ(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 1);
        EXPECT_EQ(result.reason, succeeded ? "" : "Input/output error");
        failures += succeeded ? 0 : 1;
    }
    EXPECT_EQ(failures, 5); // open, write, flush, close, rename
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
