#include "quiz/mchoice.h"

#include "frame/services/placement.h"
#include "support/quiztest.h"

#include <set>

namespace brindor {

using namespace toolkit;

class MchoiceTest : public tests::QuizTest {
protected:
    MchoiceTest() { tests::setnumbered(20, 20); }

    // Plays one question; `act` does what the person does on its screen.
    void play(std::int16_t type, const std::function<void(Mchoice&)>& act)
    {
        qtype = type;
        host.persons["mchoice"] = [&act](Screen& screen) { act(static_cast<Mchoice&>(screen)); };
        playmchoice();
    }
};

TEST_F(MchoiceTest, AnswersAgainstResultScoreMarksAndLog)
{
    play(2, [](Mchoice& s) {
        EXPECT_EQ(s.label1.text, "Who was " + people[static_cast<std::size_t>(s.askeditem)].name);
        for (std::size_t i = 0; i < 5; ++i) {
            const PersonRec& person = people[static_cast<std::size_t>(chosen[i])];
            EXPECT_EQ(s.choice[i].text, person.desc1 + ' ' + person.desc2);
        }
        setmarks(100);
        userpress(s.choice[static_cast<std::size_t>(s.rightchoice)]);
        EXPECT_EQ(s.askeditem, chosen[static_cast<std::size_t>(s.rightchoice)]);
        EXPECT_EQ(usedmarks[usedslot(1, s.askeditem)], 104);
    });
    EXPECT_EQ(heading + '|' + result + '|' + score + '|' + log(),
              "Results for Who was?| Correct, +5 pts|Current score: 5 of 5  (100%)|Multiple Choice\r\n");
    std::set<int> places; // of the right choice: any of the first four
    for (int wrong = 1; wrong <= 60; ++wrong) {
        std::string question;
        std::string right;
        const std::string before = log();
        play(12, [&](Mchoice& s) {
            setmarks(100);
            places.insert(s.rightchoice);
            question = s.label1.text;
            right = s.choice[static_cast<std::size_t>(s.rightchoice)].text;
            userpress(s.choice[4]);
            std::vector<std::int16_t> expected(5, 100);
            expected[4] = expected[static_cast<std::size_t>(s.rightchoice)] = 99;
            EXPECT_EQ(chosenmarks(), expected);
        });
        EXPECT_EQ(heading + '|' + result, "Results for Which nations were involved?|Sorry, the answer was " + right);
        EXPECT_EQ(score, "Current score: 5 of " + std::to_string(5 + 5 * wrong) + "  (" +
                             std::to_string(100 / (1 + wrong)) + "%)"); // rounded down
        EXPECT_EQ(log(), before + "Multiple Choice\r\n" + question + ' ' + right + "\r\n");
    }
    EXPECT_EQ(places, (std::set<int>{0, 1, 2, 3}));
}

// The size is stored in 16 bits unless the screen is maximised, no other row is touched, and the frame stays in the
// middle; its contents take the left edge that it had before.
TEST_F(MchoiceTest, KeepsItsSizeAndFillsItsWindow)
{
    const std::tuple<double, double, std::int16_t, int, int, int> steps[] = {{12001.5, 9001.5, normal, 0, 9002, 12002},
                                                                             {57600, 32400, minimised, 1, 32400, 32767},
                                                                             {14000, 9000, maximised, 1, 32400, 32767}};
    placements[0] = {2, 77, 5001, 6001};
    play(1, [&](Mchoice& s) {
        EXPECT_EQ(s.width * 10 + s.height + s.windowstate, 65013);
        EXPECT_EQ(s.left + s.top, (15360 - 6001) * 0.5 + (11520 - 5001) * 0.5);
        for (const auto& [width, height, state, keptstate, keptheight, keptwidth] : steps) {
            userresize(s, width, height, state);
            const FormPlacement& kept = placements[0];
            EXPECT_EQ(kept.windowstate * 10 + kept.height, keptstate * 10 + keptheight);
            EXPECT_EQ(kept.width + kept.backcolor, keptwidth + 192 + 256 * 255 + 65536 * 192);
            EXPECT_EQ(s.frame1.place, (Place{40, 25, s.width - 80, s.height - 50}));
            for (const Control* control : s.controls) {
                if (control->kind == Kind::optionbutton || control->kind == Kind::label) {
                    EXPECT_EQ(control->place.left, 140);
                    EXPECT_EQ(control->place.width, s.width - 480);
                }
            }
        }
        placements[0] = {0, 77, 5001, 6001};
        placeform(s, mchoicerow, restoreplacement); // stores nothing on its way
        placeform(s, -1, storeplacement);
        placeform(s, 11, restoreplacement);
        EXPECT_EQ(s.width * 10 + s.height + s.windowstate, 65011);
        EXPECT_EQ(placements[0].backcolor + placements[1].width + placements[10].width, 24077);
        userclose(s);
    });
}

// What leaves the question unanswered changes nothing but what the draw has done. A keyboard selects with a click.
TEST_F(MchoiceTest, SkipCloseHelpAndKeyboardDoNotAnswer)
{
    const std::string help =
        "Click on the best description.\r\nClick on skip to move to the next question\n!return\n!esc\n";
    for (const auto& [story, told] : std::initializer_list<std::pair<std::string, std::string>>{
             {"Command1", ""}, {"", ""}, {"cmdhelp; choice(1); return; esc; Command1", help}}) {
        play(7, [&, &story = story, &told = told](Mchoice& s) {
            setmarks(50);
            EXPECT_EQ(act(host, s, story), told);
            EXPECT_EQ(s.choice[1].selected, !told.empty());
            EXPECT_EQ(s.closed, !story.empty());
            EXPECT_EQ(chosenmarks(), std::vector<std::int16_t>(5, 50));
            userclose(s);
        });
    }
    EXPECT_EQ(host.shown, std::vector<std::string>(3, "mchoice")); // no score screen
    EXPECT_EQ(log(), "Multiple Choice\r\nMultiple Choice\r\nMultiple Choice\r\n");
}

} // namespace brindor
