#include "authoring/summary.h"
#include "tools/sample.h"

namespace brindor::authoring {

using namespace tests;
using Check = ProgramTest;

namespace {

// The findings about the good files with rows added.
std::string withrows(const std::string& peoplerows, const std::string& eventrows)
{
    writegood(peoplerows, eventrows);
    return report(checkfolder("in"));
}

} // namespace

// The samples' rows say what is wrong with them. What is an error make refuses too.
TEST_F(Check, TellsTheFaultsOfEachSample)
{
    for (const std::string name : {"good", "faults", "warnings", "many", "unplayable", "empty", "titled", "short",
                                   "strange", "foreign", "unsaved", "early"}) {
        sample(name);
        EXPECT_EQ(report(checkfolder(name)), contentof(SAMPLES "/" + name + "/report.txt"));
        const Findings made = maketimeline(name, "Out.bd3", true).findings;
        EXPECT_EQ(errors(made), errors(checkfolder(name)));
        EXPECT_EQ(fs::remove("Out.bd3"), !haserrors(made)) << name;
    }
    EXPECT_EQ(report(checkfile(sample("broken") + "/X.bd3")), contentof(SAMPLES "/broken/report.txt"));
    EXPECT_EQ(errors(maketimeline("good", "good/people.csv", true)),
              "good/people.csv: error: is no name for a timeline; it must end in .bd3, as Modern.bd3\n");
    EXPECT_EQ(contentof("good/people.csv"), contentof(SAMPLES "/good/people.csv"));
}

TEST_F(Check, WarnsAboutRangesAndReigns)
{
    std::string years;
    for (int year = 1; year <= 21; ++year) {
        years += "Fire " + std::to_string(year) + ',' + std::to_string(year) + ",,,,D,,War,Rome,,Rome,41.9,12.5,\n";
    }
    EXPECT_EQ(withrows("", years + "Long fire,1,,20,,D,,War,Rome,,Rome,41.9,12.5,\n"), "");
    EXPECT_EQ(withrows("", years + "Long fire,1,,21,,D,,War,Rome,,Rome,41.9,12.5,\n"),
              "in/events.csv:33: warning: column 4 (date2): 1 to 21 covers 21 other events; give the year for which it "
              "is known\n");
    const auto people = [](int lives, int reigns) {
        std::string rows;
        for (int i = 0; i < lives + reigns; ++i) {
            const std::string number = std::to_string(i);
            rows += 'P' + number + ',' + number + (i < lives ? "," : ",reign") + ",,,T" + number + ",,China,Poet\n";
        }
        return withrows(rows, "");
    };
    EXPECT_EQ(people(100, 15), ""); // 15 of 125 are 12 of 100
    EXPECT_EQ(people(90, 14), "in/people.csv:1: warning: 14 of 114 people have a reign for a date, so \"(reign)\" "
                              "gives answers away; either none should, or at least 15\n");
    EXPECT_EQ(people(100, 16),
              "in/people.csv:1: warning: 16 of 126 people have a reign for a date; at most 12 of 100 should, since "
              "sorting takes it for a birth: give birth and death where they are known\n");
}

TEST_F(Check, TheSummaryShowsTheBalanceOfEachFolder)
{
    const auto summary = [](const std::vector<std::string>& folders) {
        Findings findings;
        const std::string table = summarytable(folders, findings);
        EXPECT_EQ(table, contentof("table.txt"));
        EXPECT_EQ(report(findings), contentof("report.txt"));
    };
    fs::current_path(sample("balance"));
    summary({"old/", "new"});
    fs::current_path("..");
    fs::current_path(sample("unbalanced"));
    summary({"new"});
}

} // namespace brindor::authoring
