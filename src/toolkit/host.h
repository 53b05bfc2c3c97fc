#pragma once

#include "base/result.h"
#include "toolkit/controls.h"

#include <string>
#include <string_view>

// What the screen layer asks of the outside world. One host is in force at a time: real windows, or an in-memory
// one for tests. A host reports what a person does through toolkit/user.h.
namespace brindor::toolkit {

struct Size {
    double width = 0; // twips
    double height = 0;
};

struct Message {
    std::string text;
    std::string title;
    bool question = false; // buttons Yes and No, else OK
    bool large = false;    // in large letters
};

struct LoadedPicture {
    PictureRef picture;
    int error = 0; // where there is no picture: a number above 0 that says why
};

class Host {
public:
    Host() = default;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    virtual ~Host() = default;

    virtual void create(Screen& screen) = 0; // makes a window for a loaded screen and does not show it yet
    virtual void show(Screen& screen) = 0;
    virtual void wait(Screen& screen) = 0;            // returns when the screen is closed
    virtual void drop(Screen& screen) = 0;            // the screen is closed: its window goes
    virtual void update(Control& control) = 0;        // a field of the control has changed
    virtual void update(Screen& screen) = 0;          // a field of the screen itself has changed
    virtual void focus(Control& control) = 0;         // the control has got the focus
    virtual bool message(const Message& message) = 0; // waits for the answer; true for OK and Yes
    virtual Size displaysize() = 0;                   // what windows may take of the display
    virtual Size framesize() = 0; // what a window's frame and title bar add to its inside; 0 while not known
    virtual LoadedPicture loadpicture(const std::string& file) = 0;
    virtual void startviewer(const std::string& file) = 0; // any failure is ignored
    virtual bool quitting() = 0;                           // the desktop wants the program to end: every wait returns
};

// Puts a host in force and gives back the one before, for the tests; none before the first.
Host* sethost(Host* host);

} // namespace brindor::toolkit
