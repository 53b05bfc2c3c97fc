#include "authoring/commands.h"
#include "authoring/fairness.h"
#include "authoring/summary.h"
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
int report(const Findings& findings, std::ostream& out)
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

int check(const std::vector<std::string>& targets)
{
    int status = 0;
    for (const std::string& target : targets) {
        const Findings findings = istimelinefile(target) ? checkfile(target) : checkfolder(target);
        status = std::max(status, report(findings, std::cout));
        std::cerr << target << ": " << counted(findings, Severity::error, "error") << ", "
                  << counted(findings, Severity::warning, "warning") << ", " << counted(findings, Severity::note, "note")
                  << '\n';
    }
    return status;
}

int summarize(const std::vector<std::string>& folders)
{
    Findings findings;
    std::cout << summarytable(folders, findings);
    return report(findings, std::cerr);
}

int judge(const std::vector<std::string>& targets, std::uint64_t seed)
{
    Findings findings;
    std::cout << fairnesstable(targets, seed, findings) << '\n'
              << fairnessdraws << " questions of each kind, seed " << seed << ".\n";
    return report(findings, std::cerr);
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Makes the timeline files of the Brindor History Trivia Game from spreadsheets.", "timelinemaker");
    app.require_subcommand(1);
    std::string folder;
    std::string file;
    std::vector<std::string> targets;
    bool summary = false;
    bool overwrite = false;

    CLI::App* make = app.add_subcommand("make", "Make a timeline file from people.csv and events.csv");
    make->add_option("FOLDER", folder, "The folder with the two files")->required();
    make->add_option("FILE", file, "The timeline file to write, as Medieval.bd3")->required();

    CLI::App* checking = app.add_subcommand("check", "Tell what is wrong with a timeline");
    checking->add_option("TARGET", targets, "Folders, or timeline files ending in .bd3")->required();
    checking->add_flag("--summary", summary, "Print the balance of the folders as a table instead");

    CLI::App* exporting = app.add_subcommand("export", "Turn a timeline file into people.csv and events.csv");
    exporting->add_option("FILE", file, "The timeline file")->required();
    exporting->add_option("FOLDER", folder, "Where to write the two files; made if missing")->required();
    exporting->add_flag("--overwrite", overwrite, "Replace people.csv and events.csv that stand in the folder");

    std::uint64_t seed = 1;
    CLI::App* judging = app.add_subcommand("fairness", "Tell how many questions have two right answers");
    judging->add_option("TARGET", targets, "Folders, or timeline files ending in .bd3")->required();
    judging->add_option("--seed", seed, "Another number draws other questions");
    judging->footer(fairnessrules());

    CLI11_PARSE(app, argc, argv);
    if (make->parsed()) {
        return report(maketimeline(folder, file), std::cerr);
    }
    if (checking->parsed()) {
        return summary ? summarize(targets) : check(targets);
    }
    if (judging->parsed()) {
        return judge(targets, seed);
    }
    return report(exporttimeline(file, folder, overwrite), std::cerr);
}
