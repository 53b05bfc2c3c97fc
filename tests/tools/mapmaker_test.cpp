#include "mapmaker/maps.h"
// Before the headers of Qt, which makes a word of its own of "forever".
#include "tools/sample.h"

#include "authoring/eventpictures.h"
#include "mapmaker/fonts.h"
#include "mapmaker/icon.h"
#include "mapmaker/lettering.h"
#include "mapmaker/locatormap.h"
#include "mapmaker/picturefile.h"
#include "mapmaker/titlepicture.h"
#include "support/pictures.h"

#include <QGuiApplication>
#include <QPainter>

namespace brindor::mapmaker {

using namespace tests;
using Mapmaker = ProgramTest;

namespace {

const LocatorMaps& maps()
{
    static const LocatorMaps drawer(readworld().value.value_or(World()),
                                    worldnames().value.value_or(std::vector<PlaceName>()));
    return drawer;
}

QImage drawn(const Position& place, const QString& name, const std::vector<Position>& others = {})
{
    return maps().draw({place, name, 1500, others}, Lines::smooth);
}

QImage loaded(const std::string& file)
{
    return QImage(QString::fromStdString(file));
}

constexpr int plainly = 10;

// How many pixels of a picture differ from the approved one, both seen from afar. BRINDOR_APPROVE=1 approves it.
int changed(const QImage& picture, const std::string& name)
{
    const std::string file = SAMPLES "/" + name + ".png";
    const QImage seen = afar(picture);
    if (qEnvironmentVariableIsSet("BRINDOR_APPROVE")) {
        seen.save(QString::fromStdString(file));
    }
    return differing(seen, loaded(file), plainly);
}

} // namespace

TEST_F(Mapmaker, DrawsAMapForEachEventWithoutItsOwnPicture)
{
    writegood("", "Own,1,,,,D,,War,Rome,,Rome,41,12,own.bmp\nNowhere,2,,,,D,,War,Rome,,,,,\n");
    writefile("in/own.bmp", bmpfile(40, 30));
    ASSERT_EQ(report(drawmaps("in", "out", "Classic.bd3", false)), "");
    EXPECT_EQ(errors(authoring::maketimeline("in", "out/Classic.bd3", false)), "Classic.bd3: 10 people, 12 events");
    // A second run leaves alone what is the same and draws again what is not.
    const fs::file_time_type longago = fs::file_time_type::clock::now() - std::chrono::hours(1);
    const std::string edessa = "out/classic/maps/battle-of-edessa.png";
    fs::copy_file("out/classic/maps/iron-pillar.png", edessa, fs::copy_options::overwrite_existing);
    for (const fs::directory_entry& entry : fs::directory_iterator("out/classic/maps")) {
        EXPECT_LE(entry.file_size(), largestmap) << entry.path();
        EXPECT_EQ(loaded(entry.path()).size(), QSize(640, 480)) << entry.path();
        EXPECT_EQ(loaded(entry.path()).format(), QImage::Format_Indexed8) << entry.path();
        fs::last_write_time(entry.path(), longago);
    }
    EXPECT_EQ(report(drawmaps("in", "out", "Classic", false)),
              edessa + ": error: stands there already and is another picture; name another place, or replace it with "
                       "--overwrite\n");
    ASSERT_EQ(report(drawmaps("in", "out", "Classic", true)), "");
    for (const fs::directory_entry& entry : fs::directory_iterator("out/classic/maps")) {
        EXPECT_EQ(entry.last_write_time() > longago, entry.path() == edessa) << entry.path();
    }

    writefile("blocked", "");
    EXPECT_EQ(report(drawmaps(sample("empty"), "blocked", "x", false)),
              "blocked/x/maps/v.png: error: cannot be written: Not a directory\n");
    writegood("", "War,1,,,,D,,G,N,,P,91,1,\n");
    EXPECT_EQ(report(drawmaps("in", "none", "x", false)), "in/events.csv:12: error: column 12 (latitude): \"91\" is no "
                                                          "number of degrees from -90 to 90; write it as 50.91, "
                                                          "south and west with a minus sign\n");
    EXPECT_FALSE(fs::exists("none"));
}

// The busiest coasts, the poles and the date line, with long names.
TEST_F(Mapmaker, MapsStaySmallAndAlike)
{
    for (const Position& place :
         std::vector<Position>{{90, 0}, {80, -105}, {80, -45}, {-90, 0}, {50, 0}, {38, 24}, {-17, 180}}) {
        const std::string bytes = maps().file({place, "A Place With Quite a Long Name", 1500, {}});
        EXPECT_LE(bytes.size(), largestmap) << place.latitude << ' ' << place.longitude;
        EXPECT_EQ(maps().file({place, "A Place With Quite a Long Name", 1500, {}}), bytes);
    }
}

// A new picture is approved where the marker stands out from land and sea, and dark words can be read on the panel for
// the title and on the paper behind the buttons.
TEST_F(Mapmaker, PicturesAreAsApproved)
{
    EXPECT_LE(changed(drawn({31.2, 29.9}, "Alexandria", {{30, 31.2}, {31.8, 35.2}, {36.2, 36.2}}), "map"), 20);
    ASSERT_EQ(report(drawtitle("TITLE.BMP", false)), "");
    EXPECT_EQ(contentof("TITLE.BMP").size(), 54U + 960 * 640 * 3);
    EXPECT_LE(changed(loaded("TITLE.BMP"), "title"), 20);
    ASSERT_EQ(report(drawicons("icons", false)), "");
    for (const int size : iconsizes) {
        const QImage icon = loaded("icons/brindor-" + std::to_string(size) + ".png");
        EXPECT_EQ(icon.size(), QSize(size, size));
        EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0) << size;
        EXPECT_EQ(icon.pixelColor(size / 2, size / 4).alpha(), 255) << size;
    }
    EXPECT_LE(changed(loaded("icons/brindor-256.png"), "icon"), 20);
    EXPECT_TRUE(contentof("icons/brindor.svg").starts_with("<svg "));
}

