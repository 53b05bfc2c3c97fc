#include "editors/pentry.h"
#include "frame/services/score.h"
#include "gallery.h"
#include "support/gametest.h"
#include "support/timelines.h"
#include "timeline/writer.h"
#include "toolkit/operations.h"
#include "toolkit/qt/qthost.h"

#include <QAccessible>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include <map>
#include <set>

// Every screen as it is seen and as an assistive tool is told of it.
namespace brindor::tests {

namespace {

class GalleryTest : public GameTest {
protected:
    GalleryTest()
    {
        setcatalogues({"Egypt", "Babylon", "Athens", "Persia"}, {"Pharaoh", "King", "Lawgiver", "Poet"},
                      {"Battle", "Building", "Law"}, {"Egypt", "Hittites", "Greece", "Persia"});
        settimeline(
            {person("Hatshepsut", years(-1479, -1458, reign, reign), "Queen who ruled as a king.",
                    "Her temple stands at Deir el-Bahari.", 1, 1),
             person("Hammurabi of Babylon", years(-1792, -1750, approx, approx), "King whose laws were cut in stone.",
                    "", 2, 2),
             person("Solon", year(-594),
                    "Lawgiver who freed those who had sold themselves for their debts, and then went abroad for ten "
                    "years.",
                    "", 3, 3),
             person("Cyrus II", years(-559, -530, reign, reign), "Founder of an empire.", "", 4, 2),
             person("Sappho", year(-600), "Poet of Lesbos.", "", 3, 4),
             person("Ramesses II", years(-1279, -1213, reign, reign), "Builder of Abu Simbel.", "", 1, 1)},
            {event("Battle of Kadesh", year(-1274), "Two great powers fought with thousands of chariots.",
                   "It ended without a winner.", 1, 1, 2),
             event("Battle of Marathon", year(-490), "Ten thousand men threw a landing back into the sea.", "", 1, 3,
                   4),
             event("Great Pyramid of Giza", years(-2580, -2560, approx, approx),
                   "The tallest building for 3,800 years.", "", 2, 1, 1),
             event("Laws of Draco", year(-621), "Most offences were punished by death.", "", 3, 3, 3),
             event("Battle of Salamis", year(-480), "A fleet was lured into the narrows.", "", 1, 3, 4),
             event("Conquest of Egypt", year(-525), "The last pharaoh of the old line was taken.", "", 1, 4, 1)});
        writefile("Ancient.bd3", timelinetext());
    }

    toolkit::QtHost qthost;
};

// As small as a quarter, so that the edges of letters, which differ between machines, do not count.
QImage coarse(const QImage& image)
{
    return image.scaled(image.size() / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

// The part of two pictures that clearly differs; 1 for two sizes.
double difference(const QImage& a, const QImage& b)
{
    constexpr int clearly = 40;
    if (a.size() != b.size()) {
        return 1;
    }
    int differing = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y);
            const QRgb other = b.pixel(x, y);
            const int most = std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                                       std::abs(qBlue(one) - qBlue(other))});
            differing += most > clearly ? 1 : 0;
        }
    }
    return static_cast<double>(differing) / (a.width() * a.height());
}

// With BRINDOR_APPROVE set the pictures are taken as they are now, to be looked at before they are kept.
TEST_F(GalleryTest, AKeyScreenLooksOtherwiseThanApproved)
{
    constexpr double tolerated = 0.004;
    const std::set<std::string> keyscreens = {"mchoice", "qsort", "qmatch events", "showscor of qsort", "setup"};
    std::size_t seen = 0;
    for (const Exhibit& exhibit : gallery()) {
        if (!keyscreens.contains(exhibit.name)) {
            continue;
        }
        ++seen;
        players[0] = {};
        look(exhibit, [&](QWidget& window) {
            const QString file =
                QStringLiteral(APPROVED "/") + QString::fromStdString(exhibit.name).replace(' ', '-') + ".png";
            const QImage now = window.grab().toImage();
            if (qEnvironmentVariableIsSet("BRINDOR_APPROVE")) {
                ASSERT_TRUE(now.save(file));
            }
            const double part = difference(coarse(now), coarse(QImage(file)));
            EXPECT_LE(part, tolerated) << exhibit.name;
        });
    }
    EXPECT_EQ(seen, keyscreens.size());
}

std::string name(QAccessibleInterface& about)
{
    return about.text(QAccessible::Name).toStdString();
}

