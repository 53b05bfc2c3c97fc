#include "editors/eentry.h"
#include "editors/imgdisp.h"
#include "editors/pentry.h"
#include "support/programtest.h"
#include "support/story.h"
#include "support/timelines.h"

namespace brindor {

using namespace toolkit;

// The fields that only one of the editors has.
class OwnFields : public tests::ProgramTest {
protected:
    OwnFields()
    {
        RecordEditor<PersonFamily>::newentry = RecordEditor<EventFamily>::newentry = 0;
        tests::setnumbered(2, 3);
        tests::setcatalogues({"F1", "F2", "F3"}, {"O1", "O2"}, {"G1", "G2", "G3"}, {"N1", "N2", "N3"});
        people[0].occupation = 9; // outside the Catalogue
        events[0].imagename = "a.png";
        events[0].imagesize1 = 640;
        events[0].imagesize2 = 480;
        events[1].imagename = " ";
        events[2].imagename = "missing.png";
        host.pictures = {{"a.png", 0}, {"b.png", 0}};
    }

    // A list's text and lines.
    static std::string all(const Combo& combo)
    {
        std::string text = combo.text + '<';
        for (const std::string& line : combo.lines) {
            text += line;
        }
        return text + "> ";
    }
    static std::string ifseen(const Control& control) { return (control.visible ? control.text : "-") + '|'; }

