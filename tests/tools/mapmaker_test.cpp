#include "mapmaker/maps.h"

#include "authoring/commands.h"
#include "authoring/eventpictures.h"
#include "base/files.h"
#include "mapmaker/fonts.h"
#include "mapmaker/icon.h"
#include "mapmaker/lettering.h"
#include "mapmaker/locatormap.h"
#include "mapmaker/picturefile.h"
#include "mapmaker/titlepicture.h"
#include "support/programtest.h"
#include "tools/sample.h"

#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <set>

namespace brindor::mapmaker {

namespace fs = std::filesystem;
using tests::contentof;
using tests::report;
using tests::writefolder;

class Mapmaker : public tests::ProgramTest {
protected:
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "mapmaker_test";
        static char* argv[] = {name, nullptr};
        application_ = std::make_unique<QGuiApplication>(argc, argv);
        ASSERT_EQ(checkfonts().reason, "");
    }

    static void TearDownTestSuite() { application_.reset(); }

    static QImage loaded(const std::string& file) { return QImage(QString::fromStdString(file)); }

    static const LocatorMaps& maps()
    {
        static const LocatorMaps drawer(readworld().value.value_or(World()),
                                        worldnames().value.value_or(std::vector<PlaceName>()));
        return drawer;
    }

    static QImage drawn(const Position& place, const QString& name, const std::vector<Position>& others = {})
    {
        return maps().draw({place, name, 1500, others}, Lines::smooth);
    }

private:
    static std::unique_ptr<QGuiApplication> application_; // fonts need one
};

std::unique_ptr<QGuiApplication> Mapmaker::application_;

TEST_F(Mapmaker, DrawsAMapForEachEventWithoutItsOwnPicture)
{
    writefolder("in", tests::goodpeople(),
                tests::goodevents() + "Own,1,,,,D,,War,Rome,,Rome,41,12,own.bmp\nNowhere,2,,,,D,,War,Rome,,,,,\n");
    tests::writefile("in/own.bmp", tests::bmpfile(40, 30));
    ASSERT_EQ(report(drawmaps("in", "out", "Classic.bd3", false)), "");
    ASSERT_EQ(tests::errors(authoring::maketimeline("in", "out/Classic.bd3", false).findings), "");
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator("out/classic/maps")) {
        const std::string name = "classic/maps/" + entry.path().filename().string();
        names.insert(name);
        EXPECT_LE(entry.file_size(), 30U * 1024) << name;
        EXPECT_EQ(loaded(entry.path().string()).size(), QSize(640, 480)) << name;
        EXPECT_EQ(loaded(entry.path().string()).format(), QImage::Format_Indexed8) << name;
        EXPECT_NE(contentof("out/Classic.bd3").find('\n' + name + "\n640, 480\n"), std::string::npos) << name;
    }
    EXPECT_EQ(names.size(), 10U);

    // A second run leaves alone what is the same and draws again what is not.
    const fs::file_time_type longago = fs::file_time_type::clock::now() - std::chrono::hours(1);
    const std::string edessa = "classic/maps/battle-of-edessa.png";
    fs::copy_file("out/classic/maps/iron-pillar.png", "out/" + edessa, fs::copy_options::overwrite_existing);
    for (const std::string& name : names) {
        fs::last_write_time("out/" + name, longago);
    }
    EXPECT_EQ(report(drawmaps("in", "out", "Classic", false)),
              "out/" + edessa +
                  ": error: stands there already and is another picture; name another place, or replace it with "
                  "--overwrite\n");
    ASSERT_EQ(report(drawmaps("in", "out", "Classic", true)), "");
    for (const std::string& name : names) {
        EXPECT_EQ(fs::last_write_time("out/" + name) > longago, name == edessa) << name;
    }
}

TEST_F(Mapmaker, TellsFaultsAndDrawsNothing)
{
    writefolder("in", "", "War,1,,,,D,,G,N,,P,91,1,\nPeace,2,,,,D,,G,N,,P,1,1,\n");
    EXPECT_EQ(report(drawmaps("in", "out", "x", false)), "in/events.csv:2: error: column 12 (latitude): \"91\" is no "
                                                         "number of degrees from -90 to 90; write it as 50.91, "
                                                         "south and west with a minus sign\n");
    EXPECT_FALSE(fs::exists("out"));
    tests::writefile("out", "");
    tests::writefile("in/events.csv", tests::eventsheader() + "Peace,2,,,,D,,G,N,,P,1,1,\n");
    EXPECT_EQ(report(drawmaps("in", "out", "x", false)),
              "out/x/maps/peace.png: error: cannot be written: Not a directory\n");
}

