#include "base/picturename.h"
#include "everything.h"
#include "support/scratchfolder.h"
#include "toolkit/qt/displayzoom.h"
#include "toolkit/qt/pictures.h"
#include "toolkit/qt/qttext.h"
#include "windows.h"

#include <QComboBox>
#include <QListWidget>
#include <map>
#include <rapidcheck/gtest.h>

namespace brindor::tests {

using namespace toolkit;

TEST(WidgetTest, ALongListOfNamesIsSlowOrNotSearchedByTyping)
{
    const QtHost host;
    std::string log;
    Everything all("all", log, nullptr);
    clearlist(all.combo);
    settext(all.combo, "Name");
    all.list.multiselect = true;
    selectline(all.list, 2, true);
    showwhile(all, [&] {
        const auto& list = static_cast<QListWidget&>(widgetof(all.list));
        EXPECT_EQ(list.item(2)->checkState(), Qt::Checked);
        EXPECT_GE(list.visualItemRect(list.item(0)).height(), 32);

        auto& combo = static_cast<QComboBox&>(widgetof(all.combo));
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < 250; ++i) {
            additem(all.combo, (i == 200 ? "Zenobia " : "Somebody ") + std::to_string(i));
        }
        EXPECT_LT(clock.elapsed(), 250);
        EXPECT_EQ(combo.currentText(), "Name");
        EXPECT_EQ(combo.currentIndex(), -1);
        combo.setFocus();
        QTest::keyClick(windowof(all).windowHandle(), Qt::Key_F4);
        ASSERT_TRUE(combo.view()->isVisible());
        const int row = combo.view()->visualRect(combo.model()->index(0, 0)).height();
        EXPECT_LE(combo.view()->viewport()->height() / row, 15);
        QTest::keyClicks(combo.view(), "zen");
        QTest::keyClick(combo.view(), Qt::Key_Return);
        EXPECT_EQ(combo.currentText(), "Zenobia 200");
        clearlist(all.combo);
        EXPECT_EQ(combo.count(), 0);
        EXPECT_EQ(combo.currentText(), "");
    });
    EXPECT_EQ(log, "resized to 9000, combo 200, unloaded");
}

TEST(WidgetTest, TheMachinesOwnViewerIsPassedOverOrToldAnotherFile)
{
    const ScratchFolder folder;
    writefile("notepad", "#!/bin/sh\nprintf '%s|' \"$@\" > shown.tmp\nmv shown.tmp shown\n");
    std::filesystem::permissions("notepad", std::filesystem::perms::owner_all);
    const QtHost host;
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.path().string().c_str() + QByteArray(":") + path);
    startviewer("some file.txt");
    qputenv("PATH", path);
    EXPECT_TRUE(QTest::qWaitFor([] { return std::filesystem::exists("shown"); }));
    EXPECT_EQ(contentof("shown"), "some file.txt|");
}

TEST(TextTest, BytesAreShownWrongOrComeBackOtherwise)
{
    const struct {
        QString seen;
        const char* wanted;
    } cases[] = {
        {qt::shown("a\r\nb\rc\nd"), "a\nb\nc\nd"},
        {qt::shown("Br\xc3\xbcgge"), "Br\xc3\xbcgge"},
        {qt::shown("Br\xfcgge"), "Br\xc3\xbcgge"}, // Windows-1252
        {qt::unbroken("Rome (reign) -480 to ca. 1373, p. x -5"), "Rome (reign)\u00a0-480 to ca.\u00a01373, p. x -5"},
        {qt::withoutmnemonic("Bread & butter"), "Bread && butter"},
        {qt::withoutmarkup("a  b"), "a  b"},
        {qt::withoutmarkup("<b>a</b>"), "<span>&lt;b&gt;a&lt;/b&gt;</span>"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.seen.toStdString(), c.wanted);
    }
    EXPECT_EQ(qt::bytesof(QString::fromUtf8("Br\xc3\xbcgge\nB")), "Br\xc3\xbcgge\r\nB");
}

