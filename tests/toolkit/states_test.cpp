#include "toolkit/dress.h"
#include "toolkit/operations.h"
#include "toolkit/qt/qthost.h"
#include "windows.h"

#include <QAccessible>
#include <QMetaEnum>

#include <gtest/gtest.h>

#include <functional>
#include <string>

// What an assistive tool, and so a person who does not see the window, is told of each kind of control.
namespace brindor::tests {

namespace {

using namespace toolkit;

struct Form : Screen {
    Form()
    {
        const Look look{{200, 200, 255}, {255, 255, 0}, {}};
        name = "form";
        caption = "A form";
        width = 9000;
        height = 9000;
        resize = [] {};
        double at = 0;
        const auto next = [&at] { return Place{150, at += 600, 3000, 480}; };
        put(look, *this, go, "go", "Bread & butter", next());
        putcaptioned(look, *this, {linelabel, "linelabel", "Salt & pepper", 1200}, line, "line", "12", next());
        put(look, *this, spin, "spin", "", {3300, line.place.top, 720, 360});
        spin.buddy = &line;
        spin.says = line.says;
        putcaptioned(look, *this, {combolabel, "combolabel", "Nation", 1200}, combo, "combo", "Rome", next());
        put(look, *this, frame, "frame", "Kinds", {150, 2400, 3000, 900});
        put(look, frame, option, "option", "Reign", optionplace(0, 3000));
        put(look, *this, list, "list", "", {5000, 600, 3000, 1200});
        list.says = "Lines";
        list.multiselect = true;
        additem(list, "One");
        for (Button* bar : {&first, &second}) {
            put(look, *this, *bar, bar == &first ? "first" : "second", bar == &first ? "First" : "Second",
                {4000, bar == &first ? 4200.0 : 4800.0, 1200, 480});
            bar->bar = true;
            bar->tooltip = "Drag it";
        }
        put(look, *this, row, "row", "Egypt", {150, 5400, 6000, 480});
        row.drop = [] {};
    }

    Button go;
    Label linelabel;
    TextBox line;
    Spin spin;
    Label combolabel;
    Combo combo;
    Frame frame;
    OptionButton option;
    List list;
    Button first;
    Button second;
    Label row;
};

std::string related(QAccessibleInterface& about, QAccessible::Relation kind)
{
    std::string names;
    for (const auto& [other, relation] : about.relations(kind)) {
        names += ' ' + other->text(QAccessible::Name).toStdString();
    }
    return names;
}

// "role 'name' = value: description states < its labels > what it labels"
std::string told(QObject& widget)
{
    QAccessibleInterface* about = QAccessible::queryAccessibleInterface(&widget);
    std::string text = QMetaEnum::fromType<QAccessible::Role>().valueToKey(about->role());
    text += " '" + about->text(QAccessible::Name).toStdString() + '\'';
    for (const auto& [what, mark] : {std::pair{QAccessible::Value, " = "}, {QAccessible::Description, ": "}}) {
        const std::string more = about->text(what).toStdString();
        text += more.empty() ? "" : mark + more;
    }
    const QAccessible::State state = about->state();
    text += state.checked ? " checked" : "";
    text += state.disabled ? " disabled" : "";
    text += state.invisible ? " invisible" : "";
    text += state.modal ? " modal" : "";
    const std::string labels = related(*about, QAccessible::Label);
    const std::string fields = related(*about, QAccessible::Labelled);
    return text + (labels.empty() ? "" : " <" + labels) + (fields.empty() ? "" : " >" + fields);
}

TEST(StatesTest, WhatEachControlTells)
{
    const QtHost host;
    Form form;
    const auto nothing = [] {};
    const struct {
        std::function<void()> act;
        Control& control;
        const char* told;
    } cases[] = {
        {nothing, form.go, "Button 'Bread & butter'"},
        {[&] { disable(form.go); }, form.go, "Button 'Bread & butter' disabled"},
        {nothing, form.line, "EditableText 'Salt & pepper' = 12 < Salt & pepper"},
        {[&] { settext(form.line, "13"); }, form.line, "EditableText 'Salt & pepper' = 13 < Salt & pepper"},
        {nothing, form.linelabel, "StaticText 'Salt & pepper' > Salt & pepper"},
        {nothing, form.combo, "ComboBox 'Nation' = Rome < Nation"},
        {nothing, form.frame, "Grouping 'Kinds'"},
        {nothing, form.option, "RadioButton 'Reign'"},
        {[&] { select(form.option); }, form.option, "RadioButton 'Reign' checked"},
        {nothing, form.list, "List 'Lines' = Lines"},
        {[&] { hide(form.list); }, form.list, "List 'Lines' = Lines invisible"},
        {nothing, form.first, "Button 'First': Drag it"},
        {[&] { startdrag(form.first); }, form.first, "Button 'First': Picked up. Drag it"},
        {nothing, form.row, "StaticText 'Egypt': Empty."},
        {[&] {
             enddrag(form.first);
             movetop(form.first, form.row.place.top);
         },
         form.first, "Button 'First': On the row Egypt. Drag it"},
        {nothing, form.row, "StaticText 'Egypt': Holds First."},
        {[&] {
             startdrag(form.second);
             enddrag(form.second);
             movetop(form.second, form.row.place.top);
         },
         form.row, "StaticText 'Egypt': Holds Second."}, // it lies on top
    };
    showwhile(form, [&] {
        EXPECT_EQ(told(windowof(form)), "Window 'A form'");
        for (const auto& c : cases) {
            c.act();
            EXPECT_EQ(told(widgetof(c.control)), c.told);
            EXPECT_EQ(widgetof(c.control).objectName().toStdString(), c.control.name);
        }
        EXPECT_EQ(told(*widgetof(form.spin).children().at(0)), "Button 'Salt & pepper up'");
    });
}

TEST(StatesTest, AScreenInFrontIsADialogAndAPressIsThatOfTheMouse)
{
    const QtHost host;
    Form below;
    Form form;
    std::string log;
    form.name = "front";
    form.option.press = [&] { log += "pressed "; };
    below.load = [&] { form.caption = "In front"; };
    showwhile(below, [&] {
        showwhile(form, [&] {
            EXPECT_EQ(told(windowof(form)), "Dialog 'In front' modal");
            QAccessibleInterface* option = QAccessible::queryAccessibleInterface(&widgetof(form.option));
            option->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            EXPECT_EQ(option->rect().height(), widgetof(form.option).height()); // what is seen can be hit
        });
    });
    EXPECT_EQ(log, "pressed ");
}

} // namespace

} // namespace brindor::tests
