#include "editors/eentry.h"
#include "editors/pentry.h"
#include "support/programtest.h"
#include "timeline/usedmarks.h"

namespace brindor {

using namespace toolkit;

const std::string offered = "Data changed: Store changed data?\n";

// What both editors do, told as stories; the parameter is the word that their questions use.
class Editors : public tests::ProgramTest, public testing::WithParamInterface<std::string> {
protected:
    Editors()
    {
        RecordEditor<PersonFamily>::newentry = RecordEditor<EventFamily>::newentry = 0;
        nnations = 1; // else the event editor is not locked
        viewonly = 0;
    }

    const bool ofpeople = GetParam() == "person";
    std::int16_t& cursor = ofpeople ? curperson : curevent;
    const std::string offerednew = "New " + GetParam() + ": Store new data?\n";

    ItemRec& item(std::size_t k) const { return ofpeople ? static_cast<ItemRec&>(people[k]) : events[k]; }
    std::int16_t& mark(std::size_t k, bool own = true) const
    {
        return usedmarks[usedslot(ofpeople == own, static_cast<std::int16_t>(k))];
    }

    // Records "A", "B" ... of these years, with the marks 1, 2 ...; two items of the other family with 101, 102.
    void setrecords(const std::vector<std::int16_t>& dates)
    {
        tests::settimeline(std::vector<PersonRec>(ofpeople ? dates.size() : 2),
                           std::vector<EventRec>(ofpeople ? 2 : dates.size()));
        for (std::size_t i = 0; i < dates.size(); ++i) {
            static_cast<Dates&>(item(i)) = tests::year(dates[i]);
            item(i).name = static_cast<char>('A' + i % 26);
            item(i).desc1 = "Line of " + item(i).name;
            item(i).live = 1;
            mark(i) = static_cast<std::int16_t>(i + 1);
        }
        mark(0, false) = 101;
        mark(1, false) = 102;
    }

    // "A 100:1, B 200:2": names, first dates and marks.
    std::string records() const
    {
        std::string text;
        for (std::size_t i = 0; i < static_cast<std::size_t>(ofpeople ? npeople : nevents); ++i) {
            text += (i == 0 ? "" : ", ") + item(i).name + ' ' + std::to_string(item(i).date1) + ':' +
                    std::to_string(mark(i));
        }
        EXPECT_EQ(usedmarks.size(), static_cast<std::size_t>(npeople + nevents) + 1);
        EXPECT_EQ(mark(0, false) * 1000 + mark(1, false), 101102); // those of the other family stay
        return text;
    }

    // A look sees "0 [AB] A|100|100|Line of A|14": the cursor, the list's first lines, the fields, the options on.
    std::string visit(const std::string& story)
    {
        return ProgramTest::visit(
            ofpeople ? "PEntry" : "eEntry", ofpeople ? showpeople : showevents, story, [this](Screen& screen) {
                const auto& s = static_cast<RecordFields&>(screen);
                std::string text = std::to_string(cursor) + " [";
                for (std::size_t i = 0; i < std::min<std::size_t>(s.combo1.lines.size(), 5); ++i) {
                    text += s.combo1.lines[i];
                }
                text += "] " + s.combo1.text + '|' + s.date1.text + '|' + s.date2.text + '|' + s.desc.text + '|';
                for (std::size_t i = 0; i < s.option.size(); ++i) {
                    text += s.option[i].selected ? std::to_string(i + 1) : "";
                }
                return text;
            });
    }

