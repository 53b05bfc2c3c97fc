#include "editors/eentry.h"
#include "editors/imgdisp.h"
#include "editors/pentry.h"
#include "support/programtest.h"

namespace brindor {

using namespace toolkit;

const std::string offered = "Data changed: Store changed data?\n";

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

    // From the dates on, what is in the fields: "1000 1005 F1<F1F2F3> <O1O2> "; "-" for a hidden one.
    static std::string look(const Screen& screen)
    {
        std::string text;
        for (const Control* control : screen.controls) {
            if (!control->visible) {
                text += "- ";
            } else if (control->kind == Kind::combo && control->name != "Combo1") {
                text += control->text + '<';
                for (const std::string& line : static_cast<const Combo*>(control)->lines) {
                    text += line;
                }
                text += "> ";
            } else if (control->kind == Kind::textbox && control->name != "desc") {
                text += control->text + ' ';
            } else if (control->kind == Kind::picture) {
                const auto& picture = static_cast<const Picture*>(control)->picture;
                text += *std::static_pointer_cast<const std::string>(picture->pixels);
            }
        }
        return text;
    }

    std::string ofperson(const std::string& story) { return visit("PEntry", showpeople, story, look); }
    std::string ofevent(const std::string& story) { return visit("eEntry", showevents, story, look); }
};

// What is typed into a Catalogue's list is ignored; what is picked is offered to be stored.
TEST_F(OwnFields, APersonsFactionOccupationAndDates)
{
    viewonly = 0;
    EXPECT_EQ(ofperson("?; cboFaction=typed; cmdNext; ?; cmdPrev; cboFaction#2; cboFaction=typed; cmdNext:Y; "
                       "cboOccupation#0; cboFaction=typed; cmdNew; ?; cmdOK:Y"),
              "1000 1005 F1<F1F2F3> <O1O2> \n1010 1015 F2<F1F2F3> O2<O1O2> \n" + offered + offered +
                  "1010 1010 F2<F1F2F3> O1<O1O2> \nNew person: Store new data?\n*");
    std::string stored;
    for (const PersonRec& person : people) {
        stored += person.name + ' ' + std::to_string(person.faction) + ' ' + std::to_string(person.occupation) + ", ";
    }
    EXPECT_EQ(stored, "Person 0 3 9, Person 1 2 2, ? 2 1,  0 0, ");
    const std::string lists = "F3<F1F2F3> <O1O2> \n";
    EXPECT_EQ(ofperson("cmdPrev; date1=500.5; date2; ?; date2=400; Option2; ?; date1=600; desc; ?"),
              "500.5 1005 " + lists + "500.5 500.5 " + lists + "600 500.5 " + lists);
}

TEST_F(OwnFields, AnEventsPictureRowFollowsTheRecordAndAFailedPictureIsTold)
{
    const std::string failed = "missing.png  53\n";
    const std::string first = "-500 -500 G1<G1G2G3> N1<N1N2N3> N1<N1N2N3> ";
    const std::string third = "-480 -480 G3<G1G2G3> N3<N1N2N3> N3<N1N2N3> ";
    EXPECT_EQ(ofevent("cmdNew; cmdDelete; ?; cmdNext; ?; cmdNext; ?; Combo1#0; ?; Combo1#2; ?; eImgName=b.png; ?"),
              "!cmdNew\n!cmdDelete\n" + first +
                  "a.png 640 480 a.png- - \n-490 -490 G2<G1G2G3> N2<N1N2N3> N2<N1N2N3>   - - - - - - \n" + failed +
                  third + "  0 0 - - - \n" + // hidden by the event before
                  first + "a.png 640 480 a.png- - \n" + failed + third + "  0 0 a.png- - \n" + // the former one stays
                  third + "b.png 0 0 a.png- - \n"); // nothing is loaded while typing
    EXPECT_EQ(events[2].imagename, "missing.png");
    events[0].imagename.clear();
    host.pictures["missing.png"] = -7;
    EXPECT_EQ(ofevent("Combo1#0; ?; Combo1#2"), "missing.png -7\n" + first + " - - - - - - \nmissing.png -7\n");
}

// The two sizes alone are not offered, the picture's name is; a new event offers the last picture; the blank that a
// failed picture leaves is stored too.
TEST_F(OwnFields, AnEventsFieldsAreStoredAndOfferedToTheNext)
{
    viewonly = 0;
    EXPECT_EQ(ofevent("Text2=12.5; Text3=99999; cboGroup#0; cboNation1#1; cboNation2#2; cmdNext:Y; cmdPrev; "
                      "Text2=1; Text3=1; cmdNext; cmdPrev; eImgName=b.png; cmdNext:Y; cmdPrev; cmdNew; cmdOK:Y"),
              offered + offered + "New event: Store new data?\n*");
    EXPECT_EQ(ofevent("Combo1#2; desc=x; cmdOK:Y"), "missing.png  53\n" + offered + "*");
    std::string stored;
    for (const EventRec& event : events) {
        stored += event.imagename;
        for (const int number : {event.imagesize1, event.imagesize2, event.group, event.nation1, event.nation2}) {
            stored += ' ' + std::to_string(number);
        }
        stored += ", ";
    }
    EXPECT_EQ(stored, "b.png 12 32767 1 2 3,   0 0 2 2 2,   0 0 3 3 3, b.png 12 32767 1 2 3,  0 0 0 0 0, ");
    EXPECT_EQ(ofevent("date1=500.5; date2; date2=400; desc; ?").substr(0, 8), "500 500 ");
}

TEST_F(OwnFields, TheViewerFillsItsWindowAndClosesUnseenWithoutAPicture)
{
    nnations = 0; // unlocks New and Delete of the events
    std::string sizes;
    host.persons["ImgDisp"] = [&](Screen& screen) {
        const auto& image = static_cast<ImgDisp&>(screen).image1;
        const std::pair<double, double> windows[] = {{12001, 9000}, {60, 5000}, {5000, 100}, {61, 101}};
        for (const auto& [width, height] : windows) { // two are too small to show anything
            userresize(screen, width, height, normal);
            sizes += std::to_string(static_cast<int>(image.place.width)) + 'x' +
                     std::to_string(static_cast<int>(image.place.height)) + (image.visible ? " " : "- ");
        }
        EXPECT_TRUE(userescape(screen));
    };
    EXPECT_EQ(ofevent("cmdDelete; Eimage; eImgName=gone.png; Eimage; cmdNew"),
              "Delete: Delete this event?\ngone.png  53\n");
    EXPECT_EQ(sizes, "11941x8900 11941x8900 11941x8900 1x1 ");
    EXPECT_EQ(host.shown, (std::vector<std::string>{"eEntry", "ImgDisp"}));
}

} // namespace brindor
