#pragma once

#include <QString>

/// How the program ends.
enum class ExitCode
{
    Good = 0,
    Found = 1,      ///< check, verify or read found something
    Usage = 2,      ///< the command line is wrong
    Unreadable = 3, ///< a record, a list of walls or a picture cannot be read
    NotWritten = 4, ///< a file or the standard output cannot be written
    Interrupted = 130
};

/// Thrown where a command cannot go on. Ends the program with the message on the standard error.
struct Failure
{
    ExitCode code;
    QString message;
};
