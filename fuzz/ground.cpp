#include "ground.h"

#include "base/random.h"
#include "toolkit/host.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace brindor::fuzz {

namespace {

class SilentHost : public toolkit::Host {
public:
    void create(toolkit::Screen&) override {}
    void show(toolkit::Screen&) override {}
    void wait(toolkit::Screen&) override {}
    void drop(toolkit::Screen&) override {}
    void update(toolkit::Control&) override {}
    void update(toolkit::Screen&) override {}
    void focus(toolkit::Control&) override {}
    bool message(const toolkit::Message&) override { return true; }
    toolkit::Size displaysize() override { return {15360, 11520}; }
    toolkit::Size framesize() override { return {}; }
    toolkit::LoadedPicture loadpicture(const std::string&) override { return {nullptr, 53}; }
    void startviewer(const std::string&) override {}
    bool quitting() override { return true; }
};

struct Ground {
    SilentHost host;

    Ground()
    {
        std::array<char, 32> folder{"/dev/shm/brindor-fuzz-XXXXXX"};
        require(::mkdtemp(folder.data()) != nullptr && ::chdir(folder.data()) == 0);
        toolkit::sethost(&host);
        seedrandom(1);
    }
};

} // namespace

void preparedground()
{
    static Ground ground;
}

void writeinput(const char* file, std::string_view content)
{
    std::FILE* stream = std::fopen(file, "wb");
    require(stream != nullptr && std::fwrite(content.data(), 1, content.size(), stream) == content.size());
    require(std::fclose(stream) == 0);
}

void require(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

} // namespace brindor::fuzz
