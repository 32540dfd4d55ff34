#include "commandline.h"

#include "commands.h"
#include "fileclaims.h"
#include "languages.h"
#include "manual.h"

#include <vdpatterndesign_version.h>

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <iostream>

namespace {

constexpr char description[] =
    "Test charts for LED screens from the command line: the same pixels as in the chart editor.";

constexpr char footer[] =
    "Exit codes: 0 good, 1 check, verify or read found something, 2 wrong usage, 3 unreadable input, "
    "4 not written, 130 interrupted.";

/// An empty path comes from a script whose variable is not set: it is not the same as none.
std::string problemOfPath(const std::string& path)
{
    return path.empty() ? "The path is empty" : "";
}

/// What was read once is not there a second time.
void requireOneStandardInput(const Arguments& arguments)
{
    std::vector<std::string> inputs = arguments.records;
    inputs.insert(inputs.end(), {arguments.record, arguments.image, arguments.walls});
    if (std::count(inputs.begin(), inputs.end(), "-") > 1)
        throw Failure{ExitCode::Usage,
                      QStringLiteral("-: stands twice, but there is only one standard input")};
}

/// As `check a.json >> a.json` would have it.
void requireOwnOutput(const Arguments& arguments)
{
    FileClaims claims;
    std::vector<std::string> inputs = arguments.records;
    inputs.insert(inputs.end(), {arguments.record, arguments.image, arguments.walls});
    for (const std::string& input : inputs)
        claims.reads(QString::fromStdString(input), QStringLiteral("a file that is read"));
    claims.protect(QStringLiteral("-"));
}

/// What is said besides of a command line that is refused, empty where there is nothing.
std::string hint(const CLI::App& table)
{
    const CLI::App* render = table.get_subcommand("render");
    const bool another = render->parsed() && !render->remaining().empty();
    return another ? "The file of the picture follows -o: vdchart render RECORD -o " +
                         render->remaining().back() + '\n'
                   : std::string();
}

/// What `--generate` prints.
std::string generated(const std::string& what, const CLI::App& table)
{
    if (what == "man")
        return manualPage(table);
    return what == "bash" ? bashCompletion(table) : zshCompletion(table);
}

} // namespace

CommandLine::CommandLine()
    : m_app(description, "vdchart")
{
    m_app.footer(footer);
    m_app.require_subcommand(0, 1);
    m_app.set_version_flag("--version", "vdchart " VDPATTERNDESIGN_VERSION, "Print the version and exit");
    m_app.set_help_flag("-h,--help", "Print this help and exit");
    m_app.add_option("--generate", "Print the manual page or a shell completion and exit")
        ->type_name("WHAT")
        ->check(CLI::IsMember({"man", "bash", "zsh"}));
    addNew();
    addPresets();
    addCheck();
    addRender();
    addBatch();
    addVerify();
    addRead();
    addWall();
    addShow();
}

ExitCode CommandLine::run(int argc, const char* const* argv)
{
    try {
        m_app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (m_app.exit(error) == 0)
            return ExitCode::Good;
        std::cerr << hint(m_app);
        return ExitCode::Usage;
    }
    if (const CLI::Option* generate = m_app.get_option("--generate"); generate->count() > 0) {
        std::cout << generated(generate->as<std::string>(), m_app);
        return ExitCode::Good;
    }
    if (!m_run) {
        std::cerr << m_app.help();
        return ExitCode::Usage;
    }
    requireOneStandardInput(m_arguments);
    requireOwnOutput(m_arguments);
    return m_run(m_arguments);
}

CLI::App* CommandLine::addCommand(const char* name, const char* text, Run run)
{
    CLI::App* command = m_app.add_subcommand(name, text);
    command->callback([this, run] { m_run = run; });
    return command;
}

void CommandLine::addNew()
{
    CLI::App* command = addCommand("new", "Print a new record", &runNew);
    command
        ->add_option("-p,--preset", m_arguments.presets, "Start from this preset; several follow one another")
        ->type_name("PRESET")
        ->allow_extra_args(false);
    addChanges(command);
}

void CommandLine::addPresets()
{
    CLI::App* command = addCommand("presets", "List the presets for new records", &runPresets);
    command->add_flag("--names", m_arguments.namesOnly, "Print the names only");
}

void CommandLine::addCheck()
{
    CLI::App* command =
        addCommand("check", "Look for errors in records, and for what a technician should know", &runCheck);
    command->add_option("record", m_arguments.records, "The records; - for the standard input")
        ->type_name("RECORD")
        ->required();
    command->add_flag("--errors", m_arguments.errorsOnly, "Look for errors only");
    command->add_flag("--strict", m_arguments.isStrict, "Members that are unknown are errors");
    addReport(command);
    addChanges(command);
    addLanguage(command);
}

void CommandLine::addRender()
{
    CLI::App* command = addCommand("render", "Write the picture of a record", &runRender);
    command->add_option("record", m_arguments.record, "The record; - for the standard input")
        ->type_name("RECORD")
        ->required();
    command
        ->add_option("-o,--output", m_arguments.output,
                     "The picture, .png, .jpg or .bmp; - for PNG on the standard output")
        ->type_name("FILE")
        ->required();
    addShowOutput(command);
    addChanges(command);
    addLanguage(command);
    addEncoding(command);
}

