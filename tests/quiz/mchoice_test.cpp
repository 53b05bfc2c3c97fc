#include "quiz/mchoice.h"

#include "base/random.h"
#include "questions/texts.h"
#include "support/quiztest.h"

#include <set>

namespace brindor {

using namespace toolkit;
using tests::find;

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

TEST_F(MchoiceTest, ARightAnswer)
{
    play(2, [](Mchoice& s) {
        setmarks(100);
        userpress(s.choice[static_cast<std::size_t>(s.rightchoice)]);
        EXPECT_EQ(s.askeditem, chosen[static_cast<std::size_t>(s.rightchoice)]);
        EXPECT_EQ(usedmarks[usedslot(1, s.askeditem)], 104);
    });
    EXPECT_EQ(heading, "Results for Who was?");
    EXPECT_EQ(result, " Correct, +5 pts");
    EXPECT_EQ(score, "Current score: 5 of 5  (100%)");
    EXPECT_EQ(log(), "Multiple Choice\r\n");
}

TEST_F(MchoiceTest, AWrongAnswer)
{
    std::string question;
    std::string right;
    play(12, [&](Mchoice& s) {
        setmarks(100);
        question = s.label1.text;
        right = s.choice[static_cast<std::size_t>(s.rightchoice)].text;
        userpress(s.choice[4]);
        std::vector<std::int16_t> expected(5, 100);
        expected[4] = 99;
        expected[static_cast<std::size_t>(s.rightchoice)] = 99;
        EXPECT_EQ(chosenmarks(), expected);
    });
    EXPECT_EQ(result, "Sorry, the answer was " + right);
    EXPECT_EQ(score, "Current score: 0 of 5  (0%)");
    EXPECT_EQ(heading, "Results for Which nations were involved?");
    EXPECT_EQ(log(), "Multiple Choice\r\n" + question + ' ' + right + "\r\n");
}

TEST_F(MchoiceTest, TheScreenShowsTheQuestion)
{
    const std::int16_t types[] = {1, 2, 7, 8, 12};
    for (const std::int16_t type : types) {
        play(type, [type](Mchoice& s) {
            EXPECT_EQ(s.label1.text, paramname(questionline, s.askeditem, 0));
            for (std::size_t i = 0; i < 5; ++i) {
                EXPECT_EQ(s.choice[i].text, paramname(itemtext, chosen[i], 0));
                EXPECT_FALSE(s.choice[i].selected);
            }
            EXPECT_EQ(isperson, type <= 6 ? 1 : 0);
            EXPECT_EQ(s.frame1.place, (Place{40, 25, s.width - 80, s.height - 50}));
            EXPECT_EQ(s.choice[2].place.width, s.width - 480);
            userclose(s);
        });
    }
}

// What leaves the question unanswered changes nothing but what the draw has done.
TEST_F(MchoiceTest, SkipCloseHelpAndKeyboardDoNotAnswer)
{
    const std::function<void(Mchoice&)> acts[] = {
        [](Mchoice& s) { userclick(s.command1); },
        [](Mchoice& s) { userclose(s); },
        [this](Mchoice& s) {
            userclick(s.cmdhelp);
            EXPECT_EQ(host.messages.back().text,
                      "Click on the best description.\r\nClick on skip to move to the next question");
            EXPECT_FALSE(s.closed);
            userclick(s.choice[1]); // as a keyboard selects
            EXPECT_TRUE(s.choice[1].selected);
            EXPECT_FALSE(userreturn(s));
            EXPECT_FALSE(userescape(s));
            EXPECT_FALSE(s.closed);
            userclick(s.command1);
        },
    };
    for (const auto& act : acts) {
        play(7, [&act](Mchoice& s) {
            setmarks(50);
            act(s);
            EXPECT_EQ(chosenmarks(), std::vector<std::int16_t>(5, 50));
        });
    }
    EXPECT_EQ(host.shown, std::vector<std::string>(3, "mchoice"));
    EXPECT_EQ(log(), "Multiple Choice\r\nMultiple Choice\r\nMultiple Choice\r\n");
}

TEST_F(MchoiceTest, TheRightChoiceIsAnyOfTheFirstFour)
{
    std::vector<int> counts(5);
    for (int i = 0; i < 400; ++i) {
        play(1, [&counts](Mchoice& s) {
            ++counts[static_cast<std::size_t>(s.rightchoice)];
            userclose(s);
        });
    }
    EXPECT_EQ(counts[4], 0);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_GT(counts[i], 60); // 100 expected, standard deviation below 9
    }
}

} // namespace brindor
