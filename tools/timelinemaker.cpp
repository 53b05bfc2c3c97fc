#include "authoring/commandline.h"
#include "authoring/commands.h"
#include "authoring/fairness.h"
#include "authoring/packs.h"
#include "authoring/summary.h"
#include "base/folders.h"
#include "base/playerfolder.h"
#include "base/program.h"
#include "base/text.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdint>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace brindor;
using namespace brindor::authoring;

// The exit status of a command.
int tell(const Findings& findings, std::ostream& out)
{
    for (const Finding& finding : findings) {
        out << findingline(finding) << '\n';
    }
    return haserrors(findings) ? 1 : 0;
}

// "2 warnings"
std::string counted(const Findings& findings, Severity severity, const std::string& word)
{
    const auto count = std::count_if(findings.begin(), findings.end(),
                                     [severity](const Finding& finding) { return finding.severity == severity; });
    return numbertext(count) + ' ' + word + (count == 1 ? "" : "s");
}

// What a command that makes something has to say: its errors in full, of the rest how much check would tell.
int tell(const Report& report, const std::string& folder, bool quiet)
{
    Findings errors = report.findings;
    std::erase_if(errors, [](const Finding& finding) { return finding.severity != Severity::error; });
    tell(errors, std::cerr);
    if (!report.said.empty() && !quiet) {
        std::cout << report.said << '\n';
    }
    Findings rest = report.findings;
    std::erase_if(rest, [](const Finding& finding) { return finding.severity == Severity::error; });
    if (!rest.empty() && !quiet && !folder.empty()) {
        std::cout << checkadvice(folder, counted(rest, Severity::warning, "warning"),
                                 counted(rest, Severity::note, "note"))
                  << '\n';
    }
    return errors.empty() ? 0 : 1;
}

int check(const std::vector<std::string>& targets)
{
    int status = 0;
    for (const std::string& target : targets) {
        const Findings findings = istimelinefile(target) ? checkfile(target) : checkfolder(target);
        status = std::max(status, tell(findings, std::cout));
        std::cerr << target << ": " << counted(findings, Severity::error, "error") << ", "
                  << counted(findings, Severity::warning, "warning") << ", "
                  << counted(findings, Severity::note, "note") << '\n';
    }
    return status;
}

int summarize(const std::vector<std::string>& folders)
{
    Findings findings;
    std::cout << summarytable(folders, findings);
    return tell(findings, std::cerr);
}

int judge(const std::vector<std::string>& targets, std::int64_t questions, std::uint64_t seed)
{
    Findings findings;
    std::cout << fairnesstable(targets, questions, seed, findings) << '\n'
              << questions << " questions of each kind, seed " << seed << ".\n";
    return tell(findings, std::cerr);
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Makes the timelines of the " + std::string(titletext) + " from spreadsheets.", "timelinemaker");
    app.require_subcommand(1);
    std::string folder;
    std::string file;
    std::string period;
    std::vector<std::string> targets;
    Places places = placesbeside(programfolder());
    std::uint64_t seed = 1;
    std::int64_t questions = 20000;
    bool summary = false;
    bool overwrite = false;
    bool quiet = false;
    bool semicolons = false;
    const auto takesfolder = [&](CLI::App* command) {
        command->add_option("FOLDER", folder, "The folder with people.csv and events.csv")->required();
    };
    const auto takesperiod = [&](CLI::App* command) {
        command->add_option("PERIOD", period, periodlist("or") + ": the one whose place it takes")
            ->check([](const std::string& word) {
                return periodnamed(word).empty() ? "the periods are " + periodlist("and") : std::string();
            });
        command->add_option("--game", places.game, "The folder of the game, where it is not found by itself");
    };
    const auto mayoverwrite = [&](CLI::App* command) {
        command->add_flag("--overwrite", overwrite, "Replace other files of the same names");
    };

    CLI::App* beginning =
        app.add_subcommand("new", "Begin a timeline: a folder with both spreadsheets and three rows each");
    beginning->add_option("FOLDER", folder, "The folder; made if missing")->required();
    beginning->add_flag("--semicolons", semicolons, "For a spreadsheet that separates columns by semicolons");

    CLI::App* checking = app.add_subcommand("check", "Tell what is wrong with a timeline");
    checking->add_option("TARGET", targets, "Folders, or timeline files ending in .bd3")->required();
    checking->add_flag("--summary", summary, "Print the balance of the folders as a table instead");

    CLI::App* playing = app.add_subcommand("play", "Play a timeline, in a copy of the game of its own");
    takesfolder(playing);
    takesperiod(playing);

    CLI::App* making = app.add_subcommand("make", "Make a timeline file from people.csv and events.csv");
    takesfolder(making);
    making->add_option("FILE", file, "The timeline file to write, as Medieval.bd3")->required();
    mayoverwrite(making);
    making->add_flag("--quiet", quiet, "Say nothing but errors");

    CLI::App* packing = app.add_subcommand("pack", "Pack a timeline with its maps and pictures for somebody else");
    takesfolder(packing);
    packing->add_option("OUT.zip", file, "The file to write")->required();
    mayoverwrite(packing);

    CLI::App* adding = app.add_subcommand("add", "Put a packed timeline into the game");
    adding->add_option("FILE.zip", file, "The file that somebody has packed")->required();
    takesperiod(adding);
    mayoverwrite(adding);

    CLI::App* exporting = app.add_subcommand("export", "Turn a timeline file into people.csv and events.csv");
    exporting->add_option("FILE", file, "The timeline file")->required();
    exporting->add_option("FOLDER", folder, "Where to write the two files; made if missing")->required();
    mayoverwrite(exporting);

    CLI::App* judging = app.add_subcommand("fairness", "Tell how many questions have two right answers");
    judging->add_option("TARGET", targets, "Folders, or timeline files ending in .bd3")->required();
    judging->add_option("--seed", seed, "Another number draws other questions");
    judging->add_option("--questions", questions, "How many of each kind")->check(CLI::PositiveNumber);
    judging->footer(fairnessrules());

    const std::vector<std::string> words(argv + 1, argv + argc);
    if (const std::string advice = commandadvice(words); !advice.empty()) {
        std::cerr << "timelinemaker: " << advice << '\n';
        return 2;
    }
    CLI11_PARSE(app, argc, argv);
    if (beginning->parsed()) {
        return tell(newtimeline(folder, semicolons ? ';' : ','), "", false);
    }
    if (checking->parsed()) {
        return summary ? summarize(targets) : check(targets);
    }
    if (playing->parsed()) {
        const auto ready = [&folder](const Report& report) {
            tell(report, folder, false);
            std::cout << "The game starts." << std::endl;
        };
        return tell(playtimeline(folder, period, places, ready), folder, false);
    }
    if (making->parsed()) {
        return tell(maketimeline(folder, file, overwrite), folder, quiet);
    }
    if (packing->parsed()) {
        return tell(packtimeline(folder, file, overwrite, places), folder, false);
    }
    if (adding->parsed()) {
        const Result<std::string> own = readyplayerfolder(places.game);
        if (!own) {
            std::cerr << own.reason << '\n';
            return 1;
        }
        places.game = *own.value;
        return tell(addpack(file, period, overwrite, places), "", false);
    }
    if (exporting->parsed()) {
        return tell(exporttimeline(file, folder, overwrite), "", false);
    }
    return judge(targets, questions, seed);
}
