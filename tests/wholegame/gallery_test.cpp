#include "base/program.h"
#include "gallery.h"
#include "support/gametest.h"
#include "support/pictures.h"
#include "timeline/reader.h"

#include <set>

// Every screen as it is seen and as an assistive tool is told of it, against what was approved. With BRINDOR_APPROVE
// set it is taken as it is now, to be looked at before it is kept.
namespace brindor::tests {

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

TEST_F(GalleryTest, AKeyScreenLooksOtherwiseThanApproved)
{
    constexpr int tolerated = 4; // of 1,000 pixels
    constexpr int clearly = 40;
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
            const QImage seen = afar(now);
            EXPECT_LE(1000 * differing(seen, afar(QImage(file)), clearly), tolerated * seen.width() * seen.height())
                << exhibit.name;
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

} // namespace brindor::tests
