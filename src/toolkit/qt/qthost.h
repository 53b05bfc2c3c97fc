#pragma once

#include "toolkit/host.h"
#include "toolkit/qt/displayzoom.h"

#include <QObject>

#include <memory>
#include <vector>

class QScreen;

namespace brindor::toolkit {

namespace qt {
class ScreenWindow;
}

// The host of real windows. Needs a QApplication as long as it lives, and is in force as long as it lives.
class QtHost : public QObject, public Host {
public:
    // `zoomfile` keeps the zooms that a person chooses. Without one the zoom is left as it is, and nothing is kept.
    explicit QtHost(const std::string& zoomfile = {});
    ~QtHost() override;

    void create(Screen& screen) override;
    void show(Screen& screen) override;
    void wait(Screen& screen) override;
    void drop(Screen& screen) override;
    void update(Control& control) override;
    void update(Screen& screen) override;
    void focus(Control& control) override;
    bool message(const Message& message) override;
    Size displaysize() override;
    Size framesize() override;
    LoadedPicture loadpicture(const std::string& file) override;
    void startviewer(const std::string& file) override;
    bool quitting() override { return quitting_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override; // the desktop's wish that the program ends; the zoom

private:
    qt::ScreenWindow* windowof(const Screen& screen) const; // none for a screen without a window
    qt::ScreenWindow* top() const;                          // the topmost window that is seen, if any
    void activatetop();
    void quit();
    bool zoomby(QEvent& event);
    void usezoom(qt::Zoom zoom);
    QScreen& display() const;

    Host* before_;
    std::vector<std::unique_ptr<qt::ScreenWindow>> windows_; // the last one is on top
    bool quitting_ = false;
    qt::ChosenZooms zooms_;
};

} // namespace brindor::toolkit
