#pragma once

#include "toolkit/host.h"
#include "toolkit/layout.h"
#include "toolkit/web/page.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace brindor::toolkit {

// The host of a web page. Records go to the page, and what a person does there comes back one event at a time, in
// `wait` and `message` alone; so there is never more than one wait, and the page never calls into the program. Is in
// force as long as it lives.
class WebHost : public Host {
public:
    // `leaving` is called when the page may be left without coming back: what is to be kept is written then.
    explicit WebHost(std::function<void()> leaving);
    ~WebHost() override;

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
    bool quitting() override { return false; }

private:
    // The window of a screen. Its serial number tells it from an earlier window at the same address, which a late
    // event may still mean.
    struct Window {
        Screen* screen;
        int serial;
        bool screenchanged = true;
        std::map<int, std::vector<std::string>> lines = {}; // of the lists, as the page has them, by control
        std::vector<bool> changed = {};                     // by control
        int focus = -1;                                     // the control to bring the focus to, -1 for none
    };

    Window* windowof(const Screen& screen);
    Window* windowof(int serial);
    void flush();
    void flush(Window& window);
    void layout(const Window& window);
    web::Event nextevent();
    void dispatch(const web::Event& event);

    Host* before_;
    std::function<void()> leaving_;
    std::vector<Window> windows_; // the last one is on top
    int lastserial_ = 0;
};

} // namespace brindor::toolkit
