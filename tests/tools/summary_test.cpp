#include "authoring/summary.h"
#include "support/programtest.h"
#include "tools/sample.h"

#include <gtest/gtest.h>

namespace brindor::authoring {

using tests::report;
using tests::writefile;
using tests::writefolder;

class Summary : public tests::ProgramTest {};

TEST_F(Summary, ShowsTheBalanceOfEachFolder)
{
    writefile("regions.csv", "name,region\nRome,Europe\nGaul,Europe\nHan,Asia\n");
    writefile("rulers.csv", "occupation\nKing\nPope\n");
    writefolder("old", "", "V,1,,,,D,,War,Rome,Han,P,1,1,\nW,2,,,,D,,Art,Han,,P,1,1,\n");
    writefile("old/people.csv", "name,date1,desc1,faction,occupation,Woman,fame,source\nA,1,D,Rome,King,yes,1,memory\n"
                                "B,2,D,Rome,Poet,,4,table; memory\nC,3,D,Han,Poet,No,3,\n");
    writefolder("new", "A,1,,,,D,,Mars,King\n", "");
    Findings findings;
    EXPECT_EQ(summarytable({"old/", "new"}, findings), "|  | Old | New |\n"
                                                       "|---|---|---|\n"
                                                       "| People | 3 | 1 |\n"
                                                       "| People of: (no region) | 0 (0.0%) | 1 (100.0%) |\n"
                                                       "| People of: Asia | 1 (33.3%) | 0 (0.0%) |\n"
                                                       "| People of: Europe | 2 (66.7%) | 0 (0.0%) |\n"
                                                       "| Women | 1 (33.3%) | not given |\n"
                                                       "| Rulers | 1 (33.3%) | 1 (100.0%) |\n"
                                                       "| Factions | 2, 1 used once | 1, 1 used once |\n"
                                                       "| Occupations | 2, 1 used once | 1, 1 used once |\n"
                                                       "| Events | 2 | 0 |\n"
                                                       "| Events of: Asia | 1 (50.0%) | 0 (0.0%) |\n"
                                                       "| Events of: Europe | 1 (50.0%) | 0 (0.0%) |\n"
                                                       "| Kind: Art | 1 (50.0%) | 0 (0.0%) |\n"
                                                       "| Kind: War | 1 (50.0%) | 0 (0.0%) |\n"
                                                       "| Kinds | 2, 2 used once | 0, 0 used once |\n"
                                                       "| Nations | 2, 1 used once | 0, 0 used once |\n"
                                                       "| Sources: looked up | 1 (20.0%) | not given |\n"
                                                       "| Sources: from memory | 1 (20.0%) | not given |\n"
                                                       "| Sources: not given | 3 (60.0%) | not given |\n"
                                                       "| Fame: 1 | 1 (20.0%) | not given |\n"
                                                       "| Fame: 2 | 0 (0.0%) | not given |\n"
                                                       "| Fame: 3 | 1 (20.0%) | not given |\n"
                                                       "| Fame: 4 | 1 (20.0%) | not given |\n"
                                                       "| Fame: 5 | 0 (0.0%) | not given |\n"
                                                       "| Fame: not given | 2 (40.0%) | not given |\n"
                                                       "| Fame: 1 to 3 | 2 (40.0%) | not given |\n");
    EXPECT_EQ(report(findings), "");
}

TEST_F(Summary, TellsWhatIsWrong)
{
    std::filesystem::create_directory("new");
    writefile("new/people.csv", "name,date1,desc1,faction,occupation,woman,fame\nA,1,D,Mars,King,maybe,6\n");
    writefile("regions.csv", "name\n");
    Findings findings;
    EXPECT_NE(summarytable({"new"}, findings)
                  .find("\n| People of | not given |\n| Women | 0 (0.0%) |\n| Rulers | not given |"),
              std::string::npos);
    EXPECT_EQ(report(findings), "regions.csv:1: error: the column region is missing; found: name\n"
                                "new/people.csv:2: error: column 7 (fame): \"6\" is no fame; write 1 (everyone has "
                                "heard of it) to 5 (specialists)\n"
                                "new/people.csv:2: error: column 6 (woman): \"maybe\" is neither yes nor no\n"
                                "new/events.csv: error: cannot be read: No such file or directory\n");
}

} // namespace brindor::authoring
