#include "mapmaker/framing.h"
#include "mapmaker/projection.h"

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

Position anywhere()
{
    return {*rc::gen::inRange(-9000, 9000) / 100.0, *rc::gen::inRange(-18000, 18000) / 100.0};
}

} // namespace

TEST(Coastlines, AreReadFromDifferences)
{
    const Result<Coastlines> read = readcoastlines("17900 100 200 0 0 50\n0 0 1 1 -1 1 -1 -1\n");
    ASSERT_TRUE(read);
    ASSERT_EQ(read.value->size(), 2U);
    const Ring& ring = read.value->front();
    ASSERT_EQ(ring.positions.size(), 3U);
    EXPECT_DOUBLE_EQ(ring.positions[2].longitude, 181);
    EXPECT_DOUBLE_EQ(ring.positions[2].latitude, 1.5);
    EXPECT_FALSE(ring.roundsapole());
    for (const std::string bad : {"1 2 3 4", "1 2 3 4 5", "1 2 3 4 5 x", "1 2  3 4 5", "", "1.5 2 3 4 5 6"}) {
        EXPECT_EQ(readcoastlines("0 0 1 1 1 -1\n" + bad + "\n").reason,
                  "the coastlines, line 2: this is no ring of points");
    }
}

// A map shows land or water at its centre, whatever lies at the poles, the date line and the other side of the globe.
RC_GTEST_PROP(Land, IsAtTheCentreWhereItIsOnTheGlobe, ())
{
    const std::vector<Position> odd = {{90, 0}, {-90, 0}, {-87, 180}, {0, 180}, {66.5, -175}};
    const Position at = *rc::gen::oneOf(rc::gen::exec(anywhere), rc::gen::elementOf(odd));
    const double away = landdistance(world().land, at); // kilometres
    const bool land = away == 0;
    bool inland = land;
    for (const double side : {-1.0, 1.0}) {
        inland = inland && landdistance(world().land, {at.latitude + side, at.longitude}) == 0 &&
                 landdistance(world().land, {at.latitude, at.longitude + side}) == 0;
    }
    RC_PRE(inland || away > 110); // a map leaves out the finest of a coast
    const View view(Projection::equalarea, at, *rc::gen::element(40.0, 90.0), 600, {0, 0});
    RC_ASSERT(view.land(world().land, Islets::dots).contains(QPointF(0, 0)) == land);
    const QRectF frame(0, 0, 720, 360);
    static const QPainterPath whole = worldland(world().land, frame);
    RC_ASSERT(whole.contains(worldpoint(at, frame) + QPointF(0.01, -0.01)) == land);
}

TEST(Waters, AreWhereTheyAre)
{
    const auto lakeat = [](const Position& at) {
        const View view(Projection::equalarea, at, 10, 2000, {0, 0});
        return view.land(world().lakes, Islets::omitted).contains(QPointF(0, 0));
    };
    EXPECT_TRUE(lakeat({-1, 33})) << "Lake Victoria";
    EXPECT_TRUE(lakeat({48, -87.5})) << "Lake Superior";
    EXPECT_FALSE(lakeat({7.2, -0.1})) << "a dam keeps this water";
}

TEST(Frames, AreNarrowWhereEventsLieClose)
{
    const auto angle = [](const Position& about, std::size_t count, double away) {
        return std::lround(frameangle(about, std::vector<Position>(count, {about.latitude + away, about.longitude})));
    };
    const Position athens{38, 23.7};
    EXPECT_EQ(angle(athens, 8, 2), 18);
    EXPECT_EQ(angle(athens, 8, 30), 24);
    EXPECT_EQ(angle(athens, 0, 0), 24);
    const Position outback{-30, 140}; // far from what is always shown close
    EXPECT_EQ(angle(outback, 8, 2), 18);
    EXPECT_EQ(angle(outback, 8, 12), 36);
    EXPECT_EQ(angle(outback, 7, 12), 60);
    EXPECT_EQ(angle(outback, 8, 30), 60);
    EXPECT_EQ(angle(outback, 20, 0), 60); // the same place counts for nothing
}

RC_GTEST_PROP(Views, LeadThereAndBack, ())
{
    const Position centre = anywhere();
    const Position place = anywhere();
    const auto projection = *rc::gen::element(Projection::equalarea, Projection::stereographic);
    const double away = awayfrom(centre, place);
    RC_PRE(std::abs(away - 90) > 1e-4);
    const View view(projection, centre, 90, 500, {320, 240});
    const QPointF point = view.point(place);
    RC_ASSERT(std::hypot(point.x() - 320, point.y() - 240) <= view.discradius() + 1e-6);
    RC_ASSERT(view.insees(place) == (away < 90));
    RC_ASSERT(away > 90 || awayfrom(view.position(point), place) < 1e-4);
}

} // namespace brindor::mapmaker
