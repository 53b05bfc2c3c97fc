#include "gallery.h"

#include "base/files.h"
#include "questions/question.h"
#include "timeline/reader.h"
#include "toolkit/qt/appearance.h"
#include "toolkit/qt/qthost.h"
#include "toolkit/qt/zoom.h"

#include <QApplication>
#include <QDir>
#include <QTest>

#include <cstdio>
#include <string>

// Draws every screen, with the timelines of a game folder, into a folder: screenshots GAMEFOLDER INTO ZOOM [NAME].
// With "max" behind the zoom the windows are maximised, with "half" half as large.
int main(int argc, char** argv)
{
    using namespace brindor;
    if (argc < 4) {
        std::fputs("usage: screenshots GAMEFOLDER INTO ZOOM[max|half] [SCREEN]\n", stderr);
        return 2;
    }
    const QApplication application(argc, argv);
    toolkit::qt::dressapplication();
    const std::string zoom = argv[3];
    const std::string only = argc > 4 ? argv[4] : "";
    const QString into = QDir(QString::fromLocal8Bit(argv[2])).absolutePath();
    if (!QDir().mkpath(into) || !enterdirectory(argv[1])) {
        std::fputs("The folders cannot be used.\n", stderr);
        return 1;
    }
    const toolkit::QtHost host;
    toolkit::qt::setbasezoom(toolkit::qt::Zoom(std::stod(zoom)));
    toolkit::qt::dressfonts();
    filltables();
    loadperiod();
    for (const tests::Exhibit& exhibit : tests::gallery()) {
        if (!only.empty() && exhibit.name != only) {
            continue;
        }
        tests::look(exhibit, [&](QWidget& window) {
            if (zoom.ends_with("max")) {
                window.setWindowState(Qt::WindowMaximized);
            } else if (zoom.ends_with("half")) {
                window.resize(window.size() / 2);
            }
            QTest::qWait(zoom.find_first_not_of("0123456789.") == std::string::npos ? 20 : 400);
            const QString file = into + '/' + QString::fromStdString(exhibit.name).replace(' ', '-') + ".png";
            if (!window.grab().save(file)) {
                std::fprintf(stderr, "%s cannot be written.\n", file.toLocal8Bit().constData());
            }
        });
    }
}
