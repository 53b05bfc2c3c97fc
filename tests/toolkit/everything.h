#pragma once

#include "toolkit/dress.h"
#include "toolkit/operations.h"

#include <array>
#include <cmath>

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
        const auto next = [&down](double high) {
            return toolkit::Place{150, std::exchange(down, down + high + 75), 6000, high};
        };
        const auto tells = [this](const toolkit::Control& control) { return [&] { note(control.name); }; };
        put(look, *this, go, "go", "Go & see", next(480));
        go.accesskey = 'G';
        go.click = tells(go);
        putcaptioned(look, *this, {linelabel, "linelabel", "Salt & pepper", 1500}, line, "line", "", next(360));
        put(look, *this, lines, "lines", "", next(900));
        lines.multiline = true;
        for (toolkit::TextBox* field : {&line, &lines}) {
            field->change = [this, field] { note(field->name + '=' + field->text); };
            field->leave = [this, field] { note(field->name + " left"); };
        }
        for (std::size_t i = 0; i < options.size(); ++i) {
            put(look, *this, options[i], toolkit::indexed("option", static_cast<int>(i)), "Option", next(360));
            options[i].click = tells(options[i]);
        }
        put(look, *this, list, "list", "", next(1800));
        list.pick = [this](std::int16_t at) { note("list " + std::to_string(at)); };
        putcaptioned(look, *this, {combolabel, "combolabel", "Name", 1500}, combo, "combo", "", next(360));
        combo.pick = [this](std::int16_t at) { note("combo " + std::to_string(at)); };
        for (const auto& [inlist, incombo] : {std::pair{"zero", "Ada"}, {"one", "Bea"}, {"two", "Cid"}}) {
            additem(list, inlist);
            additem(combo, incombo);
        }
        for (std::size_t i = 0; i < bars.size(); ++i) {
            toolkit::Button& bar = bars[i];
            put(look, *this, bar, toolkit::indexed("bar", static_cast<int>(i)), i == 0 ? "One" : "Two", next(480));
            bar.bar = true;
            bar.press = [this, &bar] { pickup(bar, " pressed"); };
            bar.click = [this, &bar] { pickup(bar, " clicked"); };
        }
        put(look, *this, target, "target", "Egypt", next(480));
        target.drop = [this] {
            note("drop of " + dragged->name);
            enddrag(*dragged);
        };
        put(look, *this, spin, "spin", "", next(450));
        spin.says = line.says;
        spin.buddy = &line;
        put(look, *this, box, "box", "Kinds", {6300, 240, 2000, 900});
        box.border = true;
        put(look, box, inside, "inside", "Inside", {120, 300, 1700, 360});
        inside.click = tells(inside);
        resize = [this] { note(sized()); };
        unload = [this] { note("unloaded"); };
    }

    // Its state, where it is not normal, and its width, in twips.
    std::string sized() const
    {
        const char* state = windowstate == toolkit::normal ? "" : windowstate == toolkit::maximised ? "max " : "min ";
        return state + ("resized to " + std::to_string(std::lround(width)));
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

    // A click on a line builds the list anew, with the line one higher.
    void pickpushesup()
    {
        list.pick = [this](std::int16_t at) {
            std::vector<std::string> anew = list.lines;
            note(anew[static_cast<std::size_t>(at)] + " up");
            std::swap(anew[static_cast<std::size_t>(at)], anew[static_cast<std::size_t>(at - 1)]);
            clearlist(list);
            for (const std::string& text : anew) {
                additem(list, text);
            }
        };
    }

    toolkit::Button go;
    toolkit::Label linelabel, combolabel, target;
    toolkit::TextBox line, lines;
    std::array<toolkit::OptionButton, 2> options;
    toolkit::List list;
    toolkit::Combo combo;
    std::array<toolkit::Button, 2> bars;
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
