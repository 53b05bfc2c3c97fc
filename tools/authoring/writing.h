#pragma once

#include "authoring/findings.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace brindor::authoring {

// Everything that the tools write goes through here, so that one procedure decides what may be written, and decides it
// for all files of a command before the first of them is written.
class Writing {
public:
    Writing(bool overwrite, Findings& findings) : overwrite_(overwrite), findings_(findings) {}

    // Takes the content for `name`, a file in `folder` or below it, where folders that are missing will be made. It is
    // refused, with an error, where
    // - the name is not relative, or has a part that is empty or begins with a dot;
    // - the name ends in something else than bd3, csv, zip, svg or a picture's ending, or the content is no such file;
    // - a link leads out of the folder;
    // - another file was taken for the same place;
    // - another file stands there, unless `overwrite`; with it too where that file is of another kind than the name
    // says.
    void add(const std::string& folder, const std::string& name, std::string content);

    // The same for a path as a person gives it.
    void add(const std::string& path, std::string content);

    // Writes what was taken, in that order; a file that stands there with the same content is left alone. Writes
    // nothing where the findings hold an error, and stops at the first failure. True where all was written.
    bool commit();

private:
    struct File {
        std::string path;
        std::string content;
    };

    bool overwrite_;
    Findings& findings_;
    std::vector<File> files_;
    std::map<std::string, std::size_t> taken_; // places in files_ by path
};

// "game" for "game/Medieval.bd3"; empty for a bare name.
std::string folderof(const std::string& path);

} // namespace brindor::authoring
