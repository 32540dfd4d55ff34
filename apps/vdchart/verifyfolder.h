#pragma once

#include "exitcode.h"

struct Arguments;

/// Compares the folder `arguments.image` with the manifest that a batch left in it, and prints what differs.
ExitCode verifyFolder(const Arguments& arguments);
