#include "authoring/commandline.h"
#include "tools/sample.h"

namespace brindor::authoring {

using CommandLine = tests::ProgramTest;

TEST_F(CommandLine, ASlipIsAnsweredWithTheRightLine)
{
    tests::fs::create_directory("my old voyages");
    tests::fs::create_directory("game");
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{"check", "voyages"}, ""},
        {{"--help"}, ""},
        {{"chek", "voyages"}, "\"chek\" is no command; did you mean: timelinemaker check voyages"},
        {{"Make", "a b", "X.bd3"}, "\"Make\" is no command; did you mean: timelinemaker make \"a b\" X.bd3"},
        {{"publish", "v"},
         "\"publish\" is no command; the commands are new, check, play, make, pack, add, export, fairness"},
        {{"check", "voyages/people.csv"}, "name the folder, which holds both files: timelinemaker check voyages"},
        {{"play", "Events.CSV"}, "name the folder, which holds both files: timelinemaker play ."},
        {{"make", "v2", "v2/people.csv"}, ""}, // which make itself refuses
        {{"check", "my", "old", "voyages"}, "a name with blanks needs quotes: timelinemaker check \"my old voyages\""},
        {{"make", "my", "old", "voyages", "X.bd3"},
         "a name with blanks needs quotes: timelinemaker make \"my old voyages\" X.bd3"},
        {{"make", "v", "Modern"}, "the name of a timeline ends in .bd3: timelinemaker make v Modern.bd3"},
        {{"make", "v", "game"}, "the name of a timeline ends in .bd3: timelinemaker make v game/Modern.bd3"},
    };
    for (const auto& [words, advice] : cases) {
        EXPECT_EQ(commandadvice(words), advice);
    }
}

} // namespace brindor::authoring
