#include "editortest.h"

#include "editors/imgdisp.h"

namespace brindor {

using namespace toolkit;

// The fields that only one of the editors has.
class PEntryTest : public tests::EditorTest<tests::People> {};

TEST_F(PEntryTest, FactionAndOccupation)
{
    setrecords({100, 200});
    people[0].faction = 2;
    people[0].occupation = 9; // outside the Catalogue
    viewonly = 0;
    visit([this](PEntry& s) {
        EXPECT_EQ(s.cbofaction.lines, (std::vector<std::string>{"Faction 1", "Faction 2", "Faction 3"}));
        EXPECT_EQ(s.cbooccupation.lines.size(), 3U);
        EXPECT_EQ(s.cbofaction.text + '|' + s.cbooccupation.text, "Faction 2|");
        usertype(s.cbofaction, "typed");
        userclick(s.cmdnext);
        EXPECT_EQ(said(), ""); // what is typed there is ignored
        EXPECT_EQ(s.cbofaction.text, "");
        userclick(s.cmdprev);
        userpick(s.cbofaction, 2);
        usertype(s.cbofaction, "typed");
        host.answers = {true};
        userclick(s.cmdnext);
        EXPECT_EQ(said(), "Data changed: Store changed data?\n");
        userpick(s.cbooccupation, 0);
        usertype(s.cbofaction, "typed");
        userclick(s.cmdnew); // No; then the texts of what was picked last
        EXPECT_EQ(s.cbofaction.text + '|' + s.cbooccupation.text, "|Occupation 1");
        host.answers = {true};
        userclick(s.cmdok);
    });
    EXPECT_EQ(people[0].faction, 3);
    EXPECT_EQ(people[0].occupation, 9);
    EXPECT_EQ(people[1].occupation, 0);
    EXPECT_EQ(people[2].name + std::to_string(people[2].occupation), "?1");
}

class EEntryTest : public tests::EditorTest<tests::Events> {
protected:
    EEntryTest()
    {
        setrecords({100, 200, 300});
        events[0].imagename = "a.png";
        events[0].imagesize1 = 640;
        events[0].imagesize2 = 480;
        events[1].imagename = " ";
        events[2].imagename = "missing.png";
        host.pictures = {{"a.png", 0}, {"b.png", 0}};
    }

