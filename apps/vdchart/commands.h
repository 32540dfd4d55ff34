#pragma once

#include "exitcode.h"

struct Arguments;

// One function for each command. They read and write files and the standard streams, and throw Failure.

ExitCode runNew(const Arguments& arguments);
ExitCode runPresets(const Arguments& arguments);
ExitCode runCheck(const Arguments& arguments);
ExitCode runRender(const Arguments& arguments);
ExitCode runBatch(const Arguments& arguments);
ExitCode runWall(const Arguments& arguments);
ExitCode runShow(const Arguments& arguments);
ExitCode runVerify(const Arguments& arguments);
ExitCode runRead(const Arguments& arguments);
