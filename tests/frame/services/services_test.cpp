#include "base/files.h"
#include "frame/services/placement.h"
#include "support/gametest.h"
#include "timeline/timeline.h"

#include <algorithm>
#include <filesystem>

namespace brindor {

using tests::contentof;
using tests::said;
using tests::writefile;

const std::string settingsfile = "1 4 10 2\r\n2 8 8 8\r\nMY TITLE.BMP\r\n"
                                 "0 2 0 1 0\r\n12648384 16777088 33023 16744576 0\r\n9001 9002 9004 9003 9005\r\n"
                                 "12001 12002 12004 12003 12005\r\n"
                                 "0 7 -3 0 0\r\n6 7 8 9 10\r\n-1 0 3 4 5\r\n1 2 3 4 32767\r\n"
                                 "0\r\n-1\r\n0\r\n1\r\n0\r\n-1\r\n0\r\n-1\r\n0\r\n-1\r\n0\r\n-1\r\n0\r\n3\r\n";

class Services : public tests::GameTest {
protected:
    static std::string afteratrip(const std::string& content)
    {
        writefile("bdq.INI", content);
        readsettings();
        writesettings();
        return contentof("bdq.INI");
    }
};

TEST_F(Services, ScoreAndLogLinesFollowTheLevelAndAFailureToWriteIsToldOnce)
{
    addscore(1, 1, 0);
    EXPECT_EQ(players[0].percent, 100);
    addscore(1, 2, 1);
    EXPECT_EQ(log() + said(host), "Score: 2 out of 3  66%\r\nScore: 2 out of 3  66%\n");
    std::string logs;
    for (logstatus = 0; logstatus <= 3; ++logstatus) {
        resetlog();
        logline("one", 1, 0);
        logline("two", 2, 1); // not even shown where it is below the level
        logs += log() + '|';
    }
    EXPECT_EQ(logs + said(host), "|one\r\ntwo\r\n|two\r\n||two\ntwo\ntwo\n");
    std::filesystem::remove("bdqquiz.log");
    std::filesystem::create_directory("bdqquiz.log");
    resetlog();
    faultplan = {1, true, 0};
    writesettings();
    EXPECT_EQ(said(host), "bdqquiz.log cannot be written: Not a regular file. The game goes on, but settings and "
                          "log may not be kept. Check the program's folder and the space on its disk.\n");
}

TEST_F(Services, TheSettingsGoThroughTheFileUnchangedInEveryForm)
{
    std::string commas = settingsfile;
    std::string lf = settingsfile;
    std::replace(commas.begin(), commas.end(), ' ', ',');
    commas.replace(commas.find("MY,"), 3, "MY ");
    std::erase(lf, '\r');
    for (const std::string& form : {commas, lf, "\xEF\xBB\xBF" + settingsfile, settingsfile + "more\r\n",
                                    "1\n4,10\n 2 99\n" + settingsfile.substr(10),
                                    "1 4 10 2\n2 1 2 3\n" + settingsfile.substr(19), settingsfile}) {
        EXPECT_EQ(afteratrip(form), settingsfile);
    }
    EXPECT_EQ(mindif + titlepicture, "1MY TITLE.BMP");
    EXPECT_EQ(maxdif * 10000 + nquestion * 100 + logstatus * 10 + curperiod, 41022);
    EXPECT_EQ(placements[3].height * 10 + placements[1].windowstate, 90042); // row 3 stands before row 2
    EXPECT_EQ(placements[6].windowstate * 10 + typeenabled[3], 71);          // a row of no screen
}

TEST_F(Services, MissingShortAndBadSettingsBecomeUsableOnes)
{
    const std::string rows = "0 0 0 0 0\r\n0 0 0 0 0\r\n9000 9000 5400 9000 9000\r\n12000 12000 8400 12000 12000\r\n"
                             "0 0 0 0 0\r\n0 0 0 0 0\r\n9000 9000 9000 9000 9000\r\n12000 12000 12000 12000 12000\r\n"
                             "0\r\n-1\r\n-1\r\n-1\r\n-1\r\n-1\r\n-1\r\n-1\r\n-1\r\n-1\r\n-1\r\n-1\r\n-1\r\n-1\r\n";
    const std::pair<std::string, const char*> cases[] = {
        // content, and the first three lines of what it gives
        {"", "1 1 5 1\r\n0 8 8 8\r\nTITLE.BMP\r\n"},
        {"3 2", "3 2 5 1\r\n0 8 8 8\r\nTITLE.BMP\r\n"},
        {"0 99 25 9\n7 8 8 8\n", "1 9 10 2\r\n3 8 8 8\r\nTITLE.BMP\r\n"},
        {"-5 -5 -5 -5\n-1 8 8 8\n\n", "1 1 1 0\r\n0 8 8 8\r\nTITLE.BMP\r\n"},
        {"x 3 99999999999999999999 1\n1 8 8 8\nA.PNG,x\n", "1 3 10 1\r\n1 8 8 8\r\nA.PNG\r\n"},
        {std::string("\0\xFF garbage", 10), "1 1 5 1\r\n0 8 8 8\r\nTITLE.BMP\r\n"},
        {std::string(100000, '7'), "1 1 5 1\r\n0 8 8 8\r\nTITLE.BMP\r\n"},
    };
    for (const auto& [content, head] : cases) {
        EXPECT_EQ(afteratrip(content), head + rows) << content.substr(0, 20);
    }
    EXPECT_EQ(said(host), "");
    EXPECT_EQ(afteratrip("1 1 5 1\n0 8 8 8\nT\n0 9 -4 0 0\n99999999999 0 0 0 0\n5 99999 0 0 0\n").substr(21, 72),
              "0 2 0 0 0\r\n2147483647 0 0 0 0\r\n1500 32767 1500 1500 0\r\n12000 12000 8400 ");
    std::string periods; // without a choice the first that has a file
    for (const char* file : {"Modern.bd3", "Classic.bd3"}) {
        writefile(file, "");
        std::filesystem::remove("bdq.INI");
        readsettings();
        periods += std::to_string(curperiod);
    }
    EXPECT_EQ(periods, "31");
}

} // namespace brindor
