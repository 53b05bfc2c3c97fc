#pragma once

#include "toolkit/operations.h"

#include <array>
#include <string>
#include <utility>

namespace brindor::tests {

// A screen with one or two of everything, which writes down what happens to it.
struct Everything : toolkit::Screen {
    Everything(std::string screenname, std::string& log) : log_(log)
    {
        name = std::move(screenname);
        width = 9000;
        height = 9000;
        double down = 0;
        const auto put = [this, &down](toolkit::Control& control, std::string controlname, double controlheight) {
            toolkit::add(*this, control, std::move(controlname));
            control.place = {150, down, 6000, controlheight};
            down += controlheight + 75;
        };
        put(go, "go", 480);
        go.text = "Go";
        go.accesskey = 'G';
        go.click = [this] { note("go clicked"); };
        put(line, "line", 360);
        line.change = [this] { note("line is '" + line.text + "'"); };
        line.leave = [this] { note("line left"); };
        put(lines, "lines", 900);
        lines.multiline = true;
        lines.change = [this] { note("lines are '" + lines.text + "'"); };
        lines.leave = [this] { note("lines left"); };
        for (std::size_t i = 0; i < options.size(); ++i) {
            put(options[i], toolkit::indexed("option", static_cast<int>(i)), 360);
            options[i].text = "Option";
            options[i].click = [this, i] { note("option " + std::to_string(i) + " clicked"); };
        }
        put(list, "list", 1800);
        for (const char* text : {"zero", "one", "two"}) {
            toolkit::additem(list, text);
        }
        list.pick = [this](std::int16_t at) { note("line " + std::to_string(at) + " picked"); };
        put(combo, "combo", 360);
        for (const char* text : {"Ada", "Bea", "Cid"}) {
            toolkit::additem(combo, text);
        }
        combo.pick = [this](std::int16_t at) { note("combo line " + std::to_string(at) + " picked"); };
        for (std::size_t i = 0; i < bars.size(); ++i) {
            put(bars[i], toolkit::indexed("bar", static_cast<int>(i)), 480);
            bars[i].bar = true;
            bars[i].press = [this, i] { pickup(i, "pressed"); };
            bars[i].click = [this, i] { pickup(i, "clicked"); };
        }
        put(target, "target", 480);
        target.drop = [this] {
            note("drop of " + (dragged == nullptr ? "nothing" : dragged->name));
            toolkit::enddrag(*dragged);
        };
        put(spin, "spin", 450);
        spin.buddy = &line;
        resize = [this] { note("resized to " + std::to_string(static_cast<int>(width))); };
        unload = [this] { note("unloaded"); };
    }

    void note(const std::string& text) { log_ += name + ": " + text + '\n'; }

    toolkit::Button go;
    toolkit::TextBox line;
    toolkit::TextBox lines;
    std::array<toolkit::OptionButton, 2> options;
    toolkit::List list;
    toolkit::Combo combo;
    std::array<toolkit::Button, 2> bars;
    toolkit::Label target;
    toolkit::Spin spin;

private:
    void pickup(std::size_t i, const std::string& how)
    {
        note(bars[i].name + ' ' + how);
        toolkit::startdrag(bars[i]);
    }

    std::string& log_;
};

} // namespace brindor::tests
