#include "support/memoryhost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace brindor::tests {

using namespace toolkit;

void MemoryHost::wait(Screen& screen)
{
    for (int acts = 0; !screen.closed && !wantsquit; ++acts) {
        const auto person = persons.find(screen.name);
        if (person == persons.end() || acts == patience) {
            ADD_FAILURE() << "nobody closes the screen " << screen.name;
            closescreen(screen);
            return;
        }
        person->second(screen);
    }
}

bool MemoryHost::message(const Message& message)
{
    messages.push_back(message);
    if (whilemessage) {
        whilemessage(message);
    }
    if (!message.question) {
        return true;
    }
    const bool answer = !answers.empty() && answers.front();
    if (!answers.empty()) {
        answers.pop_front();
    }
    return answer;
}

LoadedPicture MemoryHost::loadpicture(const std::string& file)
{
    picturesasked.push_back(file);
    const auto known = pictures.find(file);
    if (known == pictures.end() || known->second != 0) {
        return {nullptr, known == pictures.end() ? 53 : known->second};
    }
    return {std::make_shared<PictureData>(PictureData{std::make_shared<std::string>(file), 640, 480}), 0};
}

Control& controlof(Screen& screen, const std::string& name, Kind kind)
{
    const auto found =
        std::find_if(screen.controls.begin(), screen.controls.end(),
                     [&name, kind](const Control* control) { return control->name == name && control->kind == kind; });
    if (found == screen.controls.end()) {
        throw std::out_of_range(screen.name + " has no control " + name);
    }
    return **found;
}

} // namespace brindor::tests