const std::map<toolkit::Kind, QAccessible::Role> roles = {{toolkit::Kind::label, QAccessible::StaticText},
                                                          {toolkit::Kind::button, QAccessible::Button},
                                                          {toolkit::Kind::optionbutton, QAccessible::RadioButton},
                                                          {toolkit::Kind::textbox, QAccessible::EditableText},
                                                          {toolkit::Kind::list, QAccessible::List},
                                                          {toolkit::Kind::combo, QAccessible::ComboBox},
                                                          {toolkit::Kind::frame, QAccessible::Grouping},
                                                          {toolkit::Kind::picture, QAccessible::Graphic},
                                                          {toolkit::Kind::spin, QAccessible::Client}};

void checkcontrol(const toolkit::Control& control, QWidget& widget)
{
    using toolkit::Kind;
    QAccessibleInterface* about = QAccessible::queryAccessibleInterface(&widget);
    ASSERT_NE(about, nullptr) << control.name;
    EXPECT_EQ(about->role(), roles.at(control.kind)) << control.name;
    const bool field = control.kind == Kind::textbox || control.kind == Kind::combo || control.kind == Kind::list;
    const bool silent = control.kind == Kind::spin ||
                        (control.kind == Kind::frame && !static_cast<const toolkit::Frame&>(control).border);
    EXPECT_TRUE(silent || !name(*about).empty()) << control.name;
    if (field) {
        EXPECT_NE(name(*about), control.text) << control.name;
        const bool shared = control.name == "Text3"; // "Size" stands for both numbers
        EXPECT_TRUE(shared || control.kind == Kind::list || !about->relations(QAccessible::Label).isEmpty())
            << control.name;
    }
    if (widget.isVisible()) {
        EXPECT_EQ(about->rect().size(), widget.size()) << control.name;
    }
    for (int i = 0; control.kind == Kind::spin && widget.isVisible() && i < about->childCount(); ++i) {
        EXPECT_TRUE(name(*about->child(i)).find(' ') != std::string::npos) << control.name;
        EXPECT_GE(about->child(i)->rect().height(), 20) << control.name;
    }
}

TEST_F(GalleryTest, AControlDoesNotTellWhatItIs)
{
    for (const Exhibit& exhibit : gallery()) {
        if (exhibit.name == "ImgDisp") {
            continue; // there is no picture here
        }
        look(exhibit, [&](QWidget& window) {
            const testing::ScopedTrace trace(__FILE__, __LINE__, exhibit.name);
            QAccessibleInterface* about = QAccessible::queryAccessibleInterface(&window);
            EXPECT_EQ(name(*about), window.windowTitle().toStdString());
            EXPECT_FALSE(window.windowIcon().isNull());
            const toolkit::Screen* screen = toolkit::topscreen();
            if (screen == nullptr) {
                EXPECT_EQ(about->role(), QAccessible::AlertMessage);
                return;
            }
            // Here each stands in front of nothing, but for those that a question has opened.
            EXPECT_EQ(about->role(),
                      exhibit.way.empty() || exhibit.window != "showscor" ? QAccessible::Window : QAccessible::Dialog);
            for (const toolkit::Control* control : screen->controls) {
                checkcontrol(*control, *window.findChild<QWidget*>(QString::fromStdString(control->name)));
            }
        });
    }
}

// From any record to the next ones, and to the one that a name means, with the keyboard alone.
TEST_F(GalleryTest, TheNameListLosesTheRecord)
{
    std::string way;
    walk(showpeople,
         {{"PEntry", [&](QWidget& window) {
               auto& list = *window.findChild<QComboBox*>("Combo1");
               const auto press = [&](const char* keys) {
                   for (const char* at = keys; *at != 0; ++at) {
                       const auto key = *at == 'v' ? Qt::Key_Down : *at == '^' ? Qt::Key_Up : Qt::Key_Return;
                       QTest::keyClick(window.windowHandle(), key);
                   }
                   way += list.currentText().toStdString() + ", ";
               };
               const auto type = [&](const char* text) {
                   list.lineEdit()->selectAll();
                   QTest::keyClicks(list.lineEdit(), text);
               };
               press("v");
               click(window, "cmdNext");
               click(window, "cmdNext");
               list.setFocus();
               press("^");
               type("sapp");
               press("r");
               type("nobody");
               press("rr");
               EXPECT_EQ(toolkit::topscreen()->name, "PEntry");
           }}});
    EXPECT_EQ(way, "Hammurabi of Babylon, Solon, Sappho, nobody, ");
    EXPECT_EQ(curperson, 4);
}

} // namespace

} // namespace brindor::tests
