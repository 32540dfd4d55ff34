#pragma once

#include <string>
#include <vector>

/// What the command line asks for. Each command uses a part of it.
struct Arguments
{
    std::vector<std::string> records; ///< paths, "-" for the standard input
    std::string record;
    std::string image;
    std::string output;
    std::string difference;
    std::string folder;
    std::string walls;
    std::vector<std::string> presets;
    std::vector<std::string> settings; ///< "group.field=value"
    std::string language = "en";
    std::string format = "png"; ///< of a batch's pictures
    int compression = 1;        ///< of PNG, 0 to 9
    int jobs = 0;               ///< 0 to choose by the machine
    bool namesOnly = false;
    bool errorsOnly = false;
};