    void tell(const std::vector<std::int16_t>& dates, std::int16_t at, const std::string& steps,
              const std::string& transcript, const std::string& after)
    {
        setrecords(dates);
        cursor = at;
        EXPECT_EQ(visit(steps), transcript) << steps;
        EXPECT_EQ(records(), after) << steps;
    }
};
INSTANTIATE_TEST_SUITE_P(Of, Editors, testing::Values("person", "event"), [](const auto& of) { return of.param; });

TEST_P(Editors, BrowsingKeepsNothingAndStopsAtTheEnds)
{
    const std::string second = "1 [AB] B|200|200|Line of B|14\n";
    viewonly = 1;
    tell({100, 200}, 0,
         "cmdNew; cmdDelete; Combo1=N; date1=5; desc=other; Option3; cmdNext:Y; ?; cmdPrev; ?; cmdPrev; cmdNext; "
         "cmdNext; esc",
         "!cmdNew\n!cmdDelete\n" + second + "0 [AB] A|100|100|Line of A|14\nFirst in list\nLast in list\n*",
         "A 100:1, B 200:2");
    tell({}, 0, "?; cmdNext; cmdPrev", "0 [] |0|0||14\nLast in list\nFirst in list\n", "");
    tell({100, 200}, 1, "?; desc=other; return:Y", second + "*", "A 100:1, B 200:2");
}

TEST_P(Editors, EachChangeIsOfferedOnceAndDroppedByNoOrTheList)
{
    tell({100, 200}, 0,
         "cmdNext; date1=5; cmdPrev; date2=5; cmdNext; desc=other; cmdPrev; Option1; cmdNext; Option6; cmdPrev; ?",
         offered + offered + offered + offered + offered + "0 [AB] A|100|100|Line of A|14\n", "A 100:1, B 200:2");
    tell({100, 200}, 0, "desc=other; Combo1#1; ?; Combo1=other; cmdOK:Y", "1 [AB] B|200|200|Line of B|14\n*",
         "A 100:1, B 200:2");
}

TEST_P(Editors, AStoreTakesEveryFieldAndTheFirstLineOfTheDescriptionApart)
{
    const std::tuple<std::string, const char*, std::string> cases[] = {
        // typed, desc1|desc2, shown
        {"one", "one| ", "one\r\n "}, {"one\r\n", "one|", "one"},     {"one\r", "one|", "one"},
        {"", "| ", "\r\n "},          {"\r\ntwo", "|two", "\r\ntwo"}, {"1\r\n2\r\n3", "1|2\r\n3", "1\r\n2\r\n3"}};
    for (const auto& [typed, stored, shown] : cases) {
        tell({100, 200}, 0,
             "Combo1=N; date1=100.4; date2=13.5e1; Option2; Option6; desc=" + typed + "; cmdNext:Y; Combo1#0; ?",
             offered + "0 [AB] N|100|135|" + shown + "|26\n", "N 100:1, B 200:2"); // not moved: the list keeps the name
        EXPECT_EQ(item(0).desc1 + '|' + item(0).desc2, stored);
    }
}

TEST_P(Editors, AChangedDateMovesTheRecordWithItsMarkAndTheCursorStays)
{
    // Dates, which record, its new date; cursor and list after a step back, and the records.
    const std::tuple<std::vector<std::int16_t>, std::int16_t, std::string, const char*, const char*> cases[] = {
        {{100, 200, 300}, 1, "250", "0 [ABC]", "A 100:1, B 250:2, C 300:3"},
        {{100, 200, 300}, 0, "200", "0 [BAC]", "B 200:2, A 200:1, C 300:3"}, // behind all of the same date
        {{100, 200, 300}, 2, "100", "1 [ACB]", "A 100:1, C 100:3, B 200:2"},
        {{100, 200, 300}, 0, "900", "0 [BCA]", "B 200:2, C 300:3, A 900:1"},
        {{300, 200, 100}, 1, "200", "0 [ABC]", "A 300:1, B 200:2, C 100:3"},   // unchanged: nothing is sorted
        {{300, 200, 100}, 1, "400", "0 [CAB]", "C 100:3, A 300:1, B 400:2"},   // one pass: the lowest is first
        {{100, 100, 100}, 0, "99.5", "0 [ABC]", "A 100:1, B 100:2, C 100:3"}}; // 99.5 is stored as 100
    for (const auto& [dates, k, date, list, after] : cases) {
        setrecords(dates);
        cursor = k;
        EXPECT_NE(visit("date1=" + date + "; desc=x; cmdPrev:Y; ?").find(list), std::string::npos) << date;
        EXPECT_EQ(records(), after) << date;
    }
}

TEST_P(Editors, ANewRecordStartsFromTheOneBeforeGoesToItsPlaceAndIsPendingUntilThen)
{
    const auto typed = [this](const std::string& steps, const std::string& look, const std::string& after) {
        tell({100, 200, 300}, 0, "cmdNew; Combo1=N; " + steps + "cmdNext:Y; ?", offerednew + "1 " + look + "|14\n",
             after);
    };
    typed("", "[ABCN] B|200|200|Line of B", "A 100:1, B 200:2, C 300:3, N 100:0"); // the same date: not moved
    typed("date1=200; ", "[ABNC] B|200|200|Line of B", "A 100:1, B 200:2, N 200:0, C 300:3");
    typed("date1=5; ", "[NABC] A|100|100|Line of A", "N 5:0, A 100:1, B 200:2, C 300:3");
    EXPECT_EQ(std::to_string(item(0).live) + std::to_string(item(1).live), "-11");
    EXPECT_EQ(ofpeople ? people.size() : events.size(), 5U); // one slot behind the last

    setrecords({100, 200});
    cursor = 1;
    static_cast<Dates&>(item(1)) = tests::years(200, 250, known, reign);
    EXPECT_EQ(visit("cmdNew; ?; cmdNext; ?; cmdNext"),
              "1 [AB] ?|200|200||26\n" + offerednew + "Last in list\n1 [AB] |200|200||26\nLast in list\n");
    EXPECT_EQ(records(), "A 100:1, B 200:2");

    // It outlives the title bar's close.
    setrecords({100, 200});
    EXPECT_EQ(visit("cmdNew; esc"), "!esc\n"); // nothing typed is lost by a key
    EXPECT_EQ(visit("?; cmdNext:Y"), "0 [AB] A|100|100|Line of A|14\n" + offerednew);
    EXPECT_EQ(records(), "A 100:1, B 200:2, A 100:0");
}

TEST_P(Editors, DeletesTheRecordAndItsMarkAndLeavesItsFields)
{
    const auto deletes = [this](std::int16_t at, const std::string& fields, const char* before, const char* after,
                                const char* left) {
        const std::string asked = "Delete: Delete this " + GetParam() + "?\n";
        tell({100, 200, 300}, at, "cmdDelete; ?; cmdDelete:Y; ?",
             asked + before + "] |" + fields + "|14\n" + asked + after + "] |" + fields + "|14\n", left);
    };
    deletes(0, "100|100|Line of A", "0 [ABC", "0 [BC", "B 200:2, C 300:3");
    deletes(2, "300|300|Line of C", "2 [ABC", "1 [AB", "A 100:1, B 200:2");
    deletes(3, "0|0|", "3 [ABC", "3 [ABC", "A 100:1, B 200:2, C 300:3"); // none at the cursor
    deletes(-1, "0|0|", "-1 [ABC", "-1 [ABC", "A 100:1, B 200:2, C 300:3");
    // The slot of a deleted last record lends a new one what is not on the screen.
    setrecords({100});
    item(0).desc3 = "Third of A";
    std::int64_t state = timelinestate;
    for (const char* change : {"cmdDelete:Y", "cmdNew; cmdOK:Y", "desc=x; cmdOK:Y"}) {
        visit(change);
        EXPECT_GT(timelinestate, std::exchange(state, timelinestate)) << change;
    }
    EXPECT_EQ(records() + item(0).desc3, "? 100:0Third of A");
}

TEST_P(Editors, AKindThatNoOptionStandsForIsKept)
{
    setrecords({100, 200});
    item(0).datetype1 = 7;
    item(1).datetype1 = -1;
    item(1).datetype2 = approx;
    EXPECT_EQ(visit("desc=x; cmdNext:Y; ?; Option3; cmdOK:Y"),
              offered + "1 [AB] B|200|200|Line of B|5\n" + offered + "*");
    EXPECT_EQ(item(0).datetype1 * 10 + item(1).datetype1, 72);
}

// No records, or a cursor that a failed load left outside them.
TEST_P(Editors, AStoreWithoutARecordAtTheCursorAddsOneUnlessTheTimelineIsFull)
{
    for (const auto outside : std::initializer_list<std::int16_t>{2, 32767, -1}) {
        tell({100, 200}, outside, "?; Combo1=N; date1=150; cmdOK:Y",
             std::to_string(outside) + " [AB] |0|0||14\n" + offered + "*", "A 100:1, N 150:0, B 200:2");
    }
    tell({}, 0, "Combo1=N; date1=150; cmdOK:Y", offered + "*", "N 150:0");
    setrecords(std::vector<std::int16_t>(32767, 100));
    cursor = 0;
    EXPECT_EQ(visit("cmdNew; Combo1=N; cmdOK:Y; ?; cmdOK"),
              offerednew +
                  "The timeline is full: it holds 32767 records of this kind, the most that it can. Answer No "
                  "to go on without the new one.\n0 [ABCDE] N|100|100||24\n" +
                  offerednew + "*");
    EXPECT_EQ(ofpeople ? npeople : nevents, 32767);
}

} // namespace brindor
