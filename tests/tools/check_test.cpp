#include "authoring/summary.h"
#include "tools/sample.h"

namespace brindor::authoring {

using namespace tests;
using Check = ProgramTest;

namespace {

// A folder of samples/ in the current folder.
std::string sample(const std::string& name)
{
    fs::copy(SAMPLES "/" + name, name, fs::copy_options::recursive);
    return name;
}

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
    for (const std::string name : {"faults", "warnings", "many", "unplayable", "empty"}) {
        sample(name);
        EXPECT_EQ(report(checkfolder(name)), contentof(name + "/report.txt"));
        const Findings made = maketimeline(name, "Out.bd3", true).findings;
        EXPECT_EQ(errors(made), errors(checkfolder(name)));
        EXPECT_EQ(fs::remove("Out.bd3"), !haserrors(made)) << name;
    }
    EXPECT_EQ(withrows("", ""), "");
    EXPECT_EQ(errors(maketimeline("nowhere", "Out.bd3", false)),
              "nowhere/people.csv: error: cannot be read: No such file or directory\n"
              "nowhere/events.csv: error: cannot be read: No such file or directory\n");
    EXPECT_EQ(errors(maketimeline("in", "in/people.csv", true)),
              "in/people.csv: error: is no name for a timeline; it must end in .bd3, as Modern.bd3\n");
    EXPECT_EQ(contentof("in/people.csv"), peopleheader() + goodpeople());
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

TEST_F(Check, TellsWhereATimelineFileIsWrong)
{
    writegood("", "War,9,,,,D,,War,Rome,,,,,maps/own.bmp\nPeace,8,,,,D,,War,Rome,,,,,own.bmp\n");
    fs::create_directory("in/maps");
    writefile("in/own.bmp", bmpfile(40, 30));
    writefile("in/maps/own.bmp", bmpfile(40, 30));
    maketimeline("in", "game/X.bd3", false);
    EXPECT_EQ(checkfile("game/X.bd3").size(), 10U); // the maps that are not drawn yet
    fs::remove("game/x/maps/own.bmp");
    EXPECT_EQ(checkfile("game/X.bd3").size(), 11U);
    EXPECT_EQ(errors(checkfile("game/X.bd3")), "");
    std::string text = contentof("game/X.bd3");
    const auto damage = [&text](const std::string& from, const std::string& to) {
        text.replace(text.find(from), from.size(), to);
    };
    damage("Cai Lun\n121, 1\n121, 1", "\n122, 3\n121, 4");
    damage("\n5, 2\n", "\n6, 5\n");
    damage("\n5, 3\n", "\n-1, -1\n");
    damage("Peace\n8, 0\n8, 0", "Peace\n8, -1\n8, 3");
    damage("4, 5, 5\nx/own.bmp", "5, 7, -1\n../x.png");
    writefile("game/X.bd3", text);
    writefile("game/x/maps/own.bmp", "no picture");
    std::string told;
    for (const Finding& finding : checkfile("game/X.bd3")) {
        told += finding.severity == Severity::error ? std::to_string(finding.line) + ' ' + finding.text + '\n' : "";
    }
    EXPECT_EQ(told, "5 name: the name is empty\n"
                    "5 date2: 121 lies before the first date, 122\n"
                    "5 kind1: 3 is no kind of date; the kinds are 0, 1 and 2\n"
                    "5 kind2: 4 is no kind of date; the kinds are 0, 1 and 2\n"
                    "15 faction: 6 lies outside the list, which ends at 5\n"
                    "15 occupation: 5 lies outside the list, which ends at 4\n"
                    "25 faction: -1 lies outside the list, which ends at 5\n"
                    "25 occupation: -1 lies outside the list, which ends at 4\n"
                    "106 picture: ../x.png: no part of it may be empty or begin with a dot\n"
                    "106 kind1: -1 is no kind of date; the kinds are 0, 1 and 2\n"
                    "106 kind2: 3 is no kind of date; the kinds are 0, 1 and 2\n"
                    "106 group: 5 lies outside the list, which ends at 4\n"
                    "106 nation1: 7 lies outside the list, which ends at 6\n"
                    "106 nation2: -1 lies outside the list, which ends at 6\n"
                    "116 picture: x/maps/own.bmp is no picture in a known form; save it as png, jpg, bmp or gif\n");
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
