#include "quiz/qmatch.h"

#include "base/random.h"
#include "frame/services/log.h"
#include "frame/services/score.h"
#include "frame/services/settings.h"
#include "support/quiztest.h"

#include <algorithm>
#include <map>

namespace brindor {

using namespace toolkit;

namespace {

// A drop of a bar on a position.
using Drops = std::vector<std::pair<std::size_t, std::size_t>>;

std::size_t positionof(const Qmatch& s, std::size_t bar)
{
    return static_cast<std::size_t>(std::find(s.owner.begin(), s.owner.begin() + 5, bar) - s.owner.begin());
}

} // namespace

class QmatchTest : public tests::QuizTest {
protected:
    QmatchTest()
    {
        tests::setnumbered(30, 30);
        qtype = 10;
    }

    // Plays a question; `act` acts on the screen and Done follows.
    void play(const std::function<void(Qmatch&)>& act)
    {
        players.fill({});
        resetlog();
        host.persons["qmatch"] = [&act](Screen& screen) {
            auto& s = static_cast<Qmatch&>(screen);
            setmarks(100);
            act(s);
            userclick(s.command1);
        };
        playqmatch();
    }

    static void drag(Qmatch& s, std::size_t bar, std::size_t position)
    {
        EXPECT_TRUE(userpress(s.btn1[bar]));
        EXPECT_TRUE(userdrop(s.label2[position]));
    }