// The busiest coasts, the poles and the date line, with long names.
TEST_F(Mapmaker, MapsStaySmallAndAlike)
{
    const QString name("A Place With Quite a Long Name");
    for (const Position& place :
         std::vector<Position>{{90, 0}, {80, -105}, {80, -45}, {-90, 0}, {50, 0}, {38, 24}, {-17, 180}}) {
        const std::string bytes = maps().file({place, name, 1500, {}});
        EXPECT_LE(bytes.size(), largestmap) << place.latitude << ' ' << place.longitude;
        EXPECT_EQ(maps().file({place, name, 1500, {}}), bytes);
    }
}

// How much two colours stand out from each other, as accessibility rules reckon it: from 1 to 21.
double contrast(const QColor& a, const QColor& b)
{
    const auto light = [](const QColor& colour) {
        const auto part = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.05 + 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    return std::max(light(a), light(b)) / std::min(light(a), light(b));
}

TEST_F(Mapmaker, TheMarkerStandsOutOnLandAndSea)
{
    for (const Position& place : std::vector<Position>{{34.27, 108.93}, {30, -45}}) {
        const QImage map = drawn(place, "Here");
        for (const QPoint& at : {QPoint(311, 240), QPoint(329, 240), QPoint(320, 249), QPoint(320, 240)}) {
            EXPECT_EQ(map.pixelColor(at), QColor(206, 60, 0)) << place.latitude << ' ' << at.x();
            EXPECT_GE(contrast(map.pixelColor(at), map.pixelColor(280, 260)), 3) << place.latitude;
        }
    }
}

TEST_F(Mapmaker, OtherEventsAreFaintDotsAndTheOwnPlaceIsNone)
{
    const Position here{34.27, 108.93};
    const QImage alone = drawn(here, "Here");
    EXPECT_EQ(drawn(here, "Here", {here}), alone);
    const QImage among = drawn(here, "Here", {here, {39, 101}, {39, 101}, {0, 0}});
    int changed = 0;
    for (int y = 0; y < among.height(); ++y) {
        for (int x = 0; x < among.width(); ++x) {
            changed += among.pixel(x, y) == alone.pixel(x, y) ? 0 : 1;
        }
    }
    EXPECT_GT(changed, 12);
    EXPECT_LT(changed, 40);
}

// Land to the left of a coast that runs straight down at `x`.
QImage straightcoast(int x)
{
    QImage picture(640, 480, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    QPainter(&picture).fillRect(0, 0, x, 480, Qt::green);
    return picture;
}

TEST_F(Mapmaker, TheLabelKeepsClearOfTheShoreOfItsNeighbours)
{
    const Ground ground(straightcoast(400), Qt::blue);
    const QPointF middle(320, 240);
    const auto box = [&](const std::vector<QPointF>& dots) {
        return Lettering({640, 480}, ground, dots, middle).label("Marathon").boundingRect();
    };
    EXPECT_LT(box({}).right(), 399); // on the right side it would hide the coast
    const QRectF beside = box({{260, 240}, {240, 225}, {250, 265}, {230, 210}, {230, 270}});
    EXPECT_FALSE(beside.contains(QPointF(260, 240)));
    EXPECT_FALSE(beside.contains(QPointF(240, 225)));
}

TEST_F(Mapmaker, NamesStandOnWhatTheyNameAndApart)
{
    const std::vector<PlaceName> names = {
        {"Water", Feature::sea, {0, 8}, 10, 20, -10, 10},  {"Water", Feature::sea, {0, 8}, 10, 20, -10, 10},
        {"Country", Feature::land, {0, -8}, 10, 12, 0, 0}, {"Bygone", Feature::land, {0, -8}, 10, 12, -9, -1},
        {"Coming", Feature::land, {0, -8}, 10, 12, 1, 9},  {"Here", Feature::land, {0, -8}, 10, 12, 0, 0},
        {"Speck", Feature::land, {2, -8}, 1, 0.5, 0, 0},   {"Isle", Feature::island, {6, 4}, 1, 1, 0, 0}};
    const Ground ground(straightcoast(320), Qt::blue);
    const View view(Projection::equalarea, {0, 0}, 20, 1500, {320, 240});
    Lettering lettering({640, 480}, ground, {}, {320, 240});
    const QRectF label = lettering.label("Here").boundingRect();
    const QRect inset = lettering.corner({180, 90}, 8);
    std::string texts;
    std::vector<QRectF> boxes = {label, inset};
    for (const Lettering::Written& written : lettering.names(view, names, 0, "Here")) {
        texts += written.name->text.toStdString() + ' ';
        const QRectF box = written.path.boundingRect();
        EXPECT_EQ(box.left() > 320, written.name->feature != Feature::land) << written.name->text.toStdString();
        EXPECT_TRUE(
            std::none_of(boxes.begin(), boxes.end(), [&](const QRectF& other) { return other.intersects(box); }));
        boxes.push_back(box);
    }
    EXPECT_EQ(texts, "Water Country Isle ");
}

TEST_F(Mapmaker, FaultsOfTheTableOfNamesAreTold)
{
    const std::string header = "name,kind,latitude,longitude,height,width,from,to\n";
    const auto names = readnames(header + "Gaul,land,47,2.4,7,8,-600,900\nNorth Sea,sea,56.5,3,9,9,,\n");
    ASSERT_TRUE(names) << names.reason;
    EXPECT_EQ(names.value->at(0).from, -600);
    EXPECT_LT(names.value->at(1).from, -32768);
    EXPECT_GT(names.value->at(1).to, 32767);
    for (const char* bad : {"Gaul,hill,47,2,7,8,,", "Gaul,land,91,2,7,8,,", "Gaul,land,47,2,7,0,,", ",land,47,2,7,8,,",
                            "Gaul,land,47,2x,7,8,,", "Gaul,land,47,2,7,8,then,", "Gaul,land,47,2,7,8"}) {
        EXPECT_EQ(readnames(header + bad + "\n").reason, "the names, line 2: this is no name with its place") << bad;
    }
    EXPECT_NE(readnames("name,kind\n").reason, "");
    EXPECT_NE(readnames("").reason, "");
}

TEST_F(Mapmaker, NamesAreNeverCutOff)
{
    for (const QString& name : {QString("Ur"), QString("Constantinople"), QString(200, 'W'), QString("Đại Việt")}) {
        const QRectF box = textpath(name, Face::sansbold, 30, 592, {320, 208}).boundingRect();
        EXPECT_LE(box.width(), 592.001) << name.toStdString();
        EXPECT_NEAR(box.center().x(), 320, 0.01) << name.toStdString();
    }
    EXPECT_LT(textpath("Ur", Face::sansbold, 30, 592, {320, 208}).boundingRect().height(), 30);
}

TEST_F(Mapmaker, AFileThatIsTooLargeLosesColours)
{
    QImage busy(300, 200, QImage::Format_RGB32);
    for (int y = 0; y < busy.height(); ++y) {
        for (int x = 0; x < busy.width(); ++x) {
            busy.setPixel(x, y, qRgb((x * 37 + y * 91) % 256, (x * x) % 256, (y * 53) % 256));
        }
    }
    const std::vector<QColor> kept = {QColor(1, 2, 3), QColor(250, 250, 250)};
    const auto colours = [&](std::size_t limit) {
        const std::string bytes = pngbytes(busy, kept, limit, Colours::fewer);
        return QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()))
            .colorCount();
    };
    EXPECT_EQ(colours(1000000), 24);
    EXPECT_EQ(colours(0), 2);
}

