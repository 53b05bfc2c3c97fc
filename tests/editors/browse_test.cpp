#include "editortest.h"
#include "timeline/writer.h"

#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

namespace brindor {

using namespace toolkit;

// Browse mode, as every start sets it, the same in both editors.
template <class Twin>
class Browsing : public tests::EditorTest<Twin> {
};
TYPED_TEST_SUITE(Browsing, tests::Twins);

TYPED_TEST(Browsing, NothingTypedIsKept)
{
    this->setrecords({100, 200});
    this->visit([&](auto& s) {
        EXPECT_EQ(s.caption, TypeParam::caption);
        EXPECT_LE(s.width, 1024 * 15);
        EXPECT_LE(s.height, 700 * 15);
        EXPECT_FALSE(userclick(s.cmdnew));
        EXPECT_FALSE(userclick(s.cmddelete));
        EXPECT_FALSE(s.cmdnew.visible || s.cmdnew.enabled || s.cmddelete.visible || s.cmddelete.enabled);
        usertype(s.combo1, "N");
        usertype(s.date1, "5");
        usertype(s.date2, "5");
        usertype(s.desc, "other");
        userclick(s.option[2]);
        userclick(s.option[5]);
        userclick(s.cmdnext);
        EXPECT_EQ(this->shown(s), "B|200|200|Line of B");
        EXPECT_TRUE(s.option[0].selected);
        userclick(s.cmdprev);
        EXPECT_EQ(this->shown(s), "A|100|100|Line of A");
        EXPECT_TRUE(userescape(s));
    });
    EXPECT_EQ(this->said(), "");
    EXPECT_EQ(this->records(), "A 100:1, B 200:2 / 101 102");
}

TYPED_TEST(Browsing, TheEndsOfTheList)
{
    this->setrecords({100, 200});
    this->visit([&](auto& s) {
        userclick(s.cmdprev);
        EXPECT_EQ(this->said(), "Brindor Trivia Game: First in list\n");
        userclick(s.cmdnext);
        EXPECT_EQ(this->said(), "");
        userclick(s.cmdnext);
        EXPECT_EQ(this->said(), "Brindor Trivia Game: Last in list\n");
        EXPECT_EQ(s.combo1.text, "B");
    });
    EXPECT_EQ(TypeParam::Family::cursor(), 1);
    this->visit([](auto& s) { EXPECT_EQ(s.combo1.text, "B"); }); // the cursor outlives the screen

    this->setrecords({});
    this->visit([&](auto& s) {
        EXPECT_EQ(this->shown(s), "|0|0|");
        EXPECT_TRUE(s.combo1.lines.empty());
        userclick(s.cmdnext);
        userclick(s.cmdprev);
    });
    EXPECT_EQ(this->said(), "Brindor Trivia Game: Last in list\nBrindor Trivia Game: First in list\n");
}

TYPED_TEST(Browsing, DatesFollowTheRulesOfTheEditor)
{
    this->setrecords({100});
    const bool person = std::is_same_v<TypeParam, tests::People>;
    this->visit([&](auto& s) {
        usertype(s.date1, "500.5");
        userfocus(s.date2);
        EXPECT_EQ(s.date1.text, person ? "500.5" : "500");
        usertype(s.date2, "400");
        userclick(s.option[1]);
        EXPECT_EQ(s.date2.text, person ? "500.5" : "500");
        usertype(s.date1, "600");
        userfocus(s.desc);
        EXPECT_EQ(s.date2.text, person ? "500.5" : "500"); // the first date does not look at the second
    });
}

// Someone who does whatever comes to mind with whatever is on the screen.
void actatrandom(Screen& screen)
{
    const std::string text =
        *rc::gen::element<std::string>("", " ", "?", "-5", "1066.5", "1e30", "&HFFFF", "99999", "one\r\ntwo", "x.png");
    Control& control = *screen.controls[*rc::gen::inRange<std::size_t>(0, screen.controls.size())];
    switch (control.kind) {
    case Kind::button:
        userclick(static_cast<Button&>(control));
        break;
    case Kind::optionbutton:
        userclick(static_cast<OptionButton&>(control));
        break;
    case Kind::textbox:
        usertype(static_cast<TextBox&>(control), text);
        break;
    case Kind::combo:
        if (!userpick(static_cast<Combo&>(control), *rc::gen::inRange<std::int16_t>(0, 5))) {
            usertype(static_cast<Combo&>(control), text);
        }
        break;
    case Kind::picture:
        userclick(static_cast<Picture&>(control));
        break;
    default:
        userfocus(control);
    }
}

template <class Twin>
class AnyBrowsing : public tests::EditorTest<Twin> {
protected:
    void browse()
    {
        tests::setnumbered(3, 3);
        for (EventRec& event : events) {
            event.imagename = "there.png";
        }
        this->host.pictures["there.png"] = 0;
        this->host.persons["ImgDisp"] = [](Screen& screen) { userclose(screen); };
        const std::string before = timelinetext();
        const std::vector<std::int16_t> marks = usedmarks;
        this->host.answers.assign(100, true);
        const int acts = *rc::gen::inRange(0, 60);
        this->visit([acts](Screen& screen) {
            for (int i = 0; i < acts && !screen.closed; ++i) {
                actatrandom(screen);
            }
        });
        RC_ASSERT(timelinetext() == before);
        RC_ASSERT(people.size() == 5U);
        RC_ASSERT(events.size() == 5U);
        RC_ASSERT(usedmarks == marks);
    }
};
using AnyBrowsingOfPeople = AnyBrowsing<tests::People>;
using AnyBrowsingOfEvents = AnyBrowsing<tests::Events>;

RC_GTEST_FIXTURE_PROP(AnyBrowsingOfPeople, LeavesTheTimelineAlone, ())
{
    browse();
}

RC_GTEST_FIXTURE_PROP(AnyBrowsingOfEvents, LeavesTheTimelineAlone, ())
{
    browse();
}

} // namespace brindor