void CommandLine::addBatch()
{
    CLI::App* command =
        addCommand("batch", "Write the pictures of many records, of many walls, or of both", &runBatch);
    command->add_option("record", m_arguments.records, "The records; - for the standard input")
        ->type_name("RECORD")
        ->required();
    command
        ->add_option(
            "-w,--walls", m_arguments.walls,
            "A table of walls: the columns are name, width, height, rows, columns or any field of a record")
        ->type_name("FILE")
        ->check(problemOfPath);
    command->add_option("-o,--output", m_arguments.folder, "The folder of the pictures and of manifest.json")
        ->type_name("FOLDER")
        ->check(problemOfPath)
        ->required();
    command
        ->add_option_function<std::vector<std::string>>(
            "-f,--format", [this](const auto& formats) { takeFormats(formats); },
            "The pictures' format; json, alone or besides, to tell what was done in JSON; repeatable")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"png", "jpg", "bmp", "json"}))
        ->allow_extra_args(false)
        ->default_str(m_arguments.format);
    command->add_flag("-r,--resume", m_arguments.resume,
                      "Keep the pictures that the folder's manifest proves to be up to date");
    command
        ->add_option("-j,--jobs", m_arguments.jobs,
                     "How many pictures are worked on at once; 0 to choose by the machine")
        ->type_name("NUMBER")
        ->check(CLI::Range(0, 64))
        ->capture_default_str();
    addChanges(command);
    addLanguage(command);
    addEncoding(command);
}

void CommandLine::addVerify()
{
    CLI::App* command =
        addCommand("verify", "Tell whether a picture is the chart of a record, pixel for pixel", &runVerify);
    command
        ->add_option("image", m_arguments.image,
                     "The picture; - for the standard input; or the folder of a batch, to look whether its "
                     "pictures are still those of its manifest")
        ->type_name("FILE")
        ->required();
    command
        ->add_option("record", m_arguments.record,
                     "The record; - for the standard input; without it the one that the picture carries")
        ->type_name("RECORD");
    command
        ->add_option("-t,--tolerance", m_arguments.tolerance,
                     "By how many steps of 255 a channel may be off and count as equal")
        ->type_name("STEPS")
        ->check(CLI::Range(0, 255))
        ->capture_default_str();
    addReport(command);
    command->add_option("-d,--diff", m_arguments.difference, "Write a picture of the differences")
        ->type_name("FILE")
        ->check(problemOfPath);
    addShowOutput(command);
    addChanges(command);
    addLanguage(command);
}

void CommandLine::addRead()
{
    CLI::App* command = addCommand(
        "read", "Tell from photographs or captures of the wall which cabinets are wrong", &runRead);
    command
        ->add_option(
            "file", m_arguments.records,
            "The pictures of one wall, and behind them the record; without it the one that the first "
            "picture carries")
        ->type_name("PICTURE")
        ->required();
    addReport(command);
    command
        ->add_option("-d,--diff", m_arguments.difference,
                     "Write the straightened picture with what is wrong marked")
        ->type_name("FILE")
        ->check(problemOfPath);
    command->add_option("--report", m_arguments.page, "Write a page of HTML with the plan and the cut-outs")
        ->type_name("FILE")
        ->check(problemOfPath);
    addChanges(command);
    addLanguage(command);
}

void CommandLine::addWall()
{
    WallArguments& wall = m_arguments.wall;
    CLI::App* command = addCommand(
        "wall", "Print a new wall, list the cabinets for new walls, or write a report of a wall", &runWall);
    command
        ->add_option("action", wall.action,
                     "What to do: print a new wall or the usual cabinets, or report on WALL")
        ->type_name("ACTION")
        ->check(CLI::IsMember({"new", "cabinets", "report"}))
        ->required();
    command->add_option("wall", m_arguments.record, "The wall of a report; - for the standard input")
        ->type_name("WALL")
        ->check(problemOfPath);
    command->add_option("-o,--output", m_arguments.output, "The report: .pdf, or .csv for its cabinets")
        ->type_name("FILE");
    command->add_flag("--cables", wall.cableTable, "With .csv: a table of ports and circuits");
    command->add_option("-n,--name", wall.name, "What the wall is called")->type_name("NAME");
    command
        ->add_option("--cabinet", wall.cabinet,
                     "The pixels of a cabinet, or one that \"vdchart wall cabinets\" lists")
        ->type_name("WIDTHxHEIGHT")
        ->capture_default_str();
    command->add_option("--size", wall.size, "The columns and rows of cabinets")
        ->type_name("COLUMNSxROWS")
        ->capture_default_str();
    command->add_option("--start", wall.start, "The corner where numbers and cables begin")
        ->type_name("CORNER")
        ->check(CLI::IsMember({"top-left", "top-right", "bottom-left", "bottom-right"}))
        ->capture_default_str();
    command->add_option("--direction", wall.direction, "What numbers and cables go along")
        ->type_name("DIRECTION")
        ->check(CLI::IsMember({"rows", "columns"}))
        ->capture_default_str();
    CLI::Option* back =
        command->add_flag("--back-and-forth", wall.backAndForth, "Each other row or column the other way");
    command->add_flag("--each-line", wall.eachLine, "A cable for each row or column")->excludes(back);
    command->add_option("--prefix", wall.prefix, "What names begin with, before the number")
        ->type_name("TEXT");
    command->add_option("--digits", wall.digits, "How many digits a name has at least")
        ->type_name("NUMBER")
        ->check(CLI::Range(1, 7))
        ->capture_default_str();
    addWallCables(command);
}

