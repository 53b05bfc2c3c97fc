#include "quiz/qmatch.h"

#include "questions/texts.h"
#include "support/quiztest.h"

#include <algorithm>

namespace brindor {

using namespace toolkit;

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

    // The position of the description that belongs to a bar.
    static std::size_t positionof(const Qmatch& s, std::size_t bar)
    {
        return static_cast<std::size_t>(std::find(s.owner.begin(), s.owner.begin() + 5, bar) - s.owner.begin());
    }
};

// Drops of a bar on the description of another (or the same); the last on a description counts there.
TEST_F(QmatchTest, DropsAgainstResultScoreMarksAndLog)
{
    using Drops = std::vector<std::pair<std::size_t, std::size_t>>;
    const std::tuple<Drops, std::size_t, int, int> cases[] = {
        // the bar and the number of wrong lines, the points
        {{}, 0, 0, 0},
        {{{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}}, 0, 0, 25},
        {{{4, 4}, {2, 2}, {0, 1}}, 0, 1, 10},
        {{{3, 0}, {3, 1}, {3, 2}, {3, 3}, {3, 4}}, 3, 4, 5}, // one bar everywhere
        {{{0, 4}, {4, 4}}, 0, 0, 5},                         // of two bars the later
        {{{4, 0}, {4, 4}}, 4, 1, 5}};                        // the place of a wrong drop is judged too
    for (const auto& [drops, wrongbar, wronglines, won] : cases) {
        std::vector<std::int16_t> marks(5, 100);
        std::string names;
        std::string wrong;
        play([&, &drops = drops, &wrongbar = wrongbar, &wronglines = wronglines](Qmatch& s) {
            for (const auto& [bar, target] : drops) {
                const std::size_t position = positionof(s, target);
                EXPECT_TRUE(userpress(s.btn1[bar]) && userdrop(s.label2[position]));
                EXPECT_EQ(s.btn1[bar].place.top, s.label2[position].place.top);
                EXPECT_EQ(s.btn1[bar].place.left, 4080 + (4 - static_cast<double>(bar)) * 540); // straight down
                marks[position] = bar == target ? 104 : 99; // of the bar with the position's number
            }
            for (int line = 0; line < wronglines; ++line) {
                wrong += s.btn1[wrongbar].text + " = " + s.label2[positionof(s, wrongbar)].text + "\r\n";
            }
            for (const Button& bar : s.btn1) {
                names += bar.text + "\r\n";
            }
        });
        const std::string points = std::to_string(won);
        const bool all = won == 25;
        EXPECT_EQ(heading + '|' + result,
                  "Results for Matching Nation, group|" +
                      (all ? "*** All correct!" : "\r\n" + wrong + "*** Scored " + points + " of 25"));
        EXPECT_EQ(score, "Current score: " + points + " of 25  (" + std::to_string(won * 4) + "%)");
        EXPECT_EQ(chosenmarks(), marks);
        EXPECT_EQ(log(), "Match Nation, group\r\n" + names + (all ? " *** All correct!\r\n" : wrong));
    }
}

// A click on a description counts only while a bar is picked up. Help does not end that; another bar, Escape (which
// does not close) and a drop on nothing do.
TEST_F(QmatchTest, ClicksAndDragsMixed)
{
    play([this](Qmatch& s) {
        const double start = s.btn1[0].place.top;
        userpress(s.btn1[0]);
        EXPECT_EQ(act(host, s, "Btn1(0); cmdhelp; Btn1(4); Label2(4); Label2(3); Btn1(1); esc; Label2(3); Btn1(0)"),
                  "Click on one of the colored bars at the top\r\nThen drag it down to the best match in the "
                  "descriptions below\r\n\r\nOr, click on a colored bar, then click on the proper definition\r\n\r\n"
                  "When all items are matched, click on 'done'\n!Label2(3)\n!Label2(3)\n");
        EXPECT_EQ(s.btn1[0].place.top, start);
        EXPECT_TRUE(userdropnowhere(s));
        EXPECT_FALSE(userdrop(s.label2[3]));
        EXPECT_EQ(s.placed, (std::array<int, 6>{-1, -1, -1, -1, 4, 0}));
        EXPECT_FALSE(s.closed);
    });
    EXPECT_EQ(result, "\r\n*** Scored 5 of 25");
}

TEST_F(QmatchTest, ALongNameStandsSmallerAndIsCountedInCharacters)
{
    const std::pair<std::size_t, double> steps[] = {{0, 13.5}, {20, 13.5}, {21, 14}, {25, 14}, {26, 12},
                                                    {28, 12},  {29, 10},   {38, 10}, {39, 8},  {200, 8}};
    for (const auto& [length, points] : steps) {
        EXPECT_EQ(barfontsize(length), points) << length;
    }
    for (EventRec& event : events) {
        event.name = "21 characters \xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9"; // 28 bytes
    }
    play([](Qmatch& s) { EXPECT_EQ(s.btn1[2].font, (Font{Face::plain, 14, true})); });
}

// The last twenty draws of the opening, done again: each exchanges a description of the first four with the one above.
TEST_F(QmatchTest, TheShuffleIsTwentyExchangesOfNeighbours)
{
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        seedrandom(seed);
        play([seed](Qmatch& s) {
            const double next = randomvalue();
            userresize(s, 11000, 8000, normal);
            std::vector<double> draws;
            seedrandom(seed);
            for (double value = randomvalue(); value != next; value = randomvalue()) {
                draws.push_back(value);
            }
            std::vector<int> owner = {0, 1, 2, 3, 4};
            for (std::size_t at = draws.size() - 20; at < draws.size(); ++at) {
                const auto k = static_cast<std::size_t>(draws[at] * 4);
                std::swap(owner[k], owner[k > 0 ? k - 1 : 0]);
            }
            for (std::size_t p = 0; p < owner.size(); ++p) {
                EXPECT_EQ(s.owner[p], owner[p]) << "seed " << seed;
                EXPECT_EQ(s.label2[p].text, paramname(itemtext, chosen[static_cast<std::size_t>(owner[p])], qtype));
                EXPECT_EQ(s.label2[p].place.width, s.width - 500);
            }
        });
    }
}

} // namespace brindor
