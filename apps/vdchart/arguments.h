#pragma once

#include "changes.h"

#include <string>
#include <vector>

/// What `vdchart wall` asks for.
struct WallArguments
{
    std::string action;
    std::string name;
    std::string cabinet = "128x128"; ///< pixels, or the name of a preset
    std::string size = "15x9";       ///< columns and rows
    std::string start = "top-left";
    std::string direction = "rows";
    bool backAndForth = false;
    bool eachLine = false;
    bool backup = false;
    bool cableTable = false; ///< of a report: ports and circuits instead of cabinets
    int portPixels = 655360;
    int bitDepth = 8;
    int frameRate = 60;
    int watts = 0;
    int circuitWatts = 3000;
    std::string prefix;
    int digits = 1;
};

/// What `vdchart show` asks for.
struct ShowArguments
{
    std::string action;
    std::vector<std::string> files;   ///< walls of a new show, a show to pack, a pack to unpack
    std::vector<std::string> outputs; ///< "Left=3840x2160@60"
    bool autoPack = false;
    bool mayTurn = false;
};

/// What the command line asks for. Each command uses a part of it.
struct Arguments
{
    std::vector<std::string> records; ///< paths, of a reading also the pictures';  "-" for the standard input
    std::string record;
    std::string image;
    std::string output;
    std::string difference;
    int tolerance = 0; ///< of a channel, 0 to 255
    std::string page;  ///< of HTML
    std::string folder;
    std::string showOutput; ///< the one of a show that is meant; empty for all
    std::string walls;
    std::vector<std::string> presets;
    Changes changes;
    std::string language = "en";
    bool isLanguageGiven = false; ///< not just by default
    std::string format = "png";   ///< of a batch's pictures
    bool withoutRecord = false;   ///< PNG files do not carry it
    int compression = 1;          ///< of PNG, 0 to 9
    int jobs = 0;                 ///< 0 to choose by the machine
    WallArguments wall;
    ShowArguments show;
    bool namesOnly = false;
    bool errorsOnly = false;
    bool isStrict = false;       ///< what is unknown is an error
    bool resume = false;         ///< a batch leaves what is there
    std::string report = "text"; ///< or "json"
};
