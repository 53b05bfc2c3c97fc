#include "everything.h"
#include "support/scratchfolder.h"
#include "toolkit/qt/displayzoom.h"
#include "toolkit/qt/qthost.h"
#include "windows.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>

namespace brindor::tests {

namespace {

using namespace toolkit;

long percent(qt::Zoom zoom)
{
    return std::lround(zoom.factor() * 100);
}

TEST(ZoomTest, TheFirstZoomDoesNotSuitTheDisplay)
{
    const struct {
        QSize workarea;
        long percent;
    } cases[] = {{{1024, 768}, 100},  {{1366, 768}, 100}, {{1920, 1080}, 135}, {{2560, 1440}, 180},
                 {{3840, 2160}, 200}, {{1092, 614}, 90},  {{960, 540}, 79},    {{640, 400}, 57}};
    for (const auto& c : cases) {
        EXPECT_EQ(percent(qt::startzoom(c.workarea)), c.percent) << c.workarea.width();
    }
}

TEST(ZoomTest, AChoiceIsForgottenInTheNextRunOrABadFileDoesHarm)
{
    const ScratchFolder folder;
    writefile("zoom.txt", "1920 1080 135\nnonsense\n800 600 9999\n7 7\n");
    qt::ChosenZooms zooms("zoom.txt");
    EXPECT_EQ(percent(zooms.of({1920, 1080}).value()), 135);
    EXPECT_EQ(percent(zooms.of({800, 600}).value()), 400);
    EXPECT_FALSE(zooms.of({7, 7}));
    zooms.choose({1024, 768}, qt::nextzoom(qt::Zoom(1), 1));
    zooms.choose({800, 600}, std::nullopt);
    EXPECT_EQ(contentof("zoom.txt"), "1024 768 110\n1920 1080 135\n");
    EXPECT_EQ(percent(qt::ChosenZooms("zoom.txt").of({1024, 768}).value()), 110);
    EXPECT_EQ(percent(qt::nextzoom(qt::Zoom(1.1), -1)), 100);
    EXPECT_EQ(percent(qt::nextzoom(qt::Zoom(0.5), -1)), 50);
}

struct Sheet : Screen {
    explicit Sheet(double twipswide = 6000, double twipshigh = 4500)
    {
        name = "sheet";
        width = twipswide;
        height = twipshigh;
        put(Look(), *this, line, "line", "A line of text", {300, 300, 3000, 360});
        resize = [this] { ++resizes; };
    }
    Label line;
    int resizes = 0;
};

class ZoomedWindow : public testing::Test {
protected:
    ~ZoomedWindow() override { qt::setbasezoom(qt::Zoom(1)); }
    QWidget& window() { return windowof(sheet); }
    void key(Qt::Key key) { QTest::keyClick(window().windowHandle(), key, Qt::ControlModifier); }

    // The size of the window, and the label's place and size and that of its letters, all in pixels. The frame of the
    // windows here takes 4 pixels, at every zoom.
    std::string seen()
    {
        const QWidget& line = widgetof(sheet.line);
        std::string text;
        for (const int number :
             {window().width(), window().height(), line.x(), line.y(), line.width(), line.font().pixelSize()}) {
            text += std::to_string(number) + ' ';
        }
        return text;
    }

    QtHost host;
    Sheet sheet;
};

TEST_F(ZoomedWindow, AKeyZoomsPlacesFontsAndWindowNotAlike)
{
    showwhile(sheet, [this] {
        EXPECT_EQ(seen(), "396 296 20 20 200 16 ");
        key(Qt::Key_Plus);
        EXPECT_EQ(seen(), "436 326 22 22 220 17 ");
        key(Qt::Key_Minus);
        key(Qt::Key_Minus);
        EXPECT_EQ(seen(), "360 269 18 18 182 14 ");
        QTest::qWait(300); // what the window system reports in the meantime
        EXPECT_EQ(sheet.width, 6000);
        EXPECT_EQ(sheet.resizes, 1);
    });
}

TEST_F(ZoomedWindow, AnOpenMessageKeepsItsSizeOrIsCutOff)
{
    QTimer::singleShot(20, [] {
        QWidget* box = QApplication::activeModalWidget();
        const int before = box->width();
        QTest::keyClick(box->windowHandle(), Qt::Key_Plus, Qt::ControlModifier);
        EXPECT_NEAR(box->width(), before * 1.1, 6);
        EXPECT_GE(box->height(), box->sizeHint().height());
        box->close();
    });
    messagebox("A text of some length that says what is to be known.");
}

TEST_F(ZoomedWindow, AWindowIsLargerThanTheDisplayOrItsRecordIsCutToIt)
{
    sheet.width = sheet.height = 30000;
    showwhile(sheet, [this] {
        const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
        EXPECT_TRUE(room.contains(window().frameGeometry()));
        key(Qt::Key_Plus);
        EXPECT_TRUE(room.contains(window().frameGeometry()));
    });
    EXPECT_EQ(sheet.width, 30000);
    EXPECT_EQ(sheet.height, 30000);
}

TEST_F(ZoomedWindow, AMaximisedWindowIsNotFilledOrComesBackOtherwise)
{
    showwhile(sheet, [this] {
        window().showMaximized();
        QTest::qWait(150);
        const QSize display = window().size();
        const double filling = std::min(display.width() / 396.0, display.height() / 296.0);
        EXPECT_EQ(sheet.windowstate, maximised);
        EXPECT_EQ(widgetof(sheet.line).width(), std::lround(200 * filling));
        EXPECT_NEAR(sheet.width, display.width() * 15 / filling + 60, 1); // and the frame
        key(Qt::Key_Plus);
        window().showNormal();
        QTest::qWait(400);
        EXPECT_EQ(sheet.windowstate, normal);
        EXPECT_EQ(seen().substr(0, 8), "436 326 ");
        EXPECT_EQ(sheet.width, 6000);
        EXPECT_EQ(sheet.height, 4500);
    });
}

RC_GTEST_PROP(WindowSizeTest, ASizeDriftsOverRoundTrips, ())
{
    const QtHost host;
    const double width = *rc::gen::inRange(3000, 10000);
    const double height = *rc::gen::inRange(3000, 10000);
    for (const double zoom : {1.0, 0.79, 1.21}) {
        qt::setbasezoom(qt::Zoom(zoom));
        Sheet sheet(width, height);
        showwhile(sheet, [&] {
            const QSize size = windowof(sheet).size();
            for (const QSize given : {size - QSize(7, 11), size}) {
                windowof(sheet).resize(given);
                QCoreApplication::processEvents();
            }
        });
        qt::setbasezoom(qt::Zoom(1));
        RC_ASSERT(sheet.resizes == 3);
        RC_ASSERT(sheet.width == width);
        RC_ASSERT(sheet.height == height);
    }
}

} // namespace

} // namespace brindor::tests
