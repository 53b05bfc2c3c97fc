#include "support/scratchfolder.h"
#include "toolkit/operations.h"
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
#include <cstdio>

namespace brindor::tests {

namespace {

using namespace toolkit;

std::string percent(qt::Zoom zoom)
{
    return std::to_string(std::lround(zoom.factor() * 100));
}

TEST(ZoomTest, TheDisplayGivesTheFirstZoom)
{
    const struct {
        QSize workarea;
        const char* percent;
    } cases[] = {{{1024, 768}, "100"},  {{1366, 768}, "100"}, {{1920, 1080}, "135"}, {{2560, 1440}, "180"},
                 {{3840, 2160}, "200"}, {{1092, 614}, "90"},  {{960, 540}, "79"},    {{640, 400}, "57"}};
    for (const auto& c : cases) {
        EXPECT_EQ(percent(qt::startzoom(c.workarea)), c.percent) << c.workarea.width();
    }
}

// What a person chose is there again in the next run; what else stands in the file does no harm.
TEST(ZoomTest, ChoicesAreKeptByDisplay)
{
    const ScratchFolder folder;
    writefile("zoom.txt", "1920 1080 135\nnonsense\n800 600 9999\n7 7\n");
    qt::ChosenZooms zooms("zoom.txt");
    EXPECT_EQ(percent(zooms.of({1920, 1080}).value()), "135");
    EXPECT_EQ(percent(zooms.of({800, 600}).value()), "400");
    EXPECT_FALSE(zooms.of({7, 7}));
    zooms.choose({1024, 768}, qt::nextzoom(qt::Zoom(1), 1));
    zooms.choose({800, 600}, std::nullopt);
    EXPECT_EQ(contentof("zoom.txt"), "1024 768 110\n1920 1080 135\n");
    EXPECT_EQ(percent(qt::ChosenZooms("zoom.txt").of({1024, 768}).value()), "110");
    EXPECT_EQ(percent(qt::nextzoom(qt::nextzoom(qt::Zoom(1), 1), -1)), "100");
    EXPECT_EQ(percent(qt::nextzoom(qt::Zoom(0.5), -1)), "50");
}

struct Sheet : Screen {
    Sheet()
    {
        name = "sheet";
        width = 6000;
        height = 4500;
        add(*this, line, "line");
        line.place = {300, 300, 3000, 360};
        line.text = "A line of text";
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

    QtHost host;
    Sheet sheet;
};

// The frame of the windows here takes 4 pixels, at every zoom.
TEST_F(ZoomedWindow, KeysZoomPlacesFontsAndWindowAlike)
{
    showwhile(sheet, [this] {
        const QWidget& line = widgetof(sheet.line);
        const auto seen = [&] {
            const QSize size = window().size();
            return QString("%1x%2 %3,%4 %5 %6")
                .arg(size.width())
                .arg(size.height())
                .arg(line.x())
                .arg(line.y())
                .arg(line.width())
                .arg(line.font().pixelSize())
                .toStdString();
        };
        EXPECT_EQ(seen(), "396x296 20,20 200 16");
        key(Qt::Key_Plus);
        EXPECT_EQ(seen(), "436x326 22,22 220 17");
        key(Qt::Key_Minus);
        key(Qt::Key_Minus);
        EXPECT_EQ(seen(), "360x269 18,18 182 14");
        QTest::qWait(300); // what the window system reports in the meantime
        EXPECT_EQ(sheet.width, 6000);
        EXPECT_EQ(sheet.resizes, 1);
    });
}

TEST_F(ZoomedWindow, AnOpenMessageFollows)
{
    QTimer::singleShot(20, [] {
        QWidget* box = QApplication::activeModalWidget();
        const QSize before = box->size();
        QTest::keyClick(box->windowHandle(), Qt::Key_Plus, Qt::ControlModifier);
        EXPECT_NEAR(box->width(), before.width() * 1.1, 6);
        EXPECT_GE(box->height(), box->sizeHint().height()); // nothing is cut off
        box->close();
    });
    messagebox("A text of some length that says what is to be known.");
}

TEST_F(ZoomedWindow, NoWindowIsLargerThanTheDisplayAndItsRecordStaysAsItIs)
{
    sheet.width = 30000;
    sheet.height = 30000;
    showwhile(sheet, [this] {
        const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
        EXPECT_TRUE(room.contains(window().frameGeometry()));
        key(Qt::Key_Plus);
        EXPECT_TRUE(room.contains(window().frameGeometry()));
    });
    EXPECT_EQ(sheet.width, 30000);
    EXPECT_EQ(sheet.height, 30000);
}

TEST_F(ZoomedWindow, AMaximisedWindowIsFilledAndComesBack)
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
        EXPECT_EQ(window().size(), QSize(436, 326));
        EXPECT_EQ(sheet.width, 6000);
        EXPECT_EQ(sheet.height, 4500);
    });
}

RC_GTEST_PROP(WindowSizeTest, NothingDriftsOverRoundTrips, ())
{
    QtHost host;
    const double width = *rc::gen::inRange(3000, 10000);
    const double height = *rc::gen::inRange(3000, 10000);
    double storedwidth = width;
    double storedheight = height;
    for (const double zoom : {1.0, 0.79, 1.21}) {
        qt::setbasezoom(qt::Zoom(zoom));
        Sheet sheet;
        sheet.width = storedwidth;
        sheet.height = storedheight;
        showwhile(sheet, [&] {
            const QSize size = windowof(sheet).size();
            windowof(sheet).resize(size - QSize(7, 11));
            QCoreApplication::processEvents();
            windowof(sheet).resize(size);
            QCoreApplication::processEvents();
        });
        qt::setbasezoom(qt::Zoom(1));
        RC_ASSERT(sheet.resizes == 3);
        storedwidth = sheet.width;
        storedheight = sheet.height;
    }
    RC_ASSERT(storedwidth == width);
    RC_ASSERT(storedheight == height);
}

} // namespace

} // namespace brindor::tests
