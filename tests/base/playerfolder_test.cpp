#include "base/playerfolder.h"

#include "base/files.h"
#include "base/picturename.h"
#include "support/scratchfolder.h"

#include <gtest/gtest.h>
#include <set>

namespace brindor {

namespace fs = std::filesystem;
using tests::contentof;

class PlayerFolder : public testing::Test {
protected:
    PlayerFolder()
    {
        fs::create_directories("game/ancient/maps");
        for (const char* name : {"game/Ancient.bd3", "game/Modern.bd3", "game/ancient/maps/ur.png", "game/installed"}) {
            tests::writefile(name, "shipped");
        }
        tests::writefile("game/brindor", "program");
        fs::permissions("game/brindor", fs::perms::owner_all);
    }
    ~PlayerFolder() override { sharedfolder.clear(); }

    static std::set<std::string> names() // below the player's folder
    {
        std::set<std::string> found;
        for (const auto& entry : fs::recursive_directory_iterator("own")) {
            found.insert(entry.path().lexically_relative("own").string());
        }
        return found;
    }

    tests::ScratchFolder folder;
};

TEST_F(PlayerFolder, IsTheProgramsOwnUnlessTheGameIsInstalledAndFaultsAreTold)
{
    EXPECT_EQ(playerfolder("game", "/data", "/home/ada"), "/data/brindor");
    EXPECT_EQ(playerfolder("game", "data", "/home/ada"), "/home/ada/.local/share/brindor");
    EXPECT_EQ(playerfolder("game", "", "/home/ada"), "/home/ada/.local/share/brindor");
    EXPECT_EQ(playerfolder("game", "", ""), "");
    fs::remove("game/installed");
    EXPECT_EQ(playerfolder("game", "/data", "/home/ada"), "game");
    tests::writefile("own", "");
    EXPECT_EQ(prepareplayerfolder("game", "own").reason, "Not a directory");
    EXPECT_EQ(prepareplayerfolder("missing", "new").reason, "No such file or directory");
    EXPECT_EQ(prepareplayerfolder("game", "game").reason, "");
    EXPECT_FALSE(fs::is_symlink("game/Ancient.bd3"));
}

TEST_F(PlayerFolder, LinksTheGamesFilesAndKeepsThePlayersOwn)
{
    fs::create_directory("own");
    tests::writefile("own/Modern.bd3", "mine");
    fs::create_symlink("elsewhere", "own/lost");
    ASSERT_EQ(prepareplayerfolder("game", "own").reason, "");
    std::set<std::string> wanted = {"Ancient.bd3",  "Modern.bd3",          "ancient",
                                    "ancient/maps", "ancient/maps/ur.png", "lost"};
    EXPECT_EQ(names(), wanted);
    EXPECT_EQ(contentof("own/Ancient.bd3"), "shipped");
    EXPECT_EQ(contentof("own/Modern.bd3"), "mine");

    // What is written in a link's place is the player's own, and the game keeps its file.
    ASSERT_TRUE(replacefile("own/ancient/maps/ur.png", "my own map"));
    EXPECT_EQ(contentof("game/ancient/maps/ur.png"), "shipped");

    // After an upgrade new files are there and those that the game has no longer are gone.
    fs::remove("game/Ancient.bd3");
    tests::writefile("game/Future.bd3", "new");
    ASSERT_EQ(prepareplayerfolder("game", "own").reason, "");
    wanted.erase("Ancient.bd3");
    wanted.insert("Future.bd3");
    EXPECT_EQ(names(), wanted);
    EXPECT_EQ(contentof("own/ancient/maps/ur.png"), "my own map");
}

TEST_F(PlayerFolder, PicturesMayLieInTheInstalledGameAndNowhereElse)
{
    tests::writefile("other.png", "");
    tests::writefile("game/b.png", "");
    fs::create_directory("own");
    fs::create_symlink(fs::absolute("other.png"), "own/a.png");
    EXPECT_FALSE(picturefile("own", "b.png"));
    ASSERT_TRUE(prepareplayerfolder("game", "own"));
    EXPECT_TRUE(picturefile("own", "b.png"));
    EXPECT_TRUE(picturefile("own", "ancient/maps/ur.png"));
    EXPECT_EQ(picturefile("own", "a.png").reason, "a link leads out of the folder");
}

} // namespace brindor
