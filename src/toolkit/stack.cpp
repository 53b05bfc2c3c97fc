#include "toolkit/stack.h"

#include "toolkit/operations.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>
#include <vector>

namespace brindor::toolkit {

namespace {

Host* hostinforce = nullptr;
std::vector<Screen*> open;    // the last one is on top
std::vector<Screen*> windows; // those of them, or on their way to it, that have a window
int messages = 0;             // message boxes on the screen

bool isopen(const Screen& screen)
{
    return std::find(open.begin(), open.end(), &screen) != open.end();
}

bool showmessage(const Message& message)
{
    ++messages;
    const bool answer = host().message(message);
    --messages;
    return answer;
}

} // namespace

Host* sethost(Host* host)
{
    return std::exchange(hostinforce, host);
}

Host& host()
{
    if (hostinforce == nullptr) {
        std::fputs("brindor: no host for the screens\n", stderr);
        std::abort();
    }
    return *hostinforce;
}

bool haswindow(const Screen& screen)
{
    return std::find(windows.begin(), windows.end(), &screen) != windows.end();
}

bool reachable(const Control& control)
{
    if (control.screen == nullptr || topscreen() != control.screen) {
        return false;
    }
    for (const Control* at = &control; at != nullptr; at = at->container) {
        if (!at->visible || !at->enabled) {
            return false;
        }
    }
    return true;
}

Screen* topscreen()
{
    if (messages > 0 || open.empty() || open.back()->closed || !open.back()->shown) {
        return nullptr;
    }
    return open.back();
}

void load(Screen& screen)
{
    if (!std::exchange(screen.loaded, true)) {
        raise(screen.load);
    }
}

void showmodal(Screen& screen)
{
    if (isopen(screen)) {
        return;
    }
    open.push_back(&screen);
    load(screen);
    if (!screen.closed) {
        if (!screen.placed) {
            movetomiddle(screen);
        }
        host().create(screen);
        windows.push_back(&screen);
        screen.shown = true;
        raise(screen.resize);
    }
    if (!screen.closed) {
        host().show(screen);
        host().wait(screen);
        closescreen(screen); // where the wait ended because the program is to end
    }
    if (haswindow(screen)) {
        std::erase(windows, &screen);
        host().drop(screen);
    }
    std::erase(open, &screen);
}

void closescreen(Screen& screen)
{
    if (screen.closed || !isopen(screen)) {
        return;
    }
    screen.closed = true;
    screen.dragged = nullptr;
    raise(screen.unload);
    if (haswindow(screen)) {
        host().update(screen);
    }
}

void messagebox(std::string text, std::string_view title)
{
    showmessage({std::move(text), std::string(title)});
}

void announce(std::string text)
{
    showmessage({std::move(text), std::string(applicationtitle), false, true});
}

bool askyesno(std::string text, std::string_view title)
{
    return showmessage({std::move(text), std::string(title), true});
}

} // namespace brindor::toolkit
