#include "toolkit/web/webhost.h"

#include "base/files.h"
#include "base/picturename.h"
#include "toolkit/operations.h"
#include "toolkit/web/dispatch.h"
#include "toolkit/web/wire.h"

#include <algorithm>
#include <utility>

namespace brindor::toolkit {

using web::Event;
using web::object;
using web::pixels;
using web::twipsinpixel;

namespace {

constexpr Size frame{2 * twipsinpixel, 26 * twipsinpixel}; // as the page draws it: an edge of a pixel and a title bar
constexpr int scrollbar = 15;                              // pixels
constexpr int leasttextwidth = 32;
constexpr int endmargin = 8;
constexpr std::size_t longestviewed = std::size_t{1} << 20; // bytes of a text to view

// Where the boxes stand in their containers: five numbers each, the first the control's.
void collectplaces(const Screen& screen, const std::vector<Box>& boxes, PixelPoint origin, std::vector<int>& places)
{
    for (const Box& box : boxes) {
        const PixelRect at = box.placed.moved(origin);
        places.insert(places.end(), {web::indexof(screen, box.control), at.left, at.top, at.width, at.height});
        collectplaces(screen, box.children, box.origin, places);
    }
}

} // namespace

WebHost::WebHost(std::function<void()> leaving) : before_(sethost(this)), leaving_(std::move(leaving)) {}

WebHost::~WebHost()
{
    sethost(before_);
}

WebHost::Window* WebHost::windowof(const Screen& screen)
{
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&screen](const Window& window) { return window.screen == &screen; });
    return found == windows_.end() ? nullptr : &*found;
}

WebHost::Window* WebHost::windowof(int serial)
{
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [serial](const Window& window) { return window.serial == serial; });
    return found == windows_.end() ? nullptr : &*found;
}

void WebHost::create(Screen& screen)
{
    windows_.push_back({&screen, ++lastserial_});
    windows_.back().changed.assign(screen.controls.size(), true);
}

void WebHost::show(Screen& screen)
{
    if (Window* window = windowof(screen)) {
        flush(*window);
        web::post(object("window", window->serial, "show", true));
    }
}

void WebHost::wait(Screen& screen)
{
    while (!screen.closed) {
        dispatch(nextevent());
    }
}

void WebHost::drop(Screen& screen)
{
    if (const Window* window = windowof(screen)) {
        web::post(object("window", window->serial, "drop", true));
        std::erase_if(windows_, [&screen](const Window& one) { return one.screen == &screen; });
    }
}

// Changes are only noted: they go to the page together, before it is waited for.
void WebHost::update(Control& control)
{
    if (Window* window = windowof(*control.screen)) {
        window->changed[static_cast<std::size_t>(web::indexof(*control.screen, &control))] = true;
    }
}

void WebHost::update(Screen& screen)
{
    if (Window* window = windowof(screen)) {
        window->screenchanged = true;
    }
}

void WebHost::focus(Control& control)
{
    if (Window* window = windowof(*control.screen)) {
        window->focus = web::indexof(*control.screen, &control);
    }
}

void WebHost::flush()
{
    for (Window& window : windows_) {
        if (window.screen->shown && !window.screen->closed) {
            flush(window);
        }
    }
}

void WebHost::flush(Window& window)
{
    const Screen& screen = *window.screen;
    bool any = std::exchange(window.screenchanged, false);
    if (any) {
        web::post(web::screentext(window.serial, screen));
    }
    for (std::size_t i = 0; i < window.changed.size(); ++i) {
        if (!window.changed[i]) {
            continue;
        }
        window.changed[i] = false;
        any = true;
        const Control& control = *screen.controls[i];
        const int index = static_cast<int>(i);
        std::string json = web::controltext(window.serial, control);
        if (const std::vector<std::string>* lines = web::linesof(control)) {
            const auto known = window.lines.find(index);
            if (known == window.lines.end() || known->second != *lines) {
                window.lines[index] = *lines;
                json = web::joined(std::move(json), object("lines", *lines));
            }
        }
        web::post(json);
    }
    if (any) {
        layout(window);
    }
    if (const int focused = std::exchange(window.focus, -1); focused >= 0) {
        web::post(object("window", window.serial, "focus", focused));
    }
}

void WebHost::layout(const Window& window)
{
    const Screen& screen = *window.screen;
    const Measures measures{web::pixelsof, [&](const Control& control, int width) {
                                return web::measure(window.serial, web::indexof(screen, &control), width);
                            }};
    const PixelSize seen{pixels(screen.width - frame.width), pixels(screen.height - frame.height)};
    std::vector<Box> boxes = boxesof(screen, measures);
    arrange(boxes, seen, {leasttextwidth, scrollbar + endmargin});
    const bool centred = !screen.resize || (screen.windowstate == maximised && screen.backdrop == nullptr);
    const CanvasPlan plan =
        screen.scrolls ? plancanvas(boxes, seen, scrollbar, endmargin, centred) : CanvasPlan{seen, {}};
    std::vector<int> places;
    collectplaces(screen, boxes, plan.origin, places);
    web::post(object("window", window.serial, "places", places, "canvas",
                     std::vector<int>{plan.canvas.width, plan.canvas.height}));
}

Event WebHost::nextevent()
{
    flush();
    return web::nextevent();
}

void WebHost::dispatch(const Event& event)
{
    if (event.act == "leaving") {
        leaving_();
        return;
    }
    if (event.act == "page") { // it has another form now, and texts may wrap otherwise
        for (Window& window : windows_) {
            window.screenchanged = true;
        }
        return;
    }
    Window* window = windowof(event.window);
    if (window == nullptr) {
        return;
    }
    Screen& screen = *window->screen;
    const bool exists = event.control >= 0 && static_cast<std::size_t>(event.control) < screen.controls.size();
    Control* control = exists ? screen.controls[static_cast<std::size_t>(event.control)] : nullptr;
    const bool taken = web::act(event, screen, control);
    window = windowof(event.window);
    if (window == nullptr) {
        return;
    }
    if (event.act == "resize") {
        window->screenchanged = true;
    } else if (!taken && exists) { // what was refused stands in the page as the person left it
        window->changed[static_cast<std::size_t>(event.control)] = true;
    }
}

bool WebHost::message(const Message& message)
{
    flush();
    const int serial = ++lastserial_;
    web::post(object("message", serial, "text", message.text, "title", message.title, "question", message.question,
                     "large", message.large));
    for (;;) {
        const Event event = nextevent();
        if (event.act == "answer" && event.window == serial) {
            return event.number != 0;
        }
        dispatch(event);
    }
}

Size WebHost::displaysize()
{
    const Size size = web::pagesize();
    return {size.width * twipsinpixel, size.height * twipsinpixel};
}

Size WebHost::framesize()
{
    return frame;
}

// The page fetches a picture from its own folder, so a name that leads out of it is refused here.
LoadedPicture WebHost::loadpicture(const std::string& file)
{
    constexpr int outside = 5;
    if (!picturenamefault(file).empty()) {
        return {nullptr, outside};
    }
    const web::FetchedPicture fetched = web::fetchpicture(file);
    if (fetched.error != 0) {
        return {nullptr, fetched.error};
    }
    const std::shared_ptr<const int> id(new int(fetched.id), [](const int* known) {
        web::forgetpicture(*known);
        delete known;
    });
    return {std::make_shared<PictureData>(PictureData{id, fetched.width, fetched.height}), 0};
}

void WebHost::startviewer(const std::string& file)
{
    if (const Result<std::string> text = readwhole(file, longestviewed)) {
        web::post(object("view", *text.value, "title", file));
    }
}

} // namespace brindor::toolkit
