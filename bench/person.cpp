#include "person.h"

#include "toolkit/qt/application.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QTemporaryFile>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <stdexcept>

namespace brindor::bench {

namespace {

constexpr const char* commondisplay = R"({"screens": [{"name": "bench", "x": 0, "y": 0, "width": 1280, "height": 800,
                                             "logicalDpi": 96, "dpr": 1}]})";

} // namespace

double cputime()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

Person::Person(std::function<void(QWidget&, double)> act) : act_(std::move(act)), began_(cputime())
{
    qApp->installEventFilter(this);
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            [this] { blocking(); });
    arm();
}

bool Person::eventFilter(QObject* watched, QEvent* event)
{
    const QWidget* front = QApplication::activeModalWidget();
    if (event->type() == QEvent::Paint && watched->isWidgetType() &&
        static_cast<QWidget*>(watched)->window() == front) {
        painted_ = front;
    }
    return false;
}

void Person::arm()
{
    QTimer::singleShot(1, this, [this] { next(); });
}

// Events are waited for, so all others are worked off.
void Person::blocking()
{
    const QWidget* front = QApplication::activeModalWidget();
    if (cost_ == 0 && front != nullptr && front == painted_) {
        cost_ = cputime() - began_;
    }
}

void Person::next()
{
    arm();
    if (cost_ == 0) {
        return;
    }
    const double cost = cost_;
    cost_ = 0;
    painted_ = nullptr;
    QWidget& front = *QApplication::activeModalWidget();
    began_ = cputime();
    act_(front, cost);
}

void click(QWidget& window, const std::string& control)
{
    auto* widget = window.findChild<QWidget*>(QString::fromStdString(control));
    if (widget == nullptr) {
        throw std::out_of_range("no widget " + control);
    }
    const QPoint at = widget->mapTo(&window, widget->rect().center());
    const QPointer<QWindow> handle = window.windowHandle();
    QTest::mousePress(handle, Qt::LeftButton, {}, at);
    if (handle) {
        QTest::mouseRelease(handle, Qt::LeftButton, {}, at);
    }
}

double quantile(std::vector<double> values, double part)
{
    if (values.empty()) {
        return 0;
    }
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(std::ceil(part * static_cast<double>(values.size()))) - 1];
}

int runoffscreen(int argc, char** argv, const std::function<void()>& program)
{
    QTemporaryFile display;
    if (!display.open() || display.write(commondisplay) < 0 || !display.flush()) {
        return 1;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + display.fileName().toLocal8Bit());
    qputenv("QT_NO_GLIB", "1"); // whose loop does not say when it has nothing to do
    return toolkit::qt::runapplication(argc, argv, program);
}

} // namespace brindor::bench
