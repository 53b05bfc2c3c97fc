#include "timeline/reader.h"

#include "support/programtest.h"
#include "timeline/usedmarks.h"
#include "timeline/writer.h"

#include <numeric>
#include <string>

namespace brindor {

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

// The small file with other words in one place, and the small file cut off before a word.
std::string replaced(const std::string& what, const std::string& with)
{
    return std::string(smallfile).replace(smallfile.find(what), what.size(), with);
}
std::string before(const std::string& word)
{
    return smallfile.substr(0, smallfile.find(word));
}

class Reader : public tests::ProgramTest {
protected:
    // The one message that reading this text gives, empty for none; and the range of dates after it.
    std::string read(const std::string& text)
    {
        tests::writefile("T.bd3", text);
        host.messages.clear();
        readtimeline("T.bd3");
        EXPECT_LE(host.messages.size(), 1U);
        return host.messages.empty() ? std::to_string(mindate) + ' ' + std::to_string(maxdate)
                                     : host.messages.front().text;
    }
};

TEST_F(Reader, ReadsEveryFieldInEveryForm)
{
    std::string withcrlf;
    for (const char c : smallfile) {
        withcrlf += c == '\n' ? "\r\n" : std::string(1, c);
    }
    for (const std::string& form : {
             smallfile,
             smallfile.substr(0, smallfile.size() - 1), // the last line needs no end
             withcrlf,
             "\xEF\xBB\xBF" + smallfile, // byte order mark
             replaced("1815, 0", "1815 0"),
             replaced("1815, 0", "1815,0"),
             replaced("1815, 0", "1815\n0"),
             replaced("1815, 0", "\t000001815 ,\t-0 "),
             replaced("1815, 0", "+1815 , 0 , 99 and more"), // the rest of the line is dropped
             replaced("==== PEOPLE", "12 people"),
             smallfile + "anything behind it\n",
         }) {
        tests::settimeline({}, {});
        curperson = curevent = 1;
        mindate = maxdate = 0;
        EXPECT_EQ(read(form), "912 1852");
        EXPECT_EQ(timelinetext(), smallfile);
        EXPECT_EQ(curperson + curevent, 0);
        EXPECT_EQ(std::to_string(people.size()) + std::to_string(people[1].live) + std::to_string(people[2].live),
                  "410");
        EXPECT_EQ(entryname(nations, 2) + entryname(nations, 3) + entryname(nations, 0) + entryname(nations, -1),
                  "England");
    }
    tests::setnumbered(700, 700);
    const std::string large = timelinetext(); // more than the reader takes at once
    EXPECT_EQ(read(large), "-500 7995");
    EXPECT_EQ(timelinetext(), large);
    EXPECT_EQ(read("0\n0\n\n\n\n0\n\n0\n\n0\n\n0\n"), "9999 -25000");
    EXPECT_EQ(std::to_string(nnations) + entryname(nations, 1), "0"); // Catalogues are cut to their new count
}

TEST_F(Reader, FailureTextsNameLineFaultAndRemedy)
{
    const std::string choose = " and choose the period again.";
    const std::string last = " 2 Otto 1 Hastings"; // the counters and the last records' names, as far as read
    const std::pair<std::string, std::string> cases[] = {
        {"", "0: the file ends here, but the number of people should follow. Complete the file" + choose},
        {"32767\n", "1: the file ends here, but the number of events should follow. Complete the file" + choose},
        {"32768\n", "1: 32768 is no count from 0 to 32767. Correct the number of people" + choose},
        {replaced("1 --", "-2 --"), "2: -2 is no count from 0 to 32767. Correct the number of events" + choose},
        {replaced("1815, 0", std::string(41, 'x') + ", 0"),
         "6: \"" + std::string(40, 'x') + "...\" is not a whole number. Correct the first date and its kind" + choose +
             " 2  1 "},
        {replaced("1815, 0", "1815.5, 0"),
         "6: \"1815.5\" is not a whole number. Correct the first date and its kind" + choose + " 2  1 "},
        {replaced("1852, 0", "1852, 32768"),
         "7: \"32768\" is outside -32768 to 32767. Correct the second date and its kind" + choose + " 2  1 "},
        {replaced("1815, 0", "1815-5, 0"),
         "6: \"1815-5\" is not a whole number. Correct the first date and its kind" + choose + " 2  1 "},
        {replaced("1852, 0", "-4294967297, 0"),
         "7: \"-4294967297\" is outside -32768 to 32767. Correct the second date and its kind" + choose + " 2  1 "},
        {replaced("640, 480", "640, -"),
         "34: \"-\" is not a whole number. Correct the picture's two sizes" + choose + last},
        {replaced("2\n-- 1\nNormandy", "-2\n-- 1\nNormandy"),
         "51: -2 is no count from 0 to 32767. Correct the count of the nations" + choose + last},
        {before("England"),
         "55: the file ends here, but the name of an entry of the nations should follow. Complete the file" + choose +
             last},
        {"5\n5\n" + std::string(3000000, 'x'),
         "3: the line is longer than 1048576 bytes. Check that this is a timeline file. 5  5 "}};
    for (const auto& [text, message] : cases) {
        tests::settimeline({}, {});
        EXPECT_EQ(read(text), "T.bd3, line " + message);
    }
    EXPECT_EQ(people.size(), 7U);
    EXPECT_EQ(&personrec(7), &personrec(-1)); // outside
}

TEST_F(Reader, AFileThatEndsEarlyKeepsWhatWasReadAndAMissingOneChangesNothingButTheMarks)
{
    read(replaced("Britain", "Wales"));
    curperson = 1;
    read(before("England"));
    EXPECT_EQ(events[0].name + entryname(factions, 1) + entryname(nations, 1), "HastingsBritainNormandy");
    EXPECT_EQ(curperson, 1);            // the cursors are set at the very end only
    read(replaced("912, 1", "912, x")); // half a line is not read
    EXPECT_EQ(std::to_string(peoplecount()) + people[1].name + std::to_string(people[1].date1 + people[1].live),
              "2Otto0");
    read(before("Otto")); // nothing of an earlier load is in a record that is not reached
    const PersonRec& rest = people[1];
    const int numbers[] = {rest.date1,      rest.date2,      rest.datetype1,  rest.datetype2, rest.faction,
                           rest.occupation, rest.imagesize1, rest.imagesize2, rest.live,      events[0].live};
    EXPECT_EQ(rest.name + rest.desc1 + rest.desc2 + rest.desc3 + rest.imagename + events[0].name, "");
    EXPECT_EQ(std::count(std::begin(numbers), std::end(numbers), 0), std::ssize(numbers));
    read(smallfile);
    usedmarks[0] = 3;
    curperiod = 2;
    loadperiod();
    EXPECT_EQ(host.messages.back().text,
              "Medieval.bd3 cannot be opened: No such file or directory. Put the file into the "
              "program's folder, or choose another period. 2 Otto 1 Hastings");
    EXPECT_EQ(timelinetext(), smallfile);
    EXPECT_EQ(mindate, 912);
    EXPECT_EQ(curfile, "Medieval.bd3");
    EXPECT_EQ(usedmarks, std::vector<std::int16_t>(4));
}

} // namespace brindor