    template <class Editor>
    std::string visit(const std::string& story)
    {
        std::string transcript;
        host.persons["PEntry"] = host.persons["eEntry"] = [&](Screen& screen) {
            auto& s = static_cast<Editor&>(screen);
            EXPECT_TRUE(s.width <= 1024 * 15 && s.height <= 700 * 15);
            transcript = act(host, screen, story, [&] {
                const std::string dates = s.date1.text + '|' + s.date2.text + ' ';
                if constexpr (std::is_same_v<Editor, PEntry>) {
                    return dates + all(s.cbofaction) + all(s.cbooccupation);
                } else {
                    const auto& picture = s.eimage.picture;
                    return dates + all(s.cbogroup) + all(s.cbonation1) + all(s.cbonation2) + s.eimgname.text + '|' +
                           ifseen(s.label3) + ifseen(s.text2) + ifseen(s.text3) +
                           (!s.eimage.visible ? "-" : *std::static_pointer_cast<const std::string>(picture->pixels));
                }
            });
            userclose(screen);
        };
        std::is_same_v<Editor, PEntry> ? showpeople() : showevents();
        return transcript;
    }
};

// What is typed into a Catalogue's list is ignored; what is picked is offered to be stored.
TEST_F(OwnFields, APersonsFactionOccupationAndDates)
{
    viewonly = 0;
    EXPECT_EQ(visit<PEntry>("?; cboFaction=typed; cmdNext; ?; cmdPrev; cboFaction#2; cboFaction=typed; cmdNext:Y; "
                            "cboOccupation#0; cboFaction=typed; cmdNew; ?; cmdOK:Y"),
              "1000|1005 F1<F1F2F3> <O1O2> \n1010|1015 F2<F1F2F3> O2<O1O2> \nData changed: Store changed data?\n"
              "Data changed: Store changed data?\n1010|1010 F2<F1F2F3> O1<O1O2> \nNew person: Store new data?\n");
    EXPECT_EQ(people[0].faction, 3);
    EXPECT_EQ(people[0].occupation, 9);
    EXPECT_EQ(people[1].occupation, 2);
    EXPECT_EQ(people[2].name + std::to_string(people[2].faction) + std::to_string(people[2].occupation), "?21");
    const std::string lists = " F3<F1F2F3> <O1O2> \n";
    EXPECT_EQ(visit<PEntry>("cmdPrev; date1=500.5; date2; ?; date2=400; Option2; ?; date1=600; desc; ?"),
              "500.5|1005" + lists + "500.5|500.5" + lists + "600|500.5" + lists);
}

TEST_F(OwnFields, AnEventsPictureRowFollowsTheRecordAndAFailedPictureIsTold)
{
    const std::string failed = "missing.png  53\n";
    const std::string first = "-500|-500 G1<G1G2G3> N1<N1N2N3> N1<N1N2N3> ";
    const std::string third = "-480|-480 G3<G1G2G3> N3<N1N2N3> N3<N1N2N3> ";
    EXPECT_EQ(visit<EEntry>("?; cmdNext; ?; cmdNext; ?; Combo1#0; ?; Combo1#2; ?; eImgName=b.png; ?"),
              first + "a.png|Size|640|480|a.png\n-490|-490 G2<G1G2G3> N2<N1N2N3> N2<N1N2N3>  |-|-|-|-\n" + failed +
                  third + " |Size|0|0|-\n" + // hidden by the event before
                  first + "a.png|Size|640|480|a.png\n" + failed + third + " |Size|0|0|a.png\n" + // the former one stays
                  third + "b.png|Size|0|0|a.png\n"); // nothing is loaded while typing
    EXPECT_EQ(events[2].imagename, "missing.png");
    events[0].imagename.clear();
    host.pictures["missing.png"] = -7;
    EXPECT_EQ(visit<EEntry>("Combo1#0; ?; Combo1#2"), "missing.png -7\n" + first + "|-|-|-|-\nmissing.png -7\n");
}

TEST_F(OwnFields, AnEventsFieldsAreStoredAndOfferedToTheNext)
{
    const std::tuple<std::string, std::int16_t, std::int16_t> cases[] = {{"Text2=320; Text3=240", 320, 240},
                                                                         {"Text2=12.5; Text3=13.5", 12, 14},
                                                                         {"Text2=x; Text3=", 0, 0},
                                                                         {"Text2=99999; Text3=-1e9", 32767, -32768}};
    viewonly = 0;
    for (const auto& [sizes, stored1, stored2] : cases) {
        curevent = 0;
        EXPECT_EQ(visit<EEntry>(sizes + "; cboGroup#0; cboNation1#1; cboNation2#2; cmdNext:Y"),
                  "Data changed: Store changed data?\n");
        EXPECT_EQ(events[0].imagesize1, stored1);
        EXPECT_EQ(events[0].imagesize2, stored2);
    }
    EXPECT_EQ(events[0].group * 100 + events[0].nation1 * 10 + events[0].nation2, 123);
    curevent = 0; // the two sizes alone are not offered, the picture's name is; a new event offers the last picture
    EXPECT_EQ(visit<EEntry>("Text2=1; Text3=1; cmdNext; cmdPrev; eImgName=b.png; cmdNext:Y; cmdPrev; cmdNew; cmdOK:Y"),
              "Data changed: Store changed data?\nNew event: Store new data?\n");
    EXPECT_EQ(events[0].imagename + ' ' + events[3].imagename + std::to_string(events[3].imagesize1),
              "b.png b.png32767");
    curevent = 2; // the blank that a failed picture leaves is stored too
    visit<EEntry>("desc=x; cmdOK:Y");
    EXPECT_EQ(events[2].imagename, " ");
    curevent = 0;
    EXPECT_EQ(visit<EEntry>("date1=500.5; date2; date2=400; desc; ?").substr(0, 8), "500|500 ");
}

TEST_F(OwnFields, NewAndDeleteOfTheEventsAreLockedWithTheNationsAlone)
{
    EXPECT_EQ(visit<EEntry>("cmdNew; cmdDelete"), "!cmdNew\n!cmdDelete\n");
    nnations = 0;
    EXPECT_EQ(visit<EEntry>("cmdNew; cmdDelete"), "Delete: Delete this event?\n");
}

TEST_F(OwnFields, TheViewerFillsItsWindowAndClosesUnseenWithoutAPicture)
{
    std::string sizes;
    host.persons["ImgDisp"] = [&](Screen& screen) {
        const auto& image = static_cast<ImgDisp&>(screen).image1;
        const std::pair<double, double> windows[] = {{12001, 9000}, {1500, 9000}, {60, 5000}, {5000, 100}, {61, 101}};
        for (const auto& [width, height] : windows) { // two are too small to show anything
            userresize(screen, width, height, normal);
            sizes += std::to_string(static_cast<int>(image.place.width)) + 'x' +
                     std::to_string(static_cast<int>(image.place.height)) + ' ';
            EXPECT_TRUE(image.visible);
        }
        EXPECT_TRUE(userescape(screen));
    };
    EXPECT_EQ(visit<EEntry>("Eimage; eImgName=gone.png; Eimage"), "gone.png  53\n");
    EXPECT_EQ(sizes, "11941x8900 1440x8900 1440x8900 1440x8900 1x1 ");
    EXPECT_EQ(host.shown, (std::vector<std::string>{"eEntry", "ImgDisp"}));
}

} // namespace brindor
