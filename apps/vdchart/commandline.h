#pragma once

#include "arguments.h"
#include "exitcode.h"

#include <CLI/App.hpp>

/// The commands and options: the one table that the parser, the help, the manual page and the shell
/// completions go by.
class CommandLine
{
public:
    CommandLine();

    /// Runs the command that is asked for. Help and version are printed; a wrong command line is explained on
    /// the standard error.
    ExitCode run(int argc, const char* const* argv);

    const CLI::App& table() const { return m_app; }

private:
    using Run = ExitCode (*)(const Arguments&);
    CLI::App* addCommand(const char* name, const char* description, Run run);
    void addNew();
    void addPresets();
    void addCheck();
    void addRender();
    void addBatch();
    void addVerify();
    void addRead();
    void addWall();
    void addShow();
    void addShowOutput(CLI::App* command);
    void addWallCables(CLI::App* command);
    void addChanges(CLI::App* command);
    void addReport(CLI::App* command);
    void takeFormats(const std::vector<std::string>& formats);
    void addLanguage(CLI::App* command);
    void addEncoding(CLI::App* command);

    CLI::App m_app;
    Arguments m_arguments;
    Run m_run = nullptr;
};
