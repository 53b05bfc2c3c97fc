#include "base/picturename.h"
#include "support/scratchfolder.h"
#include "toolkit/operations.h"
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

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace brindor::tests {

namespace {

using namespace toolkit;

struct Shelf : Screen {
    Shelf()
    {
        name = "shelf";
        width = 9000;
        height = 9000;
        resize = [] {};
        add(*this, list, "list");
        list.place = {240, 240, 4000, 3000};
        add(*this, combo, "combo");
        combo.place = {240, 3600, 4000, 360};
        for (int i = 0; i < 4; ++i) {
            additem(list, "Line " + std::to_string(i));
        }
        list.pick = [this](std::int16_t line) { picked += std::to_string(line) + ' '; };
        combo.pick = [this](std::int16_t line) { picked += combo.lines[static_cast<std::size_t>(line)] + ' '; };
    }

    List list;
    Combo combo;
    std::string picked;
};

class WidgetTest : public testing::Test {
protected:
    void key(int key) { QTest::keyClick(windowof(shelf).windowHandle(), static_cast<Qt::Key>(key)); }
    QListWidget& list() { return static_cast<QListWidget&>(widgetof(shelf.list)); }

    QtHost host;
    Shelf shelf;
};

TEST_F(WidgetTest, TheCurrentLineStaysWhenTheListIsRebuilt)
{
    shelf.list.pick = [this](std::int16_t line) {
        shelf.picked += std::to_string(line) + ' ';
        clearlist(shelf.list);
        for (int i = 0; i < 4; ++i) {
            additem(shelf.list, "New " + std::to_string(i));
        }
    };
    showwhile(shelf, [this] {
        list().setFocus();
        key(Qt::Key_Down);
        key(Qt::Key_Down);
        key(Qt::Key_Space);
        key(Qt::Key_Return);
        EXPECT_EQ(list().currentRow(), 2);
        EXPECT_TRUE(list().selectedItems().isEmpty());
        EXPECT_EQ(list().currentItem()->text(), "New 2");
    });
    EXPECT_EQ(shelf.picked, "2 2 ");
}

TEST_F(WidgetTest, ADragOverManyLinesSelectsNone)
{
    shelf.list.multiselect = true;
    selectline(shelf.list, 3, true);
    showwhile(shelf, [this] {
        QWindow* window = windowof(shelf).windowHandle();
        const auto middle = [this](int row) {
            const QPoint at = list().visualItemRect(list().item(row)).center();
            return list().viewport()->mapTo(&windowof(shelf), at);
        };
        QTest::mousePress(window, Qt::LeftButton, {}, middle(0));
        QTest::mouseMove(window, middle(1));
        QTest::mouseMove(window, middle(2));
        QTest::mouseRelease(window, Qt::LeftButton, {}, middle(2));
        EXPECT_EQ(list().item(2)->checkState(), Qt::Unchecked);
        EXPECT_EQ(list().item(3)->checkState(), Qt::Checked);
        EXPECT_GE(list().visualItemRect(list().item(0)).height(), 32);
    });
    EXPECT_EQ(shelf.picked, "");
    EXPECT_EQ(shelf.list.selected, (std::vector<bool>{false, false, false, true}));
}

TEST_F(WidgetTest, ALongListOfNamesFillsQuicklyAndIsSearchedByTyping)
{
    settext(shelf.combo, "Name");
    showwhile(shelf, [this] {
        auto& combo = static_cast<QComboBox&>(widgetof(shelf.combo));
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < 250; ++i) {
            additem(shelf.combo, (i == 200 ? "Zenobia " : "Somebody ") + std::to_string(i));
        }
        EXPECT_LT(clock.elapsed(), 250);
        EXPECT_EQ(combo.count(), 250);
        EXPECT_EQ(combo.currentText(), "Name");
        EXPECT_EQ(combo.currentIndex(), -1);

        combo.setFocus();
        key(Qt::Key_F4);
        ASSERT_TRUE(combo.view()->isVisible());
        EXPECT_LE(combo.view()->viewport()->height() / combo.view()->visualRect(combo.model()->index(0, 0)).height(),
                  15);
        for (const char letter : std::string("zen")) {
            QTest::keyClick(combo.view(), letter);
        }
        QTest::keyClick(combo.view(), Qt::Key_Return);
        EXPECT_EQ(combo.currentText(), "Zenobia 200");
        clearlist(shelf.combo);
        EXPECT_EQ(combo.count(), 0);
        EXPECT_EQ(combo.currentText(), "");
    });
    EXPECT_EQ(shelf.picked, "Zenobia 200 ");
}

TEST_F(WidgetTest, TheMachinesOwnViewerComesFirst)
{
    const ScratchFolder folder;
    writefile("notepad", "#!/bin/sh\nprintf '%s|' \"$@\" > shown.tmp\nmv shown.tmp shown\n");
    std::filesystem::permissions("notepad", std::filesystem::perms::owner_all);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.path().string().c_str() + QByteArray(":") + path);
    toolkit::startviewer("some file.txt");
    qputenv("PATH", path);
    EXPECT_TRUE(QTest::qWaitFor([] { return std::filesystem::exists("shown"); }));
    EXPECT_EQ(contentof("shown"), "some file.txt|");
}

