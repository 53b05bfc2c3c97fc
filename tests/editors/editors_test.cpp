#include "editors/eentry.h"
#include "editors/pentry.h"
#include "support/programtest.h"
#include "support/story.h"
#include "support/timelines.h"
#include "timeline/usedmarks.h"

namespace brindor {

using namespace toolkit;

// What both editors do, told as stories; the parameter is the word that their questions use.
class Editors : public tests::ProgramTest, public testing::WithParamInterface<std::string> {
protected:
    Editors()
    {
        RecordEditor<PersonFamily>::newentry = RecordEditor<EventFamily>::newentry = 0;
        nnations = 1; // else the event editor is not locked
    }

    const bool ofpeople = GetParam() == "person";
    std::int16_t& cursor = ofpeople ? curperson : curevent;
    std::string closedwith; // the caption of the screen at its end

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

    // "A 100:1, B 200:2 / 101 102": names, first dates and marks; behind the stroke the other family's marks.
    std::string records() const
    {
        std::string text;
        for (std::size_t i = 0; i < static_cast<std::size_t>(ofpeople ? npeople : nevents); ++i) {
            text += (i == 0 ? "" : ", ") + item(i).name + ' ' + std::to_string(item(i).date1) + ':' +
                    std::to_string(mark(i));
        }
        EXPECT_EQ(usedmarks.size(), static_cast<std::size_t>(npeople + nevents) + 1);
        return text + " / " + std::to_string(mark(0, false)) + ' ' + std::to_string(mark(1, false));
    }

    // "0 [AB] A|100|100|Line of A|14": cursor, the list's first lines, the fields, and which options are on.
    std::string look(const RecordFields& s) const
    {
        std::string text = std::to_string(cursor) + " [";
        for (std::size_t i = 0; i < std::min<std::size_t>(s.combo1.lines.size(), 5); ++i) {
            text += s.combo1.lines[i];
        }
        text += "] " + s.combo1.text + '|' + s.date1.text + '|' + s.date2.text + '|' + s.desc.text + '|';
        for (std::size_t i = 0; i < s.option.size(); ++i) {
            text += s.option[i].selected ? std::to_string(i + 1) : "";
        }
        return text;
    }

    // Opens the editor, tells the story and closes the editor from its title bar.
    std::string visit(const std::string& story)
    {
        std::string transcript;
        host.persons["PEntry"] = host.persons["eEntry"] = [&](Screen& screen) {
            transcript = act(host, screen, story, [&] { return look(static_cast<RecordFields&>(screen)); });
            closedwith = screen.closed ? "" : screen.caption;
            userclose(screen);
        };
        ofpeople ? showpeople() : showevents();
        return transcript;
    }

    // Puts the word of the editor for "%".
    static std::string worded(std::string text)
    {
        for (std::size_t at = 0; (at = text.find('%')) != std::string::npos;) {
            text.replace(at, 1, GetParam());
        }
        return text;
    }

