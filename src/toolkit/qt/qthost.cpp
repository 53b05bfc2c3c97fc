#include "toolkit/qt/qthost.h"

#include "toolkit/qt/access.h"
#include "toolkit/qt/appearance.h"
#include "toolkit/qt/messages.h"
#include "toolkit/qt/pictures.h"
#include "toolkit/qt/screenwindow.h"
#include "toolkit/qt/startviewer.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QScreen>
#include <QWheelEvent>

#include <algorithm>

namespace brindor::toolkit {

QtHost::QtHost(const std::string& zoomfile) : before_(sethost(this)), zooms_(zoomfile)
{
    qApp->installEventFilter(this);
    qt::installaccess();
    if (!zoomfile.empty()) {
        const QScreen& display = *QGuiApplication::primaryScreen();
        usezoom(zooms_.of(display.size()).value_or(qt::startzoom(display.availableSize())));
    }
}

QtHost::~QtHost()
{
    sethost(before_);
}

qt::ScreenWindow* QtHost::windowof(const Screen& screen) const
{
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&screen](const auto& window) { return &window->screen() == &screen; });
    return found == windows_.end() ? nullptr : found->get();
}

qt::ScreenWindow* QtHost::top() const
{
    const auto seen =
        std::find_if(windows_.rbegin(), windows_.rend(), [](const auto& window) { return window->isVisible(); });
    return seen == windows_.rend() ? nullptr : seen->get();
}

void QtHost::create(Screen& screen)
{
    framesize();
    windows_.push_back(std::make_unique<qt::ScreenWindow>(screen, top()));
}

void QtHost::show(Screen& screen)
{
    if (qt::ScreenWindow* window = windowof(screen); window != nullptr && !quitting_) {
        window->present();
    }
}

void QtHost::wait(Screen& screen)
{
    qt::ScreenWindow* window = windowof(screen);
    if (window == nullptr || quitting_) {
        return;
    }
    window->run();
    quitting_ = quitting_ || !screen.closed; // every event loop of the application was ended
}

void QtHost::drop(Screen& screen)
{
    std::erase_if(windows_, [&screen](const auto& window) { return &window->screen() == &screen; });
    activatetop();
}

void QtHost::update(Control& control)
{
    if (qt::ScreenWindow* window = windowof(*control.screen)) {
        window->refresh(control);
    }
}

void QtHost::update(Screen& screen)
{
    if (qt::ScreenWindow* window = windowof(screen)) {
        window->refreshscreen();
    }
}

void QtHost::focus(Control& control)
{
    if (qt::ScreenWindow* window = windowof(*control.screen)) {
        window->focus(control);
    }
}

bool QtHost::message(const Message& message)
{
    const bool answer = !quitting_ && qt::showmessage(message, top());
    activatetop();
    return answer;
}

// Not every window system gives the keyboard back by itself.
void QtHost::activatetop()
{
    if (qt::ScreenWindow* window = top()) {
        window->activateWindow();
    }
}

QScreen& QtHost::display() const
{
    return top() == nullptr ? *QGuiApplication::primaryScreen() : *top()->QWidget::screen();
}

// What of the display a window may take.
Size QtHost::displaysize()
{
    const QSize size = display().availableSize();
    return {qt::basezoom().twips(size.width()), qt::basezoom().twips(size.height())};
}

Size QtHost::framesize()
{
    if (!windows_.empty()) {
        qt::learnframe(*windows_.front());
    }
    const QMargins margins = qt::framemargins();
    return {qt::basezoom().twips(margins.left() + margins.right()),
            qt::basezoom().twips(margins.top() + margins.bottom())};
}

LoadedPicture QtHost::loadpicture(const std::string& file)
{
    return qt::loadpicturefile(file);
}

void QtHost::startviewer(const std::string& file)
{
    qt::startviewer(file);
}

bool QtHost::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qApp && event->type() == QEvent::Quit) {
        quit();
        return true;
    }
    return zoomby(*event);
}

// Ctrl with Plus, Minus and 0, and with the wheel, whatever has the focus; false for everything else.
bool QtHost::zoomby(QEvent& event)
{
    int direction = 0;
    if (event.type() == QEvent::KeyPress && static_cast<QKeyEvent&>(event).modifiers().testFlag(Qt::ControlModifier)) {
        switch (static_cast<QKeyEvent&>(event).key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            direction = 1;
            break;
        case Qt::Key_Minus:
            direction = -1;
            break;
        case Qt::Key_0:
            break;
        default:
            return false;
        }
    } else if (event.type() == QEvent::Wheel &&
               static_cast<QWheelEvent&>(event).modifiers().testFlag(Qt::ControlModifier)) {
        const int turned = static_cast<QWheelEvent&>(event).angleDelta().y();
        if (turned == 0) {
            return true;
        }
        direction = turned > 0 ? 1 : -1;
    } else {
        return false;
    }
    const QSize size = display().size();
    if (direction == 0) {
        zooms_.choose(size, std::nullopt);
        usezoom(qt::startzoom(display().availableSize()));
    } else {
        const qt::Zoom chosen = qt::nextzoom(qt::basezoom(), direction);
        zooms_.choose(size, chosen);
        usezoom(chosen);
    }
    return true;
}

void QtHost::usezoom(qt::Zoom zoom)
{
    if (zoom == qt::basezoom()) {
        return;
    }
    qt::setbasezoom(zoom);
    qt::dressfonts();
    for (const auto& window : windows_) {
        window->rezoom();
    }
    qt::rezoommessages();
}

// The calls that opened the screens return one after the other, and the program ends as if a person had closed them.
void QtHost::quit()
{
    quitting_ = true;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* box = qobject_cast<QDialog*>(widget)) {
            box->reject();
        }
    }
    for (const auto& window : windows_) {
        window->endrun();
    }
}

} // namespace brindor::toolkit
