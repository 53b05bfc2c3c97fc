#include "story.h"
#include "toolkit/operations.h"
#include "toolkit/web/webhost.h"
#include "toolkit/web/wire.h"

#include <emscripten/em_js.h>
#include <emscripten/emscripten.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

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

class WebStage* stage = nullptr;

class WebStage : public Stage {
public:
    explicit WebStage(Verbs verbs) : verbs_(std::move(verbs)) { stage = this; }
    ~WebStage() override { stage = nullptr; }

    void play(Screen& screen, Acts acts) override
    {
        acts_ = std::move(acts);
        std::string text;
        int number = 0;
        for (const Act& act : acts_) {
            text += (text.empty() ? "" : ",") + web::object("number", number++, "on", act.on, "verb", act.verb,
                                                            "screen", act.screen.name, "control",
                                                            act.control == nullptr ? "" : act.control->name, "more",
                                                            act.more, "program", verbs_.contains(act.verb));
        }
        stage_begin(('[' + text + ']').c_str());
        showmodal(screen);
        EXPECT_EQ(stage_left(), 0) << "acts left";
    }

    // The act of a number; any other number where the story has no act for the screen in front.
    void act(int number)
    {
        if (number >= 0 && static_cast<std::size_t>(number) < acts_.size()) {
            const Act& act = acts_[static_cast<std::size_t>(number)];
            verbs_.at(act.verb)(act);
        } else {
            ADD_FAILURE() << "the story has no act for " << topscreen()->name;
            closescreen(*topscreen());
        }
    }

private:
    Verbs verbs_;
    Acts acts_;
    WebHost host_{[] {}};
};

} // namespace

std::unique_ptr<Stage> makestage(const Verbs& own)
{
    return std::make_unique<WebStage>(own);
}

const char* stagename()
{
    return "in a page";
}

} // namespace brindor::tests

extern "C" EMSCRIPTEN_KEEPALIVE void stage_act(int number)
{
    brindor::tests::stage->act(number);
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const int failed = RUN_ALL_TESTS();
    brindor::toolkit::web::tellended();
    return failed;
}