    void tell(const std::vector<std::int16_t>& dates, std::int16_t at, const std::string& steps,
              const std::string& transcript, const std::string& after)
    {
        setrecords(dates);
        cursor = at;
        EXPECT_EQ(visit(steps), worded(transcript)) << steps;
        EXPECT_EQ(records(), after + " / 101 102") << steps;
    }
};
INSTANTIATE_TEST_SUITE_P(Of, Editors, testing::Values("person", "event"), [](const auto& of) { return of.param; });

TEST_P(Editors, BrowsingKeepsNothingAndStopsAtTheEnds)
{
    const std::string first = "0 [AB] A|100|100|Line of A|14\n";
    const std::string second = "1 [AB] B|200|200|Line of B|14\n";
    tell({100, 200}, 0,
         "cmdNew; cmdDelete; Combo1=N; date1=5; date2=5; desc=other; Option3; Option6; cmdNext:Y; ?; cmdPrev; ?; "
         "cmdPrev; cmdNext; cmdNext; ?; esc",
         "!cmdNew\n!cmdDelete\n" + second + first + "First in list\nLast in list\n" + second, "A 100:1, B 200:2");
    tell({}, 0, "?; cmdNext; cmdPrev", "0 [] |0|0||14\nLast in list\nFirst in list\n", "");
    tell({100, 200}, 1, "?; desc=other; return:Y", second, "A 100:1, B 200:2");
    EXPECT_EQ(closedwith, "");
}

TEST_P(Editors, EachChangeIsOfferedOnceAndDroppedByNoOrTheList)
{
    const std::string asked = "Data changed: Store changed data?\n";
    viewonly = 0;
    tell({100, 200}, 0,
         "cmdNext; date1=5; cmdPrev; date2=5; cmdNext; desc=other; cmdPrev; Option1; cmdNext; Option6; cmdPrev; ?",
         asked + asked + asked + asked + asked + "0 [AB] A|100|100|Line of A|14\n", "A 100:1, B 200:2");
    tell({100, 200}, 0, "desc=other; Combo1#1; ?; Combo1=other; cmdOK:Y", "1 [AB] B|200|200|Line of B|14\n",
         "A 100:1, B 200:2");
    EXPECT_EQ(closedwith, "");
}

TEST_P(Editors, StoresEveryFieldOfTheRecordShown)
{
    viewonly = 0;
    tell({100, 200}, 0,
         "Combo1=Name; date1=100.4; date2=13.5e1; desc=One\r\nTwo\r\nThree; Option2; Option6; cmdNext:Y; ?",
         "Data changed: Store changed data?\n1 [AB] B|200|200|Line of B|14\n", // not moved: the list keeps the name
         "Name 100:1, B 200:2");
    EXPECT_EQ(closedwith, ofpeople ? "People Entry" : "Events Entry");
    EXPECT_EQ(visit("Combo1#0; ?"), "0 [NameB] Name|100|135|One\r\nTwo\r\nThree|26\n");
    EXPECT_EQ(item(0).desc1 + '|' + item(0).desc2, "One|Two\r\nThree");
    const std::int64_t before = timelinestate;
    visit("Combo1#0; desc=other; cmdOK:Y");
    EXPECT_GT(timelinestate, before);
}

TEST_P(Editors, DescriptionsThereAndBack)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {
        // typed, desc1|desc2, shown
        {"one", "one| ", "one\r\n "}, {"one\r\n", "one|", "one"},     {"one\r", "one|", "one"},
        {"", "| ", "\r\n "},          {"\r\ntwo", "|two", "\r\ntwo"}, {"one\r\n\r\nx", "one|\r\nx", "one\r\n\r\nx"}};
    viewonly = 0;
    for (const auto& [typed, stored, shown] : cases) {
        setrecords({100});
        EXPECT_EQ(visit(std::string("desc=") + typed + "; cmdNext:Y; Combo1#0; ?"),
                  std::string("Data changed: Store changed data?\nLast in list\n0 [A] A|100|100|") + shown + "|14\n");
        EXPECT_EQ(item(0).desc1 + '|' + item(0).desc2, stored);
    }
}

TEST_P(Editors, AChangedDateMovesTheRecordWithItsMarkAndTheCursorStays)
{
    // Dates, which record, its new date; cursor and list after a step back, and the records.
    const std::tuple<std::vector<std::int16_t>, std::int16_t, const char*, const char*, const char*> cases[] = {
        {{100, 200, 300}, 1, "250", "0 [ABC]", "A 100:1, B 250:2, C 300:3"},
        {{100, 200, 300}, 0, "200", "0 [BAC]", "B 200:2, A 200:1, C 300:3"}, // behind all of the same date
        {{100, 200, 300}, 2, "100", "1 [ACB]", "A 100:1, C 100:3, B 200:2"},
        {{100, 200, 300}, 2, "50", "1 [CAB]", "C 50:3, A 100:1, B 200:2"},
        {{100, 200, 300}, 0, "900", "0 [BCA]", "B 200:2, C 300:3, A 900:1"},
        {{300, 200, 100}, 1, "200", "0 [ABC]", "A 300:1, B 200:2, C 100:3"},  // unchanged: nothing is sorted
        {{300, 200, 100}, 1, "400", "0 [CAB]", "C 100:3, A 300:1, B 400:2"},  // one pass: the lowest is first
        {{100, 100, 100}, 0, "99.5", "0 [ABC]", "A 100:1, B 100:2, C 100:3"}, // 99.5 is stored as 100
        {{100}, 0, "-5", "0 [A]", "A -5:1"}};
    viewonly = 0;
    for (const auto& [dates, k, date, list, after] : cases) {
        setrecords(dates);
        cursor = k;
        const std::string transcript = visit(std::string("date1=") + date + "; desc=x; cmdPrev:Y; ?");
        EXPECT_NE(transcript.find(list), std::string::npos) << date << ' ' << transcript;
        EXPECT_EQ(records(), std::string(after) + " / 101 102") << date;
    }
}

TEST_P(Editors, ANewRecordStartsFromTheOneBeforeAndGoesToItsPlace)
{
    viewonly = 0;
    const std::vector<std::int16_t> dates = {100, 200, 300};
    const std::string b = "B|200|200|Line of B|14\n";
    const auto told = [](const std::string& look) { return "New %: Store new data?\n1 " + look; };
    tell(dates, 0, "cmdNew; Combo1=N; cmdNext:Y; ?", told("[ABCN] " + b), "A 100:1, B 200:2, C 300:3, N 100:0");
    tell(dates, 0, "cmdNew; Combo1=N; date1=900; cmdNext:Y; ?", told("[ABCN] " + b),
         "A 100:1, B 200:2, C 300:3, N 900:0");
    tell(dates, 0, "cmdNew; Combo1=N; date1=200; cmdNext:Y; ?", told("[ABNC] " + b),
         "A 100:1, B 200:2, N 200:0, C 300:3");
    tell(dates, 0, "cmdNew; Combo1=N; date1=5; cmdNext:Y; ?", told("[NABC] A|100|100|Line of A|14\n"),
         "N 5:0, A 100:1, B 200:2, C 300:3");
    EXPECT_EQ(std::to_string(item(0).live) + std::to_string(item(1).live), "-11");
    EXPECT_EQ(ofpeople ? people.size() : events.size(), 5U); // one slot behind the last

    setrecords({100, 200});
    cursor = 1;
    item(1).date2 = 250;
    item(1).datetype2 = reign;
    EXPECT_EQ(
        visit("cmdNew; ?; cmdNext; ?; cmdNext"),
        worded("1 [AB] ?|200|200||26\nNew %: Store new data?\nLast in list\n1 [AB] |200|200||26\nLast in list\n"));
    EXPECT_EQ(records(), "A 100:1, B 200:2 / 101 102");
}

