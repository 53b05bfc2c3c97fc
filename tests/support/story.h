#pragma once

#include "support/memoryhost.h"

namespace brindor::tests {

// What a person does to a control of whatever kind, through toolkit/user.h. Gives false where it was refused, and for a
// kind that knows no such thing; a click on a field moves the focus there.
bool click(toolkit::Control& control);
bool press(toolkit::Control& control);
bool type(toolkit::Control& control, const std::string& text); // the text as it stands after the typing
bool pick(toolkit::Control& control, std::int16_t line);

// Does on a screen what a story tells, step by step, through toolkit/user.h. The steps stand between "; ":
//   cmdNext        click on it
//   date1=1066     type into a field
//   Combo1#2       pick line 2 of a list
//   updown1+ -     step a spin up or down
//   esc, return    press the key
//   ?              put down what `look` sees
// A question during a step is answered with No, or with Yes where ":Y" stands behind the step.
// Gives what the steps led to, a line each: "!step" for one that was refused, every message, and what was looked at.
std::string act(MemoryHost& host, toolkit::Screen& screen, const std::string& story,
                const std::function<std::string()>& look = {});

// The pieces of a text between separators.
std::vector<std::string> split(const std::string& text, const std::string& separator);

// Every message since the last call, a line each: "title: text", without the usual title.
std::string said(MemoryHost& host);

} // namespace brindor::tests