TEST(PictureTest, AFailureHasAnotherNumberOrABombIsLoadedOrALargePictureKeptLarge)
{
    const ScratchFolder folder;
    std::filesystem::create_directory("folder.png");
    std::filesystem::create_symlink("/etc/hostname", "link.png");
    writefile("text.png", "no picture");
    writefile("empty.png", "");
    ASSERT_TRUE(QImage(8000, 1000, QImage::Format_Mono).save("wide.png"));
    writefile("cut.png", contentof("wide.png").substr(0, 60));
    const char* head = "424d36000000000000003600000028000000102700001027000001001800"; // 10,000 x 10,000 pixels
    writefile("manypixels.bmp", QByteArray::fromHex(head).append(24, '\0').toStdString());
    writefile("huge.png", "");
    std::filesystem::resize_file("huge.png", largestpicturefile + 1);
    const std::map<int, std::vector<const char*>> errors = {
        {qt::picturenotfound, {"missing.png"}},
        {qt::picturenotafile, {"folder.png"}},
        {qt::pictureoutside, {"/dev/zero", "../wide.png", "link.png"}},
        {qt::notapicture, {"text.png", "empty.png", "cut.png"}},
        {qt::picturetoolarge, {"manypixels.bmp", "huge.png"}},
    };
    for (const auto& [error, files] : errors) {
        for (const char* file : files) {
            const LoadedPicture loaded = qt::loadpicturefile(file);
            EXPECT_EQ(loaded.error, error) << file;
            EXPECT_EQ(loaded.picture, nullptr) << file;
        }
    }
    QImage most(8000, 8000, QImage::Format_RGB32);
    most.fill(Qt::darkGreen);
    constexpr int quick = 85; // little compression
    ASSERT_TRUE(most.save("most.png", nullptr, quick));
    EXPECT_EQ(qt::loadpicturefile("most.png").error, 0);
    const PictureRef picture = qt::loadpicturefile("wide.png").picture;
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(QSize(picture->width, picture->height), QSize(8000, 1000));
    EXPECT_EQ(static_cast<const QPixmap*>(picture->pixels.get())->size(), QSize(4096, 512));
    EXPECT_EQ(qt::StretchedPicture().at(picture, {30, 40}, 2).size(), QSize(60, 80));
}

static long percent(qt::Zoom zoom)
{
    return std::lround(zoom.factor() * 100);
}

TEST(ZoomTest, TheFirstZoomDoesNotSuitTheDisplay)
{
    std::vector<long> percents;
    const QSize displays[] = {{1024, 768},  {1366, 768}, {1920, 1080}, {2560, 1440},
                              {3840, 2160}, {1092, 614}, {960, 540},   {640, 400}};
    for (const QSize& display : displays) {
        percents.push_back(percent(qt::startzoom(display)));
    }
    EXPECT_EQ(percents, (std::vector<long>{100, 100, 135, 180, 200, 90, 79, 57}));
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

RC_GTEST_PROP(ZoomTest, ASizeDriftsOverRoundTrips, ())
{
    const QtHost host;
    const auto twips = rc::gen::inRange(3000, 10000);
    for (const double zoom : {1.0, 0.79, 1.21}) {
        qt::setbasezoom(qt::Zoom(zoom));
        std::string log;
        Everything all("all", log, nullptr);
        const double width = all.width = *twips;
        const double height = all.height = *twips;
        showwhile(all, [&] {
            const QSize size = windowof(all).size();
            for (const QSize given : {size - QSize(7, 11), size}) {
                windowof(all).resize(given);
                QCoreApplication::processEvents();
            }
        });
        qt::setbasezoom(qt::Zoom(1));
        RC_ASSERT(std::count(log.begin(), log.end(), 'z') == 3); // resized, smaller and back
        RC_ASSERT(all.width == width && all.height == height);
    }
}

} // namespace brindor::tests
