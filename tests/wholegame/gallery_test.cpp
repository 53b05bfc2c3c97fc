#include "base/program.h"
#include "frame/services/score.h"
#include "gallery.h"
#include "support/gametest.h"
#include "timeline/reader.h"
#include "toolkit/qt/qthost.h"

#include <QAccessible>
#include <QImage>

#include <set>

// Every screen as it is seen and as an assistive tool is told of it, against what was approved. With BRINDOR_APPROVE
// set it is taken as it is now, to be looked at before it is kept.
namespace brindor::tests {

namespace {

class GalleryTest : public GameTest {
protected:
    GalleryTest()
    {
        std::filesystem::copy(APPROVED "/Ancient.bd3", "Ancient.bd3");
        loadperiod();
    }

    const bool approves = qEnvironmentVariableIsSet("BRINDOR_APPROVE");
    toolkit::QtHost qthost;
};

// The part of two pictures that clearly differs; 1 for two sizes. Both are made as small as a quarter, so that the
// edges of letters, which differ between machines, do not count.
double difference(const QImage& one, const QImage& other)
{
    constexpr int clearly = 40;
    const QSize size = one.size() / 4;
    const QImage a =
        one.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB888);
    const QImage b =
        other.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB888);
    double differing = one.size() == other.size() ? 0 : 1;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < 3 * a.width(); ++x) {
            differing += std::abs(a.constScanLine(y)[x] - b.constScanLine(y)[x]) > clearly ? 1 : 0;
        }
    }
    return differing / (3 * a.width() * a.height());
}

TEST_F(GalleryTest, AKeyScreenLooksOtherwiseThanApproved)
{
    constexpr double tolerated = 0.004;
    std::set<std::string> keyscreens = {"mchoice", "qsort", "qmatch events", "showscor of qsort", "setup"};
    for (const Exhibit& exhibit : gallery()) {
        if (keyscreens.erase(exhibit.name) == 0) {
            continue;
        }
        players[0] = {};
        look(exhibit, [&](QWidget& window) {
            const QString name = QString::fromStdString(exhibit.name).replace(' ', '-');
            const QString file = APPROVED "/" + name + ".png";
            const QImage now = window.grab().toImage();
            ASSERT_TRUE(!approves || now.save(file));
            EXPECT_LE(difference(now, QImage(file)), tolerated) << exhibit.name;
        });
    }
    EXPECT_TRUE(keyscreens.empty());
}

TEST_F(GalleryTest, AControlTellsAnAssistiveToolAnotherThingOrPlaceThanIsSeen)
{
    std::string now;
    for (const Exhibit& exhibit : gallery()) {
        if (exhibit.name == "ImgDisp") {
            continue; // there is no picture here
        }
        look(exhibit, [&](QWidget& window) {
            now += exhibit.name + ": " + told(window) + '\n';
            EXPECT_FALSE(window.windowIcon().isNull()) << exhibit.name;
            const toolkit::Screen* screen = toolkit::topscreen(); // none while a message is shown
            for (const toolkit::Control* control :
                 screen == nullptr ? std::vector<toolkit::Control*>() : screen->controls) {
                QWidget& widget = widgetof(*control);
                now += "    " + control->name + ": " + told(widget) + '\n';
                const QRect place = QAccessible::queryAccessibleInterface(&widget)->rect();
                EXPECT_TRUE(!widget.isVisible() || place.size() == widget.size()) << control->name;
            }
        });
    }
    now.replace(now.find(versiontext), versiontext.size(), "1");
    if (approves) {
        writefile(APPROVED "/told.txt", now);
    }
    EXPECT_EQ(now, contentof(APPROVED "/told.txt"));
}

} // namespace

} // namespace brindor::tests
