#include "mapmaker/framing.h"
#include "mapmaker/projection.h"

#include <QPainterPathStroker>
#include <QPen>
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace brindor::mapmaker {

namespace {

// Fails the test and gives no coastlines where they can't be read.
const World& world()
{
    static const Result<World> read = readworld();
    EXPECT_EQ(read.reason, "");
    static const World none;
    return read ? *read.value : none;
}

} // namespace

TEST(Coastlines, AreReadFromDifferences)
{
    const Result<Coastlines> read = readcoastlines("17900 100 200 0 0 50\n0 0 1 1 -1 1 -1 -1\n");
    ASSERT_TRUE(read);
    ASSERT_EQ(read.value->size(), 2U);
    const Ring& ring = read.value->front();
    EXPECT_EQ(ring.positions.size(), 3U);
    EXPECT_DOUBLE_EQ(ring.positions[2].longitude, 181);
    EXPECT_DOUBLE_EQ(ring.positions[2].latitude, 1.5);
    EXPECT_FALSE(ring.roundsapole());
}

TEST(Coastlines, FaultsAreToldWithTheirLine)
{
    for (const char* bad : {"1 2 3 4", "1 2 3 4 5", "1 2 3 4 5 x", "1 2  3 4 5", "", "1.5 2 3 4 5 6"}) {
        EXPECT_EQ(readcoastlines("0 0 1 1 1 -1\n" + std::string(bad) + "\n").reason,
                  "the coastlines, line 2: this is no ring of points")
            << bad;
    }
}

// A map shows land or water at its centre, whatever lies on the other side of the globe.
TEST(Land, IsWhereItIs)
{
    struct Case {
        const char* name;
        Position at;
        bool land;
    };
    const std::vector<Case> cases = {
        {"Burgundy", {47, 4.5}, true},
        {"the Alborz, whose opposite is sea", {35.5, 53}, true},
        {"Argentina, whose opposite is China", {-31, -65}, true},
        {"China, whose opposite is Argentina", {31, 115}, true},
        {"Castile, whose opposite is New Zealand", {40.3, -4}, true},
        {"the South Pole", {-90, 0}, true},
        {"Antarctica at the date line", {-87, 180}, true},
        {"Chukotka, across the date line", {66.5, -179.5}, true},
        {"Viti Levu", {-17.8, 178}, true},
        {"the North Pole", {90, 0}, false},
        {"the Caspian Sea", {42, 51}, false},
        {"the Atlantic", {30, -45}, false},
        {"the Pacific at the date line", {0, 180}, false},
        {"the Pacific, whose opposite is Africa", {-10, -160}, false},
        {"the Indian Ocean, whose opposite is North America", {-40, 80}, false},
        {"the Ross Sea", {-75, -175}, false},
    };
    for (const Case& c : cases) {
        for (const double cap : {40.0, 90.0}) {
            const View regional(Projection::equalarea, c.at, cap, 600, {0, 0});
            EXPECT_EQ(regional.land(world().land, Islets::dots).contains(QPointF(0, 0)), c.land)
                << c.name << ' ' << cap;
        }
        const QRectF frame(0, 0, 720, 360);
        EXPECT_EQ(worldland(world().land, frame).contains(worldpoint(c.at, frame) + QPointF(0.01, -0.01)), c.land)
            << c.name;
    }
}

TEST(Waters, AreWhereTheyAre)
{
    const auto lakeat = [](const Position& at) {
        return View(Projection::equalarea, at, 10, 2000, {0, 0})
            .land(world().lakes, Islets::omitted)
            .contains(QPointF(0, 0));
    };
    EXPECT_TRUE(lakeat({-1, 33})) << "Lake Victoria";
    EXPECT_TRUE(lakeat({48, -87.5})) << "Lake Superior";
    EXPECT_FALSE(lakeat({7.2, -0.1})) << "a dam keeps this water";
    EXPECT_FALSE(lakeat({0, 0}));
    const auto riverat = [](const Position& at) {
        const QPainterPath path = View(Projection::equalarea, at, 10, 2000, {0, 0}).rivers(world().rivers);
        return QPainterPathStroker(QPen(Qt::black, 16)).createStroke(path).contains(QPointF(0, 0));
    };
    EXPECT_TRUE(riverat({30.05, 31.23})) << "the Nile at Cairo";
    EXPECT_TRUE(riverat({30.58, 114.3})) << "the Yangtze at Wuhan";
    EXPECT_FALSE(riverat({24, 8})) << "the Sahara";
}

TEST(Frames, AreNarrowWhereEventsLieClose)
{
    const Position athens{38, 23.7};
    const Position outback{-30, 140}; // far from what is always shown close
    const auto ringof = [](const Position& about, double away) {
        return std::vector<Position>(8, {about.latitude + away, about.longitude});
    };
    EXPECT_EQ(frameangle(athens, ringof(athens, 2)), 18);
    EXPECT_EQ(frameangle(athens, ringof(athens, 30)), 24);
    EXPECT_EQ(frameangle(athens, {}), 24);
    EXPECT_EQ(frameangle(outback, ringof(outback, 2)), 18);
    EXPECT_NEAR(frameangle(outback, ringof(outback, 12)), 36, 1e-6);
    EXPECT_EQ(frameangle(outback, ringof(outback, 30)), 60);
    EXPECT_EQ(frameangle(outback, std::vector<Position>(20, outback)), 60); // the same place counts for nothing
}

RC_GTEST_PROP(Views, LeadThereAndBack, ())
{
    const auto degrees = [](int limit) { return *rc::gen::inRange(-100 * limit, 100 * limit) / 100.0; };
    const Position centre{degrees(90), degrees(180)};
    const Position place{degrees(90), degrees(180)};
    const auto projection = *rc::gen::element(Projection::equalarea, Projection::stereographic);
    const double away = awayfrom(centre, place);
    RC_PRE(std::abs(away - 90) > 1e-4);
    const View view(projection, centre, 90, 500, {320, 240});
    const QPointF point = view.point(place);
    const double fromcentre = std::hypot(point.x() - 320, point.y() - 240);
    RC_ASSERT(fromcentre <= view.discradius() + 1e-6);
    RC_ASSERT(view.insees(place) == (away < 90));
    if (view.insees(place)) {
        RC_ASSERT(awayfrom(view.position(point), place) < 1e-4);
    }
}

TEST(Views, NorthIsUpAndEastIsRight)
{
    const View view(Projection::equalarea, {40, 179}, 40, 600, {320, 240});
    EXPECT_LT(view.point({50, 179}).y(), 240);
    EXPECT_NEAR(view.point({50, 179}).x(), 320, 1e-9);
    EXPECT_GT(view.point({40, -171}).x(), 320); // beyond the date line
    EXPECT_NEAR(view.discradius(), 600 * 2 * std::sin(20 * 3.14159265358979 / 180), 1e-6);
}

} // namespace brindor::mapmaker
