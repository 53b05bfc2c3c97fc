#include "toolkit/qt/application.h"

#include "toolkit/qt/appearance.h"
#include "toolkit/qt/fontrules.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>
#include <unistd.h>

namespace brindor::toolkit::qt {

namespace {

QString firstwarning; // what the window system said before it gave up
bool running = false;

// Qt ends the process with a core dump after a fatal message; the player gets one line instead. What else Qt has to
// say is for its own developers.
void takemessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type != QtFatalMsg) {
        if (firstwarning.isEmpty() && type == QtWarningMsg) {
            firstwarning = text.simplified();
        }
        return;
    }
    const QString why = running || firstwarning.isEmpty() ? text.simplified() : firstwarning;
    const QString line = QLatin1String(running ? "brindor: " : "brindor: no display: ") + why + u'\n';
    std::fputs(line.toLocal8Bit().constData(), stderr);
    std::fflush(stderr);
    ::_exit(1);
}

} // namespace

int runapplication(int argc, char** argv, const std::function<void()>& program)
{
    qInstallMessageHandler(takemessage);
    usefontrules();
    QApplication application(argc, argv);
    running = true;
    QApplication::setQuitOnLastWindowClosed(false);
    dressapplication();
    QTimer::singleShot(0, &application, [&program] {
        program();
        QCoreApplication::exit(0);
    });
    return QApplication::exec();
}

} // namespace brindor::toolkit::qt