TEST_F(Mapmaker, OtherEventsAreFaintDotsAndTheOwnPlaceIsNone)
{
    const Position here{34.27, 108.93};
    const QImage alone = drawn(here, "Here");
    EXPECT_EQ(drawn(here, "Here", {here}), alone);
    const int dot = differing(drawn(here, "Here", {here, {39, 101}, {39, 101}, {0, 0}}), alone, plainly);
    EXPECT_TRUE(dot > 12 && dot < 40) << dot;
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
    const auto box = [&](const std::vector<QPointF>& dots) {
        return Lettering({640, 480}, ground, dots, {320, 240}).label("Marathon").boundingRect();
    };
    EXPECT_LT(box({}).right(), 399); // on the right side it would hide the coast
    const QRectF beside = box({{260, 240}, {240, 225}, {250, 265}, {230, 210}, {230, 270}});
    EXPECT_FALSE(beside.contains(QPointF(260, 240)) || beside.contains(QPointF(240, 225)));
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
    std::vector<QRectF> boxes = {lettering.label("Here").boundingRect(), lettering.corner({180, 90}, 8)};
    std::string texts;
    for (const Lettering::Written& written : lettering.names(view, names, 0, "Here")) {
        const QRectF box = written.path.boundingRect();
        texts += written.name->text.toStdString() + (box.left() > 320 ? " in the east, " : " in the west, ");
        EXPECT_TRUE(std::none_of(boxes.begin(), boxes.end(), [&](const QRectF& b) { return b.intersects(box); }))
            << texts;
        boxes.push_back(box);
    }
    EXPECT_EQ(texts, "Water in the east, Country in the west, Isle in the east, ");
}

TEST_F(Mapmaker, FaultsOfTheTableOfNamesAreTold)
{
    const std::string header = "name,kind,latitude,longitude,height,width,from,to\n";
    const auto names = readnames(header + "Gaul,land,47,2.4,7,8,-600,900\nNorth Sea,sea,56.5,3,9,9,,\n");
    ASSERT_TRUE(names) << names.reason;
    EXPECT_EQ(names.value->at(0).from, -600);
    EXPECT_TRUE(names.value->at(1).from < -32768 && names.value->at(1).to > 32767);
    for (const char* bad : {"Gaul,hill,47,2,7,8,,", "Gaul,land,91,2,7,8,,", "Gaul,land,47,2,7,0,,", ",land,47,2,7,8,,",
                            "Gaul,land,47,2x,7,8,,", "Gaul,land,47,2,7,8,then,", "Gaul,land,47,2,7,8"}) {
        EXPECT_EQ(readnames(header + bad).reason, "the names, line 2: this is no name with its place") << bad;
    }
    EXPECT_NE(readnames("name,kind\n").reason, "");
    EXPECT_EQ(readnames("").reason, "the names: there are none");
}

TEST_F(Mapmaker, NamesAreNeverCutOff)
{
    for (const QString& name : {QString("Ur"), QString("Constantinople"), QString(200, 'W'), QString("Đại Việt")}) {
        const QRectF box = textpath(name, Face::sansbold, 30, 592, {320, 208}).boundingRect();
        EXPECT_LE(box.width(), 592.001) << name.toStdString();
        EXPECT_NEAR(box.center().x(), 320, 0.01) << name.toStdString();
        EXPECT_LT(box.height(), 35) << name.toStdString();
    }
}

TEST_F(Mapmaker, AFileThatIsTooLargeLosesColours)
{
    QImage busy(300, 200, QImage::Format_RGB32);
    for (int i = 0; i < 300 * 200; ++i) {
        busy.setPixel(i % 300, i / 300, qRgb(i * 37 % 256, i % 256 * (i % 256) % 256, i * 53 % 256));
    }
    const auto colours = [&](std::size_t limit) {
        const std::string bytes = pngbytes(busy, {QColor(1, 2, 3), QColor(250, 250, 250)}, limit, Colours::fewer);
        return QImage::fromData(QByteArray::fromStdString(bytes)).colorCount();
    };
    EXPECT_EQ(colours(1000000), 24);
    EXPECT_EQ(colours(0), 2);
}

} // namespace brindor::mapmaker

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv); // fonts need one
    return RUN_ALL_TESTS();
}