    static std::string picturerow(const EEntry& s)
    {
        const auto field = [](const Control& control) { return control.visible ? control.text : "-"; };
        return s.eimgname.text + '|' + field(s.label3) + '|' + field(s.text2) + '|' + field(s.text3) + '|' +
               (!s.eimage.visible   ? "-"
                : !s.eimage.picture ? "none"
                                    : *std::static_pointer_cast<const std::string>(s.eimage.picture->pixels));
    }
};

TEST_F(EEntryTest, ThePictureRow)
{
    const std::string failed = "Brindor Trivia Game: missing.png  53\n";
    visit([&](EEntry& s) {
        EXPECT_EQ(picturerow(s), "a.png|Size|640|480|a.png");
        userclick(s.cmdnext);
        EXPECT_EQ(picturerow(s), " |-|-|-|-");
        userclick(s.cmdnext);
        EXPECT_EQ(picturerow(s), " |Size|0|0|-"); // hidden by the event before
        EXPECT_EQ(said(), failed);
        userpick(s.combo1, 0);
        EXPECT_EQ(picturerow(s), "a.png|Size|640|480|a.png");
        userpick(s.combo1, 2);
        EXPECT_EQ(picturerow(s), " |Size|0|0|a.png"); // the former picture stays
        EXPECT_EQ(said(), failed);
        usertype(s.eimgname, "b.png");
        EXPECT_EQ(picturerow(s), "b.png|Size|0|0|a.png"); // nothing is loaded while typing
        events[1].imagename.clear();
        userpick(s.combo1, 1);
        EXPECT_EQ(picturerow(s), "|-|-|-|-");
        host.pictures["missing.png"] = -7;
        userpick(s.combo1, 2);
        EXPECT_EQ(said(), "Brindor Trivia Game: missing.png -7\n");
    });
    EXPECT_EQ(events[2].imagename, "missing.png");
}

TEST_F(EEntryTest, StoresItsOwnFields)
{
    const struct {
        const char* size1;
        const char* size2;
        std::int16_t stored1;
        std::int16_t stored2;
    } cases[] = {{"320", "240", 320, 240}, {"12.5", "13.5", 12, 14}, {"x", "", 0, 0}, {"99999", "-1e9", 32767, -32768}};
    viewonly = 0;
    for (const auto& c : cases) {
        curevent = 0;
        host.answers = {true};
        visit([&](EEntry& s) {
            EXPECT_EQ(s.cbogroup.lines, (std::vector<std::string>{"Group 1", "Group 2", "Group 3"}));
            EXPECT_EQ(s.cbonation1.lines, (std::vector<std::string>{"Nation 1", "Nation 2", "Nation 3"}));
            EXPECT_EQ(s.cbonation2.lines, s.cbonation1.lines);
            userpick(s.cbogroup, 0);
            userpick(s.cbonation1, 1);
            userpick(s.cbonation2, 2);
            usertype(s.text2, c.size1);
            usertype(s.text3, c.size2);
            userclick(s.cmdnext);
            userclick(s.cmdprev);
            EXPECT_EQ(s.cbogroup.text + s.cbonation1.text + s.cbonation2.text, "Group 1Nation 2Nation 3");
        });
        EXPECT_EQ(events[0].imagesize1, c.stored1);
        EXPECT_EQ(events[0].imagesize2, c.stored2);
    }
    EXPECT_EQ(events[0].imagename, "a.png");
}

TEST_F(EEntryTest, WhichChangesCount)
{
    viewonly = 0;
    curevent = 0;
    visit([this](EEntry& s) {
        usertype(s.text2, "1");
        usertype(s.text3, "1");
        userclick(s.cmdnext);
        EXPECT_EQ(said(), "");
        usertype(s.eimgname, "b.png");
        host.answers = {true};
        userclick(s.cmdprev);
        EXPECT_EQ(said(), "Data changed: Store changed data?\n");
    });
    EXPECT_EQ(events[1].imagename, "b.png");
}

TEST_F(EEntryTest, ANewEventOffersThePictureOfTheOneBefore)
{
    viewonly = 0;
    host.answers = {true};
    visit([](EEntry& s) {
        userclick(s.cmdnew);
        userclick(s.cmdok);
    });
    EXPECT_EQ(events[3].imagename + ' ' + std::to_string(events[3].imagesize1), "a.png 640");
    // The blank that a failed picture leaves is stored too.
    curevent = 2;
    host.answers = {true};
    visit([](EEntry& s) {
        usertype(s.desc, "x");
        userclick(s.cmdok);
    });
    EXPECT_EQ(events[2].imagename, " ");
}

TEST_F(EEntryTest, WithoutANationNewAndDeleteStay)
{
    tests::setcatalogues({}, {}, {"Group 1"}, {});
    visit([](EEntry& s) { EXPECT_TRUE(s.cmdnew.visible && s.cmdnew.enabled && s.cmddelete.visible); });
}

TEST_F(EEntryTest, TheViewer)
{
    host.persons["ImgDisp"] = [](Screen& screen) {
        const auto& viewer = static_cast<ImgDisp&>(screen);
        const auto size = [&viewer] {
            EXPECT_TRUE(viewer.image1.visible);
            return std::pair(viewer.image1.place.width, viewer.image1.place.height);
        };
        EXPECT_EQ(viewer.caption, "");
        EXPECT_EQ(size(), std::pair(screen.width - 60, screen.height - 100));
        userresize(screen, 1500, 9000, normal);
        EXPECT_EQ(size(), std::pair(1440.0, 8900.0));
        userresize(screen, 60, 5000, normal);
        userresize(screen, 5000, 100, normal);
        EXPECT_EQ(size(), std::pair(1440.0, 8900.0)); // too small to show anything
        userresize(screen, 61, 101, normal);
        EXPECT_EQ(size(), std::pair(1.0, 1.0));
        EXPECT_TRUE(userescape(screen));
    };
    visit([this](EEntry& s) {
        userclick(s.eimage);
        EXPECT_EQ(viewimagename, "a.png");
        usertype(s.eimgname, "gone.png");
        userclick(s.eimage);
        EXPECT_EQ(said(), "Brindor Trivia Game: gone.png  53\n");
        EXPECT_FALSE(s.closed);
    });
    EXPECT_EQ(host.shown, (std::vector<std::string>{"eEntry", "ImgDisp"}));
}

} // namespace brindor
