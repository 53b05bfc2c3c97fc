#include "story.h"
#include "toolkit/web/webhost.h"
#include "toolkit/web/wire.h"

#include <emscripten/em_js.h>
#include <emscripten/emscripten.h>
#include <gtest/gtest.h>

// The person is outside of the page: tests/web/contract_test.mjs takes the acts from here one by one, does those of a
// person with real mouse and keys, and calls back for what the program itself does.
// clang-format off
EM_JS(void, stage_begin, (const char* acts), {
    globalThis.stage = {
        acts: JSON.parse(UTF8ToString(acts)),
        act: (number) => { Module._stage_act(number); Module.page.tell(0, 'stage'); },
    };
});
EM_JS(int, stage_left, (), { return globalThis.stage.acts.length; });
// clang-format on

namespace brindor::tests {

using namespace toolkit;

namespace {

std::function<void(int)> perform;

} // namespace

void play(Screen& screen, Acts acts, Verbs verbs)
{
    std::string text;
    int number = 0;
    for (const Act& act : acts) {
        text += (text.empty() ? "" : ",") + web::object("number", number++, "on", act.on, "verb", act.verb, "screen",
                                                        act.screen.name, "control",
                                                        act.control == nullptr ? "" : act.control->name, "more",
                                                        act.more, "program", verbs.contains(act.verb));
    }
    stage_begin(('[' + text + ']').c_str());
    // The act of a number; any other number where the story has no act for the screen in front.
    perform = [&](int wanted) {
        if (wanted >= 0 && static_cast<std::size_t>(wanted) < acts.size()) {
            const Act& act = acts[static_cast<std::size_t>(wanted)];
            verbs.at(act.verb)(act);
        } else {
            ADD_FAILURE() << "the story has no act for " << topscreen()->name;
            closescreen(*topscreen());
        }
    };
    const WebHost host([] {});
    showmodal(screen);
    EXPECT_EQ(stage_left(), 0) << "acts left";
}

} // namespace brindor::tests

extern "C" EMSCRIPTEN_KEEPALIVE void stage_act(int number)
{
    brindor::tests::perform(number);
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const int failed = RUN_ALL_TESTS();
    brindor::toolkit::web::tellended();
    return failed;
}
