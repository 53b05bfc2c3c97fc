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
    writefolder("old", "A,1,,,,D,,Rome,King\nB,2,,,,D,,Rome,Poet\nC,3,,,,D,,Han,Poet\n",
                "V,1,,,,D,,War,Rome,Han,P,1,1,\nW,2,,,,D,,Art,Han,,P,1,1,\n");
    writefile("old/women.csv", "name\nA\nZ\n");
    writefile("old/rulers.csv", "occupation\nKing\nPope\n");
    writefolder("new", "A,1,,,,D,,Mars,King\n", "");
    Findings findings;
    EXPECT_EQ(summarytable({"old/", "new"}, findings), "|  | Old | New |\n"
                                                       "|---|---|---|\n"
                                                       "| People | 3 | 1 |\n"
                                                       "| People of: (no region) | 0 (0.0%) | 1 (100.0%) |\n"
                                                       "| People of: Asia | 1 (33.3%) | 0 (0.0%) |\n"
                                                       "| People of: Europe | 2 (66.7%) | 0 (0.0%) |\n"
                                                       "| Women | 1 (33.3%) | not given |\n"
                                                       "| Rulers | 1 (33.3%) | not given |\n"
                                                       "| Factions | 2, 1 used once | 1, 1 used once |\n"
                                                       "| Occupations | 2, 1 used once | 1, 1 used once |\n"
                                                       "| Events | 2 | 0 |\n"
                                                       "| Events of: Asia | 1 (50.0%) | 0 (0.0%) |\n"
                                                       "| Events of: Europe | 1 (50.0%) | 0 (0.0%) |\n"
                                                       "| Kind: Art | 1 (50.0%) | 0 (0.0%) |\n"
                                                       "| Kind: War | 1 (50.0%) | 0 (0.0%) |\n"
                                                       "| Kinds | 2, 2 used once | 0, 0 used once |\n"
                                                       "| Nations | 2, 1 used once | 0, 0 used once |\n");
    EXPECT_EQ(report(findings), "old/women.csv: warning: \"Z\" does not stand in people.csv\n"
                                "old/rulers.csv: warning: \"Pope\" does not stand in people.csv\n");
}

TEST_F(Summary, SaysWhatIsNotGiven)
{
    writefolder("new", "A,1,,,,D,,Mars,King\n", "");
    Findings findings;
    const std::string table = summarytable({"new"}, findings);
    EXPECT_NE(table.find("\n| People of | not given |\n| Women | not given |\n| Rulers | not given |\n"),
              std::string::npos)
        << table;
    EXPECT_EQ(report(findings), "");
}

TEST_F(Summary, TellsWrongSideFiles)
{
    writefolder("new", "A,x,,,,D,,Mars,King\n", "");
    writefile("regions.csv", "name\n");
    Findings findings;
    summarytable({"new"}, findings);
    EXPECT_EQ(report(findings), "new/people.csv:2: error: column 2 (date1): \"x\" is not a whole number\n"
                                "new/../regions.csv:1: error: the first row must be name,region\n");
}

} // namespace brindor::authoring
