#include "editors/bdqedit.h"

#include "support/programtest.h"
#include "support/timelines.h"
#include "timeline/usedmarks.h"
#include "timeline/writer.h"

namespace brindor {

using namespace toolkit;

class BdqeditTest : public tests::ProgramTest {
protected:
    // A file of two people and two events for each period but "Classic"; "Modern" is cut in its last section.
    BdqeditTest()
    {
        tests::setnumbered(2, 2);
        for (const char* period : {"Ancient", "Medieval", "Modern"}) {
            for (PersonRec& person : people) {
                person.desc1 = period;
            }
            const std::string text = timelinetext();
            tests::writefile(std::string(period) + ".bd3",
                             std::string(period) == "Modern" ? text.substr(0, text.size() - 5) : text);
        }
    }

    void visit(const std::function<void(Bdqedit&)>& act)
    {
        host.persons["bdqedit"] = [&act](Screen& screen) {
            act(static_cast<Bdqedit&>(screen));
            userclick(static_cast<Bdqedit&>(screen).command1);
        };
        showchooser([this] { ++statistics; });
    }

    int statistics = 0;
};

TEST_F(BdqeditTest, OpeningLoadsThePeriodInForce)
{
    curperiod = 2;
    curperson = 1;
    usedmarks.assign(usedmarks.size(), 9);
    people[0].name = "changed";
    visit([this](Bdqedit& s) {
        EXPECT_EQ(s.caption, " Choose ");
        std::string options;
        for (const OptionButton& option : s.option1) {
            options += option.text + (option.selected ? "* " : " ");
        }
        EXPECT_EQ(options, "Ancient Classic Medieval* Modern ");
        EXPECT_EQ(s.left, (host.display.width - s.width) * 0.5);
        EXPECT_EQ(s.top, (host.display.height - s.height) * 0.5);
    });
    EXPECT_EQ(people[0].name + ' ' + people[0].desc1, "Person 0 Medieval");
    EXPECT_EQ(curperson, 0);
    EXPECT_EQ(usedmarks, std::vector<std::int16_t>(5, 0));
    EXPECT_EQ(curperiod, 2);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(BdqeditTest, AnotherPeriodWithGoodMissingAndBadFiles)
{
    visit([this](Bdqedit& s) {
        EXPECT_EQ(people[0].desc1, "Ancient");
        userclick(s.option1[2]);
        EXPECT_EQ(curfile + ' ' + people[0].desc1, "Medieval.bd3 Medieval");

        curperson = 1;
        userclick(s.option1[1]);
        EXPECT_EQ(curperiod, 1);
        EXPECT_TRUE(s.option1[1].selected);
        EXPECT_EQ(people[0].desc1, "Medieval"); // the old timeline stays in memory
        EXPECT_EQ(curperson, 1);
        EXPECT_EQ(host.messages.size(), 1U);

        userclick(s.option1[3]);
        EXPECT_EQ(people[0].desc1, "Modern"); // what was read stays
        EXPECT_EQ(curperson, 1);              // and so do the cursors
        EXPECT_EQ(host.messages.size(), 2U);
        EXPECT_TRUE(host.messages[1].text.ends_with(" 2 Person 1 2 Event 1")) << host.messages[1].text;
        EXPECT_FALSE(s.closed);
    });
    EXPECT_EQ(curperiod, 3);
}

TEST_F(BdqeditTest, TheEditorsKeepTheirPlaceAsLongAsTheChooserIsOpen)
{
    std::string seen;
    host.persons["PEntry"] = [&seen](Screen& screen) {
        userclick(tests::find<Button>(screen, "cmdNext"));
        seen += tests::find<Combo>(screen, "Combo1").text + ", ";
        userclick(tests::find<Button>(screen, "cmdOK"));
    };
    host.persons["eEntry"] = [&seen](Screen& screen) {
        seen += tests::find<Combo>(screen, "Combo1").text + ", ";
        userclose(screen);
    };
    visit([this](Bdqedit& s) {
        userclick(s.cmdpeople);
        EXPECT_EQ(curperson, 1);
        userclick(s.cmdevents);
        userclick(s.command2);
        userclick(s.option1[2]);
        EXPECT_EQ(curperson, 0);
        userclick(s.cmdpeople);
    });
    EXPECT_EQ(seen, "Person 1, Event 0, Person 1, ");
    EXPECT_EQ(statistics, 1);
    visit([](Bdqedit&) { EXPECT_EQ(curperson, 0); });
}

} // namespace brindor