    // "Name = description" of a bar, as a result line shows it.
    static std::string pairof(const Qmatch& s, std::size_t bar)
    {
        return s.btn1[bar].text + " = " + s.label2[positionof(s, bar)].text;
    }
};

TEST_F(QmatchTest, NothingPlaced)
{
    play([](Qmatch&) {});
    EXPECT_EQ(result, "\r\n*** Scored 0 of 25");
    EXPECT_EQ(score, "Current score: 0 of 25  (0%)");
    EXPECT_EQ(heading, "Results for Matching Nation, group");
    EXPECT_EQ(chosenmarks(), std::vector<std::int16_t>(5, 100));
}

TEST_F(QmatchTest, AllRight)
{
    std::string names;
    play([&names](Qmatch& s) {
        for (std::size_t bar = 0; bar < 5; ++bar) {
            drag(s, bar, positionof(s, bar));
            names += s.btn1[bar].text + "\r\n";
        }
    });
    EXPECT_EQ(result, "*** All correct!");
    EXPECT_EQ(score, "Current score: 25 of 25  (100%)");
    EXPECT_EQ(chosenmarks(), std::vector<std::int16_t>(5, 104));
    EXPECT_EQ(log(), "Match Nation, group\r\n" + names + " *** All correct!\r\n");
}

TEST_F(QmatchTest, SomeRightSomeWrongSomeEmpty)
{
    std::string lines;
    std::size_t wrongat = 0;
    play([&](Qmatch& s) {
        drag(s, 4, 4);
        drag(s, 2, positionof(s, 2));
        wrongat = positionof(s, 0);
        drag(s, 1, wrongat);
        lines = pairof(s, 1) + "\r\n";
        for (std::size_t p = 0; p < 5; ++p) { // the mark of a position goes to the bar of its number
            EXPECT_EQ(s.placed[p] >= 0, p == 4 || p == positionof(s, 2) || p == wrongat);
        }
        logstatus = 2;
    });
    EXPECT_EQ(result, "\r\n" + lines + "*** Scored 10 of 25");
    EXPECT_EQ(log().substr(log().size() - lines.size()), lines);
    EXPECT_EQ(chosenmarks()[wrongat], 99);
}

TEST_F(QmatchTest, OneBarOnAllFive)
{
    std::string line;
    play([&line](Qmatch& s) {
        for (std::size_t p = 0; p < 5; ++p) {
            drag(s, 3, p);
            EXPECT_EQ(s.btn1[3].place.top, s.label2[p].place.top);
            EXPECT_EQ(s.btn1[3].place.left, 4620); // straight down
        }
        line = pairof(s, 3) + "\r\n";
    });
    EXPECT_EQ(result, "\r\n" + line + line + line + line + "*** Scored 5 of 25");
}

TEST_F(QmatchTest, OfTwoBarsOnOneDescriptionTheLaterCounts)
{
    play([](Qmatch& s) {
        drag(s, 0, 4);
        drag(s, 4, 4);
        EXPECT_EQ(s.btn1[0].place.top, s.btn1[4].place.top);
    });
    EXPECT_EQ(result, "\r\n*** Scored 5 of 25");
}

TEST_F(QmatchTest, AWrongDropFirst)
{
    std::string line;
    play([&line](Qmatch& s) { // wrong, then right elsewhere: the wrong place is judged too
        drag(s, 4, 0);
        drag(s, 4, 4);
        line = pairof(s, 4) + "\r\n";
    });
    EXPECT_EQ(result, "\r\n" + line + "*** Scored 5 of 25");
    play([](Qmatch& s) { // the wrong place gets its own bar later: no trace
        drag(s, 4, 0);
        for (std::size_t bar = 0; bar < 5; ++bar) {
            drag(s, bar, positionof(s, bar));
        }
    });
    EXPECT_EQ(result, "*** All correct!");
}

TEST_F(QmatchTest, ClicksAndDragsMixed)
{
    play([](Qmatch& s) {
        const double start = s.btn1[0].place.top;
        EXPECT_FALSE(userclick(s.label2[0])); // nothing picked up
        userpress(s.btn1[0]);
        userclick(s.btn1[0]); // press and release: a click
        EXPECT_EQ(s.dragged, &s.btn1[0]);
        EXPECT_EQ(s.btn1[0].place.top, start);
        userclick(s.cmdhelp); // does not end the pick-up
        EXPECT_EQ(s.dragged, &s.btn1[0]);
        userclick(s.btn1[4]); // another bar does
        EXPECT_EQ(s.dragged, &s.btn1[4]);
        EXPECT_TRUE(userclick(s.label2[4]));
        EXPECT_EQ(s.dragged, nullptr);
        EXPECT_FALSE(userclick(s.label2[3]));
        userclick(s.btn1[1]);
        EXPECT_TRUE(userescape(s)); // Escape puts it down and does not close
        EXPECT_FALSE(userclick(s.label2[3]));
        userpress(s.btn1[2]);
        EXPECT_TRUE(userdropnowhere(s));
        EXPECT_FALSE(userdrop(s.label2[3]));
        EXPECT_EQ(s.placed, (std::array<int, 6>{-1, -1, -1, -1, 4, 0}));
        drag(s, 2, positionof(s, 2));
        EXPECT_FALSE(s.closed);
    });
    EXPECT_EQ(result, "\r\n*** Scored 10 of 25");
    EXPECT_EQ(host.messages.at(0).text,
              "Click on one of the colored bars at the top\r\nThen drag it down to the best match in the descriptions "
              "below\r\n\r\nOr, click on a colored bar, then click on the proper definition\r\n\r\nWhen all items are "
              "matched, click on 'done'");
}

TEST_F(QmatchTest, SkipAndCloseScoreNothing)
{
    for (const bool skip : {true, false}) {
        play([skip](Qmatch& s) {
            drag(s, 0, 0);
            skip ? userclick(s.command2) : userclose(s);
        });
    }
    EXPECT_EQ(host.shown, std::vector<std::string>(2, "qmatch"));
    EXPECT_EQ(players[0].asked, 0);
}

TEST_F(QmatchTest, FontSteps)
{
    const std::pair<std::size_t, double> steps[] = {{0, 13.5}, {20, 13.5}, {21, 14}, {25, 14}, {26, 12},
                                                    {28, 12},  {29, 10},   {38, 10}, {39, 8},  {200, 8}};
    for (const auto& [length, points] : steps) {
        EXPECT_EQ(barfontsize(length), points) << length;
    }
    tests::setnumbered(0, 5);
    for (std::int16_t i = 0; i < 5; ++i) {
        events[static_cast<std::size_t>(i)].name = std::to_string(i);
        for (int n = 0; n < 20; ++n) {
            events[static_cast<std::size_t>(i)].name += "\xC3\xA9"; // 21 characters, 41 bytes
        }
    }
    play([](Qmatch& s) { EXPECT_EQ(s.btn1[2].font, (Font{Face::plain, 14, true})); });
}

// Twenty exchanges of neighbours: position 4 stays, and so few steps leave more descriptions near their start than
// a full shuffle of the first four would. The expected counts come from stepping the exact distribution.
TEST_F(QmatchTest, TheShuffleIsTwentyAdjacentExchanges)
{
    std::map<std::array<int, 4>, double> odds = {{{0, 1, 2, 3}, 1.0}};
    for (int step = 0; step < 20; ++step) {
        std::map<std::array<int, 4>, double> next;
        for (const auto& [order, chance] : odds) {
            next[order] += chance / 4;
            for (std::size_t k = 1; k < 4; ++k) {
                auto swapped = order;
                std::swap(swapped[k], swapped[k - 1]);
                next[swapped] += chance / 4;
            }
        }
        odds = next;
    }
    constexpr int games = 40000;
    std::map<std::array<int, 4>, int> seen;
    seedrandom(20);
    host.persons["qmatch"] = [&seen](Screen& screen) {
        auto& s = static_cast<Qmatch&>(screen);
        EXPECT_EQ(s.owner[4], 4);
        ++seen[{s.owner[0], s.owner[1], s.owner[2], s.owner[3]}];
        userclose(s);
    };
    logstatus = 0;
    for (int i = 0; i < games; ++i) {
        clearmarks();
        playqmatch();
    }
    double chisquare = 0;
    double fullshuffle = 0;
    for (const auto& [order, chance] : odds) {
        const double count = seen[order];
        chisquare += (count - games * chance) * (count - games * chance) / (games * chance);
        fullshuffle += (count - games / 24.0) * (count - games / 24.0) / (games / 24.0);
    }
    EXPECT_EQ(odds.size(), 24U);
    EXPECT_LT(chisquare, 49.7); // 23 degrees of freedom, 0.1 %
    EXPECT_GT(fullshuffle, 49.7);
}

} // namespace brindor
