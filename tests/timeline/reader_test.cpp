#include "timeline/reader.h"

#include "base/files.h"
#include "support/programtest.h"
#include "support/timelines.h"
#include "timeline/usedmarks.h"
#include "timeline/writer.h"

#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>

namespace brindor {

using tests::writefile;

// A small file with every kind of line; each test takes it as it is or damages one place.
const std::string smallfile =
    "2 -- Number of people in file\n1 -- Number of events in file\n==== PEOPLE\n"
    "** 1\nAda, Countess\n1815, 0\n1852, 0\nWrote, first, programs.\nSecond.\nThird.\n1, 1\nada.png\n32, 48\n"
    "** 2\nOtto\n912, 1\n973, 2\nd\ne\n\n0, 1\n\n0, 0\n"
    "+++ EVENTS\n"
    "++ 1\nHastings\n1066, 0\n1066, 0\nf\ng\nh\n1, 2, 1\nmaps/h.png\n640, 480\n"
    "=== FACTIONS\n1\n-- 1\nBritain\n7\n"
    "=== OCCUPATIONS\n1\n-- 1\nMathematician\n1\n"
    "=== GROUPS\n1\n-- 1\nWar\n2\n"
    "=== NATIONS\n2\n-- 1\nNormandy\n1\n-- 2\nEngland\n9\n";

std::string replaced(std::string text, const std::string& what, const std::string& with)
{
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return text.replace(at, what.size(), with);
}

class Reader : public tests::ProgramTest {
protected:
    // The one message that reading this text gives, empty for none.
    std::string read(const std::string& text)
    {
        writefile("T.bd3", text);
        host.messages.clear();
        readtimeline("T.bd3");
        EXPECT_LE(host.messages.size(), 1U);
        return host.messages.empty() ? "" : host.messages.front().text;
    }
};

TEST_F(Reader, ReadsEveryField)
{
    curperson = 1;
    ASSERT_EQ(read(smallfile), "");
    EXPECT_EQ(timelinetext(), smallfile);
    EXPECT_EQ(people.size(), 4U);
    EXPECT_EQ(people[0].live, 1);
    EXPECT_EQ(people[2].live, 0);
    EXPECT_EQ(nnations, 2);
    EXPECT_EQ(nations[2].catweight, 9);
    EXPECT_EQ(entryname(nations, 3), "");
    EXPECT_EQ(entryname(nations, -1), "");
    EXPECT_EQ(mindate, 912);
    EXPECT_EQ(maxdate, 1852);
    EXPECT_EQ(curperson, 0);
}

TEST_F(Reader, FormsThatReadAlike)
{
    const std::string whole = smallfile.substr(0, smallfile.size() - 1);
    std::string withcrlf = smallfile;
    for (std::size_t at = 0; (at = withcrlf.find('\n', at)) != std::string::npos; at += 2) {
        withcrlf.replace(at, 1, "\r\n");
    }
    const std::string forms[] = {
        whole, // the last line needs no end
        withcrlf,
        "\xEF\xBB\xBF" + smallfile, // byte order mark
        replaced(smallfile, "1815, 0", "1815 0"),
        replaced(smallfile, "1815, 0", "1815,0"),
        replaced(smallfile, "1815, 0", "1815\n0"),
        replaced(smallfile, "1815, 0", "+1815 , 0 , 99 and more"), // the rest of the line is dropped
        replaced(smallfile, "==== PEOPLE", "12 people"),
        smallfile + "anything behind it\n",
    };
    ASSERT_EQ(read(smallfile), "");
    const std::string expected = timelinetext();
    for (const std::string& form : forms) {
        tests::settimeline({}, {});
        EXPECT_EQ(read(form), "");
        EXPECT_EQ(timelinetext(), expected);
    }
}

TEST_F(Reader, FailureTexts)
{
    const std::string last = " 2 Otto 1 Hastings"; // the counters and the last records' names, as far as read
    const struct {
        std::string text;
        std::string message;
    } cases[] = {
        {"", "T.bd3, line 0: the file ends here, but the number of people should follow. Complete the file and choose "
             "the period again."},
        {replaced(smallfile, "2 --", "-2 --"), "T.bd3, line 1: -2 is no count from 0 to 32767. Correct the number of "
                                               "people and choose the period again."},
        {replaced(smallfile, "1 --", "40000 --"),
         "T.bd3, line 2: 40000 is no count from 0 to 32767. Correct the number "
         "of events and choose the period again."},
        {replaced(smallfile, "1815, 0", "12x, 0"),
         "T.bd3, line 6: \"12x\" is not a whole number. Correct the first date "
         "and its kind and choose the period again. 2  1 "},
        {replaced(smallfile, "1815, 0", "1815.5, 0"),
         "T.bd3, line 6: \"1815.5\" is not a whole number. Correct the first "
         "date and its kind and choose the period again. 2  1 "},
        {replaced(smallfile, "1852, 0", "1852, 32768"),
         "T.bd3, line 7: \"32768\" is outside -32768 to 32767. Correct the "
         "second date and its kind and choose the period again. 2  1 "},
        {replaced(smallfile, "2\n-- 1\nNormandy", "-2\n-- 1\nNormandy"),
         "T.bd3, line 51: -2 is no count from 0 to 32767. Correct the count of the nations and choose the period "
         "again." +
             last},
        {smallfile.substr(0, smallfile.find("England")),
         "T.bd3, line 55: the file ends here, but the name of an entry of the nations should follow. Complete the file "
         "and choose the period again." +
             last},
    };
    for (const auto& c : cases) {
        tests::settimeline({}, {});
        EXPECT_EQ(read(c.text), c.message);
        EXPECT_EQ(host.messages.front().title, "Brindor Trivia Game");
    }
}

TEST_F(Reader, AFileThatEndsEarlyKeepsWhatWasRead)
{
    ASSERT_EQ(read(smallfile), "");
    curperson = 1;
    const std::string broken = smallfile.substr(0, smallfile.find("England"));
    EXPECT_NE(read(replaced(broken, "Britain", "Wales")), "");
    EXPECT_EQ(npeople, 2);
    EXPECT_EQ(events[0].name, "Hastings");
    EXPECT_EQ(entryname(factions, 1), "Wales");
    EXPECT_EQ(entryname(nations, 1), "Normandy");
    EXPECT_EQ(curperson, 1); // the cursors are set at the very end only

    EXPECT_NE(read(smallfile.substr(0, smallfile.find("Otto"))), "");
    EXPECT_EQ(npeople, 2);
    EXPECT_EQ(people[1].name, "");
    EXPECT_EQ(people[1].live, 0);
}

TEST_F(Reader, AMissingFileChangesNothing)
{
    ASSERT_EQ(read(smallfile), "");
    const std::string before = timelinetext();
    usedmarks[0] = 3;
    curperiod = 2;
    loadperiod();
    EXPECT_EQ(host.messages.back().text,
              "Medieval.bd3 cannot be opened: No such file or directory. Put the file into the "
              "program's folder, or choose another period. 2 Otto 1 Hastings");
    EXPECT_EQ(timelinetext(), before);
    EXPECT_EQ(mindate, 912);
    EXPECT_EQ(curfile, "Medieval.bd3");
    EXPECT_EQ(usedmarks, std::vector<std::int16_t>(4)); // cleared all the same
}

TEST_F(Reader, CataloguesAreCutToTheirNewCount)
{
    ASSERT_EQ(read(smallfile), "");
    ASSERT_EQ(read(replaced(smallfile, "2\n-- 1\nNormandy\n1\n-- 2\nEngland\n9\n", "0\n")), "");
    EXPECT_EQ(nnations, 0);
    EXPECT_EQ(entryname(nations, 1), "");
}

TEST_F(Reader, AHugeLineOrCountSizesNothing)
{
    EXPECT_EQ(read("5\n5\n" + std::string(3000000, 'x')).substr(0, 67),
              "T.bd3, line 3: the line is longer than 1048576 bytes. Check that th");
    EXPECT_NE(read("99999999999999999999\n0\n"), "");
    EXPECT_EQ(people.size(), 2U);
    EXPECT_EQ(npeople, 0);
}

// Any damage gives at most one message, and the counters never leave what the arrays hold.
RC_GTEST_FIXTURE_PROP(Reader, DamagedFilesNeverBreakIt, ())
{
    std::string text = smallfile;
    const auto hits = *rc::gen::inRange(1, 6);
    for (int i = 0; i < hits; ++i) {
        const auto at = *rc::gen::inRange<std::size_t>(0, text.size());
        const auto with = *rc::gen::elementOf(std::string("0123456789-, \n\r\xFFxe"));
        if (*rc::gen::arbitrary<bool>()) {
            text[at] = with;
        } else {
            text.insert(at, 1, with);
        }
    }
    text.resize(*rc::gen::weightedOneOf<std::size_t>(
        {{3, rc::gen::just(text.size())}, {1, rc::gen::inRange<std::size_t>(0, text.size())}}));
    writefile("T.bd3", text);
    host.messages.clear();
    readtimeline("T.bd3");
    clearmarks();
    RC_ASSERT(host.messages.size() <= 1U);
    RC_ASSERT(npeople >= 0 && static_cast<double>(people.size()) >= npeople + 2);
    RC_ASSERT(nevents >= 0 && static_cast<double>(events.size()) >= nevents + 2);
    RC_ASSERT(static_cast<double>(usedmarks.size()) == npeople + nevents + 1);
}

// Every file call fails once: one message each time that it matters, and the program goes on.
TEST_F(Reader, FileFaultsAreTold)
{
    writefile("T.bd3", smallfile);
    for (std::int64_t n = 1; n <= 3; ++n) {
        faultplan = {n, false, 0};
        host.messages.clear();
        readtimeline("T.bd3");
        ASSERT_EQ(host.messages.size(), n <= 2 ? 1U : 0U) << n;
        faultplan = {};
    }
    EXPECT_EQ(npeople, 2);
}

} // namespace brindor
