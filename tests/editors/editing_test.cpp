#include "editortest.h"

#include <algorithm>

namespace brindor {

using namespace toolkit;

// Editing mode, the same in both editors.
template <class Twin>
class Editing : public tests::EditorTest<Twin> {
protected:
    Editing() { viewonly = 0; }

    static constexpr const char* storequestion = "Data changed: Store changed data?\n";
    static std::string newquestion() { return std::string(Twin::newtitle) + ": Store new data?\n"; }
};
TYPED_TEST_SUITE(Editing, tests::Twins);

TYPED_TEST(Editing, OffersToStoreWhatChanged)
{
    const std::function<void(typename TypeParam::Editor&)> changes[] = {
        [](auto& s) { usertype(s.date1, "5"); }, [](auto& s) { usertype(s.date2, "5"); },
        [](auto& s) { usertype(s.desc, "other"); }, [](auto& s) { userclick(s.option[0]); },
        [](auto& s) { userclick(s.option[5]); }};
    for (const auto& change : changes) {
        this->setrecords({100, 200});
        this->visit([&](auto& s) {
            userclick(s.cmdnext);
            EXPECT_EQ(this->said(), "");
            change(s);
            userclick(s.cmdprev);
            EXPECT_EQ(this->said(), this->storequestion);
            EXPECT_EQ(this->shown(s), "A|100|100|Line of A");
        });
        EXPECT_EQ(this->records(), "A 100:1, B 200:2 / 101 102"); // the answer was No
    }
    this->visit([&](auto& s) {
        usertype(s.desc, "other");
        userpick(s.combo1, 1); // a click in the list drops the change
        EXPECT_EQ(this->shown(s), "B|200|200|Line of B");
        usertype(s.combo1, "other"); // alone no reason to ask
        userclick(s.cmdok);
        EXPECT_TRUE(s.closed);
        EXPECT_EQ(this->said(), "");
    });
}

TYPED_TEST(Editing, StoresEveryField)
{
    this->setrecords({100, 200});
    this->host.answers = {true};
    this->visit([](auto& s) {
        usertype(s.combo1, "Name");
        usertype(s.date1, "100.4");
        usertype(s.date2, "13.5e1");
        usertype(s.desc, "First\r\nSecond\r\nThird");
        userclick(s.option[1]);
        userclick(s.option[5]);
        userclick(s.cmdnext);
        EXPECT_EQ(s.combo1.text, "B");
        EXPECT_EQ(s.combo1.lines[0], "A"); // not moved: the list keeps the old name
    });
    const auto& record = TypeParam::Family::record(0);
    EXPECT_EQ(record.name, "Name");
    EXPECT_EQ(record.date1, 100);
    EXPECT_EQ(record.date2, 135);
    EXPECT_EQ(record.datetype1, approx);
    EXPECT_EQ(record.datetype2, reign);
    EXPECT_EQ(record.desc1, "First");
    EXPECT_EQ(record.desc2, "Second\r\nThird");
    EXPECT_EQ(this->said(), this->storequestion);
}

TYPED_TEST(Editing, DescriptionsThereAndBack)
{
    const struct {
        const char* typed;
        const char* desc1;
        const char* desc2;
        const char* shown;
    } cases[] = {{"one", "one", " ", "one\r\n "},
                 {"one\r\ntwo", "one", "two", "one\r\ntwo"},
                 {"one\r\n", "one", "", "one"},
                 {"one\r", "one", "", "one"},
                 {"", "", " ", "\r\n "},
                 {"\r\ntwo", "", "two", "\r\ntwo"},
                 {"one\r\n\r\nx", "one", "\r\nx", "one\r\n\r\nx"}};
    for (const auto& c : cases) {
        this->setrecords({100});
        this->host.answers = {true};
        this->visit([&](auto& s) {
            usertype(s.desc, c.typed);
            userclick(s.cmdnext);
            userpick(s.combo1, 0);
            EXPECT_EQ(s.desc.text, c.shown);
        });
        EXPECT_EQ(TypeParam::Family::record(0).desc1, c.desc1);
        EXPECT_EQ(TypeParam::Family::record(0).desc2, c.desc2);
    }
}

TYPED_TEST(Editing, AChangedDateMovesTheRecord)
{
    const struct {
        std::vector<std::int16_t> dates;
        std::int16_t k;
        const char* date;
        const char* records;
    } cases[] = {{{100, 200, 300}, 0, "250", "B 200:2, A 250:1, C 300:3"},
                 {{100, 200, 300}, 0, "200", "B 200:2, A 200:1, C 300:3"}, // behind all of the same date
                 {{100, 200, 300}, 2, "100", "A 100:1, C 100:3, B 200:2"},
                 {{100, 200, 300}, 2, "50", "C 50:3, A 100:1, B 200:2"},
                 {{100, 200, 300}, 0, "900", "B 200:2, C 300:3, A 900:1"},
                 {{100, 200, 300}, 1, "150", "A 100:1, B 150:2, C 300:3"},
                 {{100, 200, 300}, 1, "200", "A 100:1, B 200:2, C 300:3"},  // unchanged: not moved
                 {{300, 200, 100}, 1, "200", "A 300:1, B 200:2, C 100:3"},  // nor sorted
                 {{300, 200, 100}, 1, "400", "C 100:3, A 300:1, B 400:2"},  // one pass brings the lowest to the front
                 {{100, 100, 100}, 0, "99.5", "A 100:1, B 100:2, C 100:3"}, // 99.5 is stored as 100
                 {{100}, 0, "-5", "A -5:1"}};
    for (const auto& c : cases) {
        this->setrecords(c.dates);
        TypeParam::Family::cursor() = c.k;
        this->host.answers = {true};
        this->visit([&](auto& s) {
            usertype(s.date1, c.date);
            usertype(s.desc, "changed");
            userclick(s.cmdprev);
            EXPECT_EQ(TypeParam::Family::cursor(), std::max(c.k - 1, 0)); // the cursor kept its number
            for (std::size_t i = 0; i < c.dates.size(); ++i) {
                EXPECT_EQ(s.combo1.lines[i], TypeParam::Family::records()[i].name);
            }
        });
        EXPECT_EQ(this->records(), std::string(c.records) + " / 101 102") << c.date;
    }
}

TYPED_TEST(Editing, ANewRecordStartsFromTheOneBefore)
{
    this->setrecords({100, 200});
    TypeParam::Family::records()[1].date2 = 250;
    TypeParam::Family::records()[1].datetype2 = reign;
    TypeParam::Family::cursor() = 1;
    this->visit([&](auto& s) {
        userclick(s.cmdnew);
        EXPECT_EQ(this->shown(s), "?|200|200|");
        EXPECT_TRUE(s.option[1].selected);
        EXPECT_TRUE(s.option[5].selected);
        userclick(s.cmdnext); // the answer is No
        EXPECT_EQ(this->said(), this->newquestion() + "Brindor Trivia Game: Last in list\n");
        EXPECT_EQ(this->shown(s), "|200|200|");
        userclick(s.cmdnext); // not asked again
        EXPECT_EQ(this->said(), "Brindor Trivia Game: Last in list\n");
    });
    EXPECT_EQ(this->records(), "A 100:1, B 200:2 / 101 102");
}

TYPED_TEST(Editing, ANewRecordGoesToItsPlace)
{
    const struct {
        const char* date; // null: as offered
        const char* records;
    } cases[] = {{nullptr, "A 100:1, B 200:2, C 300:3, N 100:0"}, // at the end, against the order
                 {"250", "A 100:1, B 200:2, N 250:0, C 300:3"},
                 {"200", "A 100:1, B 200:2, N 200:0, C 300:3"},
                 {"5", "N 5:0, A 100:1, B 200:2, C 300:3"},
                 {"900", "A 100:1, B 200:2, C 300:3, N 900:0"}};
    for (const auto& c : cases) {
        this->setrecords({100, 200, 300});
        this->host.answers = {true};
        this->visit([&](auto& s) {
            userclick(s.cmdnew);
            usertype(s.combo1, "N");
            if (c.date != nullptr) {
                usertype(s.date1, c.date);
            }
            userclick(s.cmdnext);
            EXPECT_EQ(s.combo1.lines.size(), 4U);
        });
        EXPECT_EQ(this->records(), std::string(c.records) + " / 101 102");
        EXPECT_EQ(TypeParam::Family::cursor(), 1);
        EXPECT_EQ(TypeParam::Family::records().size(), 5U); // one slot behind the last
        for (std::int16_t i = 0; i < 4; ++i) {
            EXPECT_EQ(TypeParam::Family::record(i).live, TypeParam::Family::record(i).name == "N" ? -1 : 1);
        }
    }
}

TYPED_TEST(Editing, APendingRecordOutlivesTheTitleBarsClose)
{
    this->setrecords({100, 200});
    this->visit([](auto& s) {
        userclick(s.cmdnew);
        EXPECT_FALSE(userescape(s)); // nothing typed is lost by a key
    });
    EXPECT_EQ(this->said(), "");
    this->host.answers = {true};
    this->visit([&](auto& s) {
        EXPECT_EQ(this->shown(s), "A|100|100|Line of A");
        userclick(s.cmdnext);
        EXPECT_EQ(this->said(), this->newquestion());
    });
    EXPECT_EQ(this->records(), "A 100:1, B 200:2, A 100:0 / 101 102");
}

TYPED_TEST(Editing, DeletesAtEveryPosition)
{
    const struct {
        std::int16_t k;
        std::int16_t cursorafter;
        const char* records;
    } cases[] = {{0, 0, "B 200:2, C 300:3"}, {1, 0, "A 100:1, C 300:3"}, {2, 1, "A 100:1, B 200:2"}};
    for (const auto& c : cases) {
        this->setrecords({100, 200, 300});
        TypeParam::Family::cursor() = c.k;
        this->host.answers = {false, true};
        this->visit([&](auto& s) {
            const std::string fields = this->shown(s).substr(1);
            userclick(s.cmddelete); // No
            EXPECT_EQ(s.combo1.lines.size(), 3U);
            EXPECT_EQ(this->shown(s), fields); // the name box is empty after either answer
            userclick(s.cmddelete);
            EXPECT_EQ(s.combo1.lines.size(), 2U);
            EXPECT_EQ(this->shown(s), fields);
            const std::string question = std::string("Delete: ") + TypeParam::deletequestion + '\n';
            EXPECT_EQ(this->said(), question + question);
        });
        EXPECT_EQ(this->records(), std::string(c.records) + " / 101 102") << c.k;
        EXPECT_EQ(TypeParam::Family::cursor(), c.cursorafter) << c.k;
    }
    // The slot of a deleted last record lends a new one what is not on the screen.
    this->setrecords({100});
    TypeParam::Family::records()[0].desc3 = "Third of A";
    this->host.answers = {true, true};
    this->visit([this](auto& s) {
        userclick(s.cmddelete);
        EXPECT_EQ(this->records(), " / 101 102");
        userclick(s.cmdnew);
        userclick(s.cmdok);
    });
    EXPECT_EQ(this->records(), "? 100:0 / 101 102");
    EXPECT_EQ(TypeParam::Family::record(0).desc3, "Third of A");
}

TYPED_TEST(Editing, AKindThatNoOptionStandsForIsKept)
{
    this->setrecords({100, 200});
    TypeParam::Family::records()[0].datetype1 = 7;
    TypeParam::Family::records()[1].datetype1 = -1;
    TypeParam::Family::records()[1].datetype2 = approx;
    this->host.answers = {true, true};
    this->visit([](auto& s) {
        usertype(s.desc, "x");
        userclick(s.cmdnext);
        EXPECT_FALSE(s.option[0].selected || s.option[1].selected || s.option[2].selected);
        EXPECT_TRUE(s.option[4].selected);
        userclick(s.option[2]);
        userclick(s.cmdok);
    });
    EXPECT_EQ(TypeParam::Family::record(0).datetype1, 7);
    EXPECT_EQ(TypeParam::Family::record(1).datetype1, reign);
}

// No records, or a cursor that a failed load left outside them: a store adds what is on the screen.
TYPED_TEST(Editing, NoRecordAtTheCursor)
{
    const struct {
        std::vector<std::int16_t> dates;
        std::int16_t cursor;
        const char* records;
    } cases[] = {{{}, 0, "N 150:0"},
                 {{100, 200}, 5, "A 100:1, N 150:0, B 200:2"},
                 {{100, 200}, 32767, "A 100:1, N 150:0, B 200:2"},
                 {{100, 200}, -1, "A 100:1, N 150:0, B 200:2"}};
    for (const auto& c : cases) {
        this->setrecords(c.dates);
        TypeParam::Family::cursor() = c.cursor;
        this->host.answers = {true};
        this->visit([&](auto& s) {
            EXPECT_EQ(this->shown(s), "|0|0|");
            usertype(s.combo1, "N");
            usertype(s.date1, "150");
            userclick(s.cmdok);
        });
        EXPECT_EQ(this->records(), std::string(c.records) + " / 101 102");
    }
}

TYPED_TEST(Editing, AFullTimelineTakesNoMore)
{
    this->setrecords(std::vector<std::int16_t>(32767, 100));
    this->host.answers = {true, false};
    this->visit([&](auto& s) {
        userclick(s.cmdnew);
        usertype(s.combo1, "N");
        userclick(s.cmdok);
        EXPECT_FALSE(s.closed);
        EXPECT_EQ(this->shown(s), "N|100|100|"); // what was typed stays
        EXPECT_EQ(this->said(), this->newquestion() +
                                    "Brindor Trivia Game: The timeline is full: it holds 32767 records of this kind, "
                                    "the most that it can. Answer No to go on without the new one.\n");
        userclick(s.cmdok);
        EXPECT_TRUE(s.closed);
    });
    EXPECT_EQ(TypeParam::Family::count(), 32767);
    EXPECT_EQ(TypeParam::Family::records().size(), 32769U);
}

} // namespace brindor
