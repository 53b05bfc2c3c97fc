#include "base/picturename.h"
#include "everything.h"
#include "support/scratchfolder.h"
#include "toolkit/qt/pictures.h"
#include "toolkit/qt/qthost.h"
#include "toolkit/qt/qttext.h"
#include "windows.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDataStream>
#include <QElapsedTimer>
#include <QImage>
#include <QListWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>

namespace brindor::tests {

namespace {

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

void savepicture(const char* name, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    ASSERT_TRUE(image.save(name));
}

// The head of a BMP file that states a size and holds no pixels.
std::string bmphead(qint32 width, qint32 height)
{
    QByteArray head;
    QDataStream stream(&head, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16{0x4d42} << quint32{54} << quint32{0} << quint32{54} << quint32{40} << width << height
           << quint16{1} << quint16{24};
    return head.append(24, '\0').toStdString();
}

TEST(PictureTest, AFailureHasAnotherNumberOrABombIsLoaded)
{
    const ScratchFolder folder;
    std::filesystem::create_directory("folder.png");
    std::filesystem::create_symlink("/etc/hostname", "link.png");
    writefile("text.png", "no picture");
    writefile("empty.png", "");
    savepicture("good.png", 64, 48);
    writefile("cut.png", contentof("good.png").substr(0, 60));
    writefile("manypixels.bmp", bmphead(10000, 10000));
    writefile("huge.png", "");
    std::filesystem::resize_file("huge.png", largestpicturefile + 1);
    for (const auto& [file, error] : {std::pair{"missing.png", qt::picturenotfound},
                                      {"folder.png", qt::picturenotafile},
                                      {"/dev/zero", qt::pictureoutside},
                                      {"../good.png", qt::pictureoutside},
                                      {"link.png", qt::pictureoutside},
                                      {"text.png", qt::notapicture},
                                      {"empty.png", qt::notapicture},
                                      {"cut.png", qt::notapicture},
                                      {"manypixels.bmp", qt::picturetoolarge},
                                      {"huge.png", qt::picturetoolarge},
                                      {"good.png", qt::PictureError{}}}) {
        const LoadedPicture loaded = qt::loadpicturefile(file);
        EXPECT_EQ(loaded.error, error) << file;
        EXPECT_EQ(loaded.picture == nullptr, error != 0) << file;
    }
}

TEST(PictureTest, ALargePictureIsKeptLargeOrLosesItsSize)
{
    const ScratchFolder folder;
    savepicture("most.png", 8000, 8000);
    EXPECT_EQ(qt::loadpicturefile("most.png").error, 0);
    savepicture("wide.png", 8000, 1000);
    const PictureRef picture = qt::loadpicturefile("wide.png").picture;
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(QSize(picture->width, picture->height), QSize(8000, 1000));
    EXPECT_EQ(static_cast<const QPixmap*>(picture->pixels.get())->size(), QSize(4096, 512));
    EXPECT_EQ(qt::StretchedPicture().at(picture, {30, 40}, 2).size(), QSize(60, 80));
}

} // namespace

} // namespace brindor::tests