TEST(TextTest, BytesAreShownAndTypedTextComesBack)
{
    using qt::bytesof;
    using qt::shown;
    EXPECT_EQ(shown("a\r\nb\rc\nd"), QString("a\nb\nc\nd"));
    EXPECT_EQ(shown("Br\xc3\xbcgge"), QString::fromUtf8("Br\xc3\xbcgge"));
    EXPECT_EQ(shown("Br\xfcgge"), QString::fromUtf8("Br\xc3\xbcgge")); // Windows-1252
    EXPECT_EQ(bytesof(QString::fromUtf8("Br\xc3\xbcgge\nB")), "Br\xc3\xbcgge\r\nB");
    EXPECT_EQ(qt::unbroken("Rome (reign) -480 to ca. 1373, p. x -5"),
              QString::fromUtf8("Rome (reign)\u00a0-480 to ca.\u00a01373, p. x -5"));
    EXPECT_EQ(qt::withoutmnemonic("Bread & butter"), QString("Bread && butter"));
    EXPECT_EQ(qt::withoutmarkup("a  b"), QString("a  b"));
    EXPECT_EQ(qt::withoutmarkup("<b>a</b>"), QString("<span>&lt;b&gt;a&lt;/b&gt;</span>"));
}

class PictureTest : public testing::Test {
protected:
    // The head of a BMP file of a size, which holds no pixels.
    static std::string bmphead(std::int32_t width, std::int32_t height)
    {
        QByteArray head;
        QDataStream stream(&head, QIODevice::WriteOnly);
        stream.setByteOrder(QDataStream::LittleEndian);
        stream << quint16{0x4d42} << quint32{54} << quint32{0} << quint32{54};
        stream << quint32{40} << width << height << quint16{1} << quint16{24};
        for (int i = 0; i < 6; ++i) {
            stream << quint32{0};
        }
        return head.toStdString();
    }

    static void savepicture(const char* name, int width, int height)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        ASSERT_TRUE(image.save(name));
    }

    ScratchFolder folder;
};

TEST_F(PictureTest, EachFailureHasItsNumber)
{
    std::filesystem::create_directory("folder.png");
    std::filesystem::create_symlink("/etc/hostname", "link.png");
    writefile("text.png", "no picture");
    writefile("empty.png", "");
    savepicture("good.png", 64, 48);
    writefile("cut.png", contentof("good.png").substr(0, 60));
    writefile("manypixels.bmp", bmphead(10000, 10000));
    writefile("huge.png", "");
    std::filesystem::resize_file("huge.png", largestpicturefile + 1);
    struct Case {
        const char* file;
        int error;
    };
    for (const Case& wanted : {Case{"missing.png", qt::picturenotfound},
                               {"folder.png", qt::picturenotafile},
                               {"/dev/zero", qt::pictureoutside},
                               {"../good.png", qt::pictureoutside},
                               {"link.png", qt::pictureoutside},
                               {"text.png", qt::notapicture},
                               {"empty.png", qt::notapicture},
                               {"cut.png", qt::notapicture},
                               {"manypixels.bmp", qt::picturetoolarge},
                               {"huge.png", qt::picturetoolarge},
                               {"good.png", 0}}) {
        const LoadedPicture loaded = qt::loadpicturefile(wanted.file);
        EXPECT_EQ(loaded.error, wanted.error) << wanted.file;
        EXPECT_EQ(loaded.picture == nullptr, wanted.error != 0) << wanted.file;
    }
}

TEST_F(PictureTest, ALargePictureIsKeptSmaller)
{
    savepicture("wide.png", 8000, 1000);
    const LoadedPicture loaded = qt::loadpicturefile("wide.png");
    ASSERT_NE(loaded.picture, nullptr);
    EXPECT_EQ(loaded.picture->width, 8000);
    EXPECT_EQ(loaded.picture->height, 1000);
    qt::StretchedPicture stretched;
    EXPECT_EQ(static_cast<const QPixmap*>(loaded.picture->pixels.get())->size(), QSize(4096, 512));
    EXPECT_EQ(stretched.at(loaded.picture, {30, 40}, 2).size(), QSize(60, 80));
}

} // namespace

} // namespace brindor::tests