void CommandLine::addShow()
{
    ShowArguments& show = m_arguments.show;
    CLI::App* command = addCommand(
        "show", "Put walls on the outputs of a processor, and pack a show into one file", &runShow);
    command
        ->add_option("action", show.action,
                     "What to do: make a new show of WALLs, pack a SHOW, or unpack a PACK")
        ->type_name("ACTION")
        ->check(CLI::IsMember({"new", "pack", "unpack"}))
        ->required();
    command->add_option("file", show.files, "The walls of a new show, or the show, or the pack")
        ->type_name("FILE")
        ->check(problemOfPath)
        ->required();
    command
        ->add_option("-o,--output", m_arguments.output,
                     "The show or the pack that is written, or the new folder of what is unpacked")
        ->type_name("FILE")
        ->check(problemOfPath)
        ->required();
    command->add_option("-n,--name", m_arguments.wall.name, "What the show is called")->type_name("NAME");
    command
        ->add_option("--on", show.outputs,
                     "An output, such as 3840x2160 or Left=3840x2160@50; repeatable, and the last one as "
                     "often as it takes")
        ->type_name("OUTPUT")
        ->allow_extra_args(false);
    CLI::Option* pack = command->add_flag(
        "--auto-pack", show.autoPack,
        "Put the walls on few outputs with little waste, and cut those that are larger than an output");
    command->add_flag("--turn", show.mayTurn, "Walls may be turned for that")->needs(pack);
}

void CommandLine::addShowOutput(CLI::App* command)
{
    command->add_option("--of", m_arguments.showOutput, "Of a show, the output that is meant")
        ->type_name("OUTPUT")
        ->check(problemOfPath);
}

void CommandLine::addWallCables(CLI::App* command)
{
    const auto addNumber = [command](const char* name, int& number, int least, int most, const char* text) {
        command->add_option(name, number, text)
            ->type_name("NUMBER")
            ->check(CLI::Range(least, most))
            ->capture_default_str();
    };
    WallArguments& wall = m_arguments.wall;
    addNumber("--port-pixels", wall.portPixels, 1, 100000000, "The pixels of a port at 8 bit and 60 Hz");
    addNumber("--bits", wall.bitDepth, 8, 16, "The bits for each color");
    addNumber("--rate", wall.frameRate, 1, 1000, "The frame rate in Hz");
    command->add_flag("--backup", wall.backup, "A second port feeds each cable from its end");
    addNumber("--watts", wall.watts, 0, 100000, "What a cabinet takes at the most; 0 where it is not known");
    addNumber("--circuit-watts", wall.circuitWatts, 1, 1000000, "What a circuit feeds");
}

void CommandLine::addChanges(CLI::App* command)
{
    Changes& changes = m_arguments.changes;
    command
        ->add_option("-s,--set", changes.settings,
                     "Change a field, such as rows=12 or basicData.oddColor=#ff0000; repeatable")
        ->type_name("FIELD=VALUE")
        ->allow_extra_args(false);
    command->add_option("--grid", changes.grid, "Change the columns and rows of cabinets, such as 15x9")
        ->type_name("COLUMNSxROWS");
    command
        ->add_option("--cabinet", changes.cabinet,
                     "Change the resolution to cabinets of this many pixels, such as 128x128")
        ->type_name("WIDTHxHEIGHT");
}

void CommandLine::addReport(CLI::App* command)
{
    command->add_option("-f,--format", m_arguments.report, "How to tell what was found")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
}

/// A batch has pictures to make and something to tell, and one option for both.
void CommandLine::takeFormats(const std::vector<std::string>& formats)
{
    for (const std::string& format : formats)
        (format == "json" ? m_arguments.report : m_arguments.format) = format;
}

void CommandLine::addLanguage(CLI::App* command)
{
    std::vector<std::string> codes;
    for (const QString& code : languageCodes())
        codes.push_back(code.toStdString());
    command->add_option("-l,--lang", m_arguments.language, "The language of the resolution line")
        ->type_name("LANGUAGE")
        ->check(CLI::IsMember(codes))
        ->each([this](const std::string&) { m_arguments.isLanguageGiven = true; })
        ->capture_default_str();
}

void CommandLine::addEncoding(CLI::App* command)
{
    command
        ->add_option("-c,--compression", m_arguments.compression,
                     "PNG compression from 0 (stored) to 9 (smallest)")
        ->type_name("LEVEL")
        ->check(CLI::Range(0, 9))
        ->capture_default_str();
    command->add_flag("--no-record", m_arguments.withoutRecord, "Leave the record out of PNG files");
}
