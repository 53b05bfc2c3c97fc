#include "authoring/findings.h"
#include "base/program.h"
#include "mapmaker/maps.h"

#include <CLI/CLI.hpp>
#include <QGuiApplication>
#include <iostream>
#include <string>

int main(int argc, char** argv)
{
    using namespace brindor;
    CLI::App app("Draws the pictures of the " + std::string(titletext) + '.', "mapmaker");
    app.require_subcommand(1);
    std::string folder;
    std::string outfolder;
    std::string prefix;
    std::string outfile;

    CLI::App* maps = app.add_subcommand("maps", "Draw a map for every event that has no picture of its own");
    maps->add_option("FOLDER", folder, "The folder with events.csv")->required();
    maps->add_option("OUTFOLDER", outfolder, "The folder of the timeline file; the maps go to PREFIX/maps/ in it")
        ->required();
    maps->add_option("PREFIX", prefix, "The timeline file's name, with or without .bd3")->required();

    CLI::App* title = app.add_subcommand("title", "Draw the background of the main screen");
    title->add_option("OUTFILE", outfile, "The file to write, as TITLE.BMP; title.jpg for a JPEG file")->required();

    CLI::App* icons = app.add_subcommand("icons", "Draw the game's icon in all sizes");
    icons->add_option("OUTFOLDER", outfolder, "The folder for brindor-16.png to brindor-256.png and brindor.svg")
        ->required();

    bool overwrite = false;
    for (CLI::App* command : {maps, title, icons}) {
        command->add_flag("--overwrite", overwrite, "Replace other pictures of the same names");
    }

    CLI11_PARSE(app, argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.warning=false"); // about the machine's display, which plays no part here
    const QGuiApplication application(argc, argv);
    const authoring::Findings findings = maps->parsed()    ? mapmaker::drawmaps(folder, outfolder, prefix, overwrite)
                                         : icons->parsed() ? mapmaker::drawicons(outfolder, overwrite)
                                                           : mapmaker::drawtitle(outfile, overwrite);
    for (const authoring::Finding& finding : findings) {
        std::cerr << authoring::findingline(finding) << '\n';
    }
    return authoring::haserrors(findings) ? 1 : 0;
}
