#include "gallery.h"

#include "base/files.h"
#include "questions/question.h"
#include "timeline/reader.h"
#include "toolkit/qt/appearance.h"
#include "toolkit/qt/zoom.h"

#include <QDir>

// Draws every screen, with the timelines of a game folder, into another: screenshots GAMEFOLDER INTO ZOOM. With "max"
// behind the zoom the windows are maximised.
int main(int argc, char** argv)
{
    using namespace brindor;
    const QApplication application(argc, argv);
    const QStringList given = QApplication::arguments();
    const QString into = QDir(given.value(2)).absolutePath() + '/';
    if (given.size() != 4 || !QDir().mkpath(into) || !enterdirectory(given[1].toStdString())) {
        std::fputs("usage: screenshots GAMEFOLDER INTO ZOOM[max]\n", stderr);
        return 2;
    }
    toolkit::qt::dressapplication();
    const toolkit::QtHost host;
    const bool maximised = given[3].endsWith("max");
    toolkit::qt::setbasezoom(toolkit::qt::Zoom(given[3].left(given[3].size() - (maximised ? 3 : 0)).toDouble()));
    toolkit::qt::dressfonts();
    filltables();
    loadperiod();
    int unwritten = 0;
    for (const tests::Exhibit& exhibit : tests::gallery()) {
        tests::look(exhibit, [&](QWidget& window) {
            window.setWindowState(maximised ? Qt::WindowMaximized : Qt::WindowNoState);
            QTest::qWait(maximised ? 400 : 20);
            unwritten +=
                window.grab().save(into + QString::fromStdString(exhibit.name).replace(' ', '-') + ".png") ? 0 : 1;
        });
    }
    return unwritten;
}
