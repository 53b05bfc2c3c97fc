#pragma once

#include "toolkit/dress.h"
#include "toolkit/operations.h"

#include <array>
#include <string>
#include <utility>

namespace brindor::tests {

// A screen with one or two of everything, which writes down what happens to it.
struct Everything : toolkit::Screen {
    Everything(std::string screenname, std::string& notes, Everything* screenabove) : above(screenabove), log(notes)
    {
        name = std::move(screenname);
        caption = name;
        width = 9000;
        height = 9000;
        const toolkit::Look look;
        double down = 0;
        const auto next = [&down](double controlheight) {
            const double before = std::exchange(down, down + controlheight + 75);
            return toolkit::Place{150, before, 6000, controlheight};
        };
        put(look, *this, go, "go", "Go & see", next(480));
        go.accesskey = 'G';
        go.click = [this] { note("go"); };
        putcaptioned(look, *this, {linelabel, "linelabel", "Salt & pepper", 1500}, line, "line", "", next(360));
        line.change = [this] { note("line=" + line.text); };
        line.leave = [this] { note("line left"); };
        put(look, *this, lines, "lines", "", next(900));
        lines.multiline = true;
        lines.change = [this] { note("lines=" + lines.text); };
        lines.leave = [this] { note("lines left"); };
        for (std::size_t i = 0; i < options.size(); ++i) {
            put(look, *this, options[i], toolkit::indexed("option", static_cast<int>(i)), "Option", next(360));
            options[i].click = [this, i] { note(options[i].name); };
        }
        put(look, *this, list, "list", "", next(1800));
        combo.place = next(360);
        list.pick = [this](std::int16_t at) { note("list " + std::to_string(at)); };
        putcaptioned(look, *this, {combolabel, "combolabel", "Name", 1500}, combo, "combo", "", combo.place);
        combo.pick = [this](std::int16_t at) { note("combo " + std::to_string(at)); };
        for (const auto& [inlist, incombo] : {std::pair{"zero", "Ada"}, {"one", "Bea"}, {"two", "Cid"}}) {
            additem(list, inlist);
            additem(combo, incombo);
        }
        for (std::size_t i = 0; i < bars.size(); ++i) {
            put(look, *this, bars[i], toolkit::indexed("bar", static_cast<int>(i)), i == 0 ? "One" : "Two", next(480));
            bars[i].bar = true;
            bars[i].press = [this, i] { pickup(bars[i], " pressed"); };
            bars[i].click = [this, i] { pickup(bars[i], " clicked"); };
        }
        put(look, *this, target, "target", "Egypt", next(480));
        target.drop = [this] {
            note("drop of " + (dragged == nullptr ? "nothing" : dragged->name));
            enddrag(*dragged);
        };
        put(look, *this, spin, "spin", "", next(450));
        spin.says = line.says;
        spin.buddy = &line;
        put(look, *this, box, "box", "Kinds", {6300, 240, 2000, 900});
        box.border = true;
        put(look, box, inside, "inside", "Inside", {120, 300, 1700, 360});
        inside.click = [this] { note("inside"); };
        resize = [this] { note("resized to " + std::to_string(static_cast<int>(width))); };
        unload = [this] { note("unloaded"); };
    }

    // What happened, one after the other; that of the screens above the first with their name.
    void note(const std::string& what) { log += (log.empty() ? "" : ", ") + (name == "all" ? "" : name + '.') + what; }

    // The button go opens the screen above.
    void goopens()
    {
        go.click = [this] {
            showmodal(*above);
            note("goes on");
        };
    }

    toolkit::Button go;
    toolkit::Label linelabel;
    toolkit::TextBox line;
    toolkit::TextBox lines;
    std::array<toolkit::OptionButton, 2> options;
    toolkit::List list;
    toolkit::Label combolabel;
    toolkit::Combo combo;
    std::array<toolkit::Button, 2> bars;
    toolkit::Label target;
    toolkit::Spin spin;
    toolkit::Frame box;
    toolkit::OptionButton inside; // the box
    Everything* above;
    std::string& log;

private:
    void pickup(toolkit::Button& bar, const std::string& how)
    {
        note(bar.name + how);
        toolkit::startdrag(bar);
    }
};

} // namespace brindor::tests