TEST_P(Editors, APendingRecordOutlivesTheTitleBarsClose)
{
    viewonly = 0;
    setrecords({100, 200});
    EXPECT_EQ(visit("cmdNew; esc"), "!esc\n"); // nothing typed is lost by a key
    EXPECT_EQ(visit("?; cmdNext:Y"), worded("0 [AB] A|100|100|Line of A|14\nNew %: Store new data?\n"));
    EXPECT_EQ(records(), "A 100:1, B 200:2, A 100:0 / 101 102");
}

TEST_P(Editors, DeletesTheRecordAndItsMarkAndLeavesItsFields)
{
    viewonly = 0;
    const auto deletes = [this](std::int16_t at, const std::string& fields, const char* before, const char* after,
                                const char* left) {
        const std::string asked = "Delete: Delete this %?\n";
        tell({100, 200, 300}, at, "cmdDelete; ?; cmdDelete:Y; ?",
             asked + before + "] |" + fields + "|14\n" + asked + after + "] |" + fields + "|14\n", left);
    };
    deletes(0, "100|100|Line of A", "0 [ABC", "0 [BC", "B 200:2, C 300:3");
    deletes(1, "200|200|Line of B", "1 [ABC", "0 [AC", "A 100:1, C 300:3");
    deletes(2, "300|300|Line of C", "2 [ABC", "1 [AB", "A 100:1, B 200:2");
    deletes(3, "0|0|", "3 [ABC", "3 [ABC", "A 100:1, B 200:2, C 300:3"); // none at the cursor
    deletes(-1, "0|0|", "-1 [ABC", "-1 [ABC", "A 100:1, B 200:2, C 300:3");
    // The slot of a deleted last record lends a new one what is not on the screen.
    setrecords({100});
    item(0).desc3 = "Third of A";
    visit("cmdDelete:Y; cmdNew; cmdOK:Y");
    EXPECT_EQ(records() + item(0).desc3, "? 100:0 / 101 102Third of A");
    const std::int64_t state = timelinestate;
    visit("cmdDelete:Y");
    EXPECT_GT(timelinestate, state);
}

TEST_P(Editors, AKindThatNoOptionStandsForIsKept)
{
    viewonly = 0;
    setrecords({100, 200});
    item(0).datetype1 = 7;
    item(1).datetype1 = -1;
    item(1).datetype2 = approx;
    EXPECT_EQ(visit("desc=x; cmdNext:Y; ?; Option3; cmdOK:Y"),
              "Data changed: Store changed data?\n1 [AB] B|200|200|Line of B|5\nData changed: Store changed data?\n");
    EXPECT_EQ(item(0).datetype1, 7);
    EXPECT_EQ(item(1).datetype1, reign);
}

// No records, or a cursor that a failed load left outside them.
TEST_P(Editors, AStoreWithoutARecordAtTheCursorAddsOne)
{
    viewonly = 0;
    for (const auto outside : std::initializer_list<std::int16_t>{2, 5, 32767, -1}) {
        const std::string told = std::to_string(outside) + " [AB] |0|0||14\nData changed: Store changed data?\n";
        tell({100, 200}, outside, "?; Combo1=N; date1=150; cmdOK:Y", told, "A 100:1, N 150:0, B 200:2");
    }
    tell({}, 0, "Combo1=N; date1=150; cmdOK:Y", "Data changed: Store changed data?\n", "N 150:0");
}

TEST_P(Editors, AFullTimelineTakesNoMoreAndKeepsWhatWasTyped)
{
    viewonly = 0;
    setrecords(std::vector<std::int16_t>(32767, 100));
    EXPECT_EQ(visit("cmdNew; Combo1=N; cmdOK:Y; ?; cmdOK"),
              worded("New %: Store new data?\nThe timeline is full: it holds 32767 records of this kind, the most that "
                     "it can. Answer No to go on without the new one.\n0 [ABCDE] N|100|100||24\n"
                     "New %: Store new data?\n"));
    EXPECT_EQ(closedwith, "");
    EXPECT_EQ(ofpeople ? npeople : nevents, 32767);
}

} // namespace brindor
