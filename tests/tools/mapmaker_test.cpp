#include "mapmaker/maps.h"

#include "authoring/commands.h"
#include "authoring/pictures.h"
#include "base/files.h"
#include "mapmaker/locatormap.h"
#include "mapmaker/picturefile.h"
#include "mapmaker/texts.h"
#include "mapmaker/titlepicture.h"
#include "support/programtest.h"
#include "tools/sample.h"

#include <QGuiApplication>
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

    static QImage drawn(const Position& place, const QString& name)
    {
        static const LocatorMaps maps(worldcoastlines().value.value_or(Coastlines()));
        return maps.draw(place, name);
    }

private:
    static std::unique_ptr<QGuiApplication> application_; // fonts need one
};

std::unique_ptr<QGuiApplication> Mapmaker::application_;

TEST_F(Mapmaker, DrawsAMapForEachEventWithoutItsOwnPicture)
{
    writefolder("in", tests::goodpeople(),
                tests::goodevents() + "Own,1,,,,D,,War,Rome,,Rome,41,12,own.bmp\nNowhere,2,,,,D,,War,Rome,,,,,\n"
                                      "Given,3,,,,D,,War,Rome,,Rome,41,12,maps/given.png\n");
    tests::writefile("in/own.bmp", tests::bmpfile(3, 2));
    ASSERT_EQ(report(drawmaps("in", "out", "Classic")), "");
    ASSERT_EQ(report(authoring::maketimeline("in", "out/Classic.bd3")), "");
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator("out/maps")) {
        const std::string name = "maps/" + entry.path().filename().string();
        names.insert(name);
        EXPECT_LE(entry.file_size(), 25U * 1024) << name;
        EXPECT_EQ(loaded(entry.path().string()).size(), QSize(640, 480)) << name;
        EXPECT_EQ(loaded(entry.path().string()).format(), QImage::Format_Indexed8) << name;
        EXPECT_NE(contentof("out/Classic.bd3").find('\n' + name + "\n640, 480\n"), std::string::npos) << name;
    }
    EXPECT_EQ(names.size(), 11U);
    EXPECT_EQ(names.count("maps/classic-battle-of-edessa.png"), 1U);
    EXPECT_EQ(names.count("maps/given.png"), 1U);
}

TEST_F(Mapmaker, TellsFaultsAndDrawsNothing)
{
    writefolder("in", "", "War,1,,,,D,,G,N,,P,91,1,\nPeace,2,,,,D,,G,N,,P,1,1,\n");
    EXPECT_EQ(
        report(drawmaps("in", "out", "x")),
        "in/events.csv:2: error: column 12 (latitude): \"91\" is no number of degrees from -90 to 90, as 50.91\n");
    EXPECT_FALSE(fs::exists("out"));
    tests::writefile("out", "");
    tests::writefile("in/events.csv", tests::eventsheader() + "Peace,2,,,,D,,G,N,,P,1,1,\n");
    EXPECT_EQ(report(drawmaps("in", "out", "x")), "out/maps/x-peace.png: error: cannot be written: Not a directory\n");
}

// The busiest coasts, the poles and the date line, with long names.
TEST_F(Mapmaker, MapsStaySmallAndAlike)
{
    const QString name("A Place With Quite a Long Name");
    for (const Position& place :
         std::vector<Position>{{90, 0}, {80, -105}, {80, -45}, {-90, 0}, {50, 0}, {38, 24}, {-17, 180}}) {
        const std::string bytes = pngbytes(drawn(place, name), mapcolours(), largestmap);
        EXPECT_LE(bytes.size(), largestmap) << place.latitude << ' ' << place.longitude;
        EXPECT_EQ(pngbytes(drawn(place, name), mapcolours(), largestmap), bytes);
    }
}

TEST_F(Mapmaker, TheMarkerStandsInTheMiddle)
{
    const QImage map = drawn({34.27, 108.93}, "Chang'an");
    const QColor marker(255, 112, 0);
    EXPECT_EQ(map.pixelColor(320 - 5, 240), marker);
    EXPECT_EQ(map.pixelColor(320 + 5, 240), marker);
    const auto bytes = pngbytes(map, mapcolours(), largestmap);
    const QImage file = QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()));
    EXPECT_EQ(file.pixelColor(320 - 5, 240), marker);
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
        const std::string bytes = pngbytes(busy, kept, limit);
        return QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()))
            .colorCount();
    };
    EXPECT_EQ(colours(1000000), 24);
    EXPECT_EQ(colours(0), 2);
}

// Dark words must be readable on the panel for the title and on the paper behind the buttons.
TEST_F(Mapmaker, TheTitlePictureLeavesRoomForWords)
{
    ASSERT_EQ(report(drawtitle("TITLE.BMP")), "");
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
    ASSERT_EQ(report(drawtitle("again/TITLE.BMP")), "");
    EXPECT_EQ(contentof("again/TITLE.BMP"), bytes);
}

} // namespace brindor::mapmaker