// Dark words must be readable on the panel for the title and on the paper behind the buttons.
TEST_F(Mapmaker, TheTitlePictureLeavesRoomForWords)
{
    ASSERT_EQ(report(drawtitle("TITLE.BMP", false)), "");
    const std::string bytes = contentof("TITLE.BMP");
    const QImage picture = loaded("TITLE.BMP");
    ASSERT_EQ(picture.size(), QSize(960, 640));
    EXPECT_EQ(bytes.size(), 54U + 960 * 640 * 3);
    for (const QRect& calm : {QRect(200, 62, 560, 78), QRect(30, 515, 900, 100)}) {
        int darkest = 255;
        for (int y = calm.top(); y <= calm.bottom(); ++y) {
            for (int x = calm.left(); x <= calm.right(); ++x) {
                darkest = std::min(darkest, qGray(picture.pixel(x, y)));
            }
        }
        EXPECT_GT(darkest, 150) << calm.top();
    }
}

TEST_F(Mapmaker, TheIconHasAllSizesOnATransparentGround)
{
    ASSERT_EQ(report(drawicons("icons", false)), "");
    for (const int size : iconsizes) {
        const QImage icon = loaded("icons/brindor-" + std::to_string(size) + ".png");
        EXPECT_EQ(icon.size(), QSize(size, size));
        EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0) << size;
        EXPECT_EQ(icon.pixelColor(size / 2, size / 4).alpha(), 255) << size;
    }
    EXPECT_TRUE(contentof("icons/brindor.svg").starts_with("<svg "));
}

} // namespace brindor::mapmaker
