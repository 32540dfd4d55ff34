#include "manual.h"

#include "fields.h"

#include <vdpatterndesign_version.h>

#include <algorithm>
#include <sstream>
#include <vector>

namespace {

using Options = std::vector<const CLI::Option*>;
using Commands = std::vector<const CLI::App*>;

Commands commandsOf(const CLI::App& table)
{
    return table.get_subcommands([](const CLI::App*) { return true; });
}

Options optionsOf(const CLI::App& command, bool positional)
{
    return command.get_options(
        [positional](const CLI::Option* option) { return option->nonpositional() != positional; });
}

/// "-o", "--output".
std::vector<std::string> namesOf(const CLI::Option& option)
{
    std::vector<std::string> names;
    for (const std::string& name : option.get_snames())
        names.push_back("-" + name);
    for (const std::string& name : option.get_lnames())
        names.push_back("--" + name);
    return names;
}

bool takesValue(const CLI::Option& option)
{
    return option.get_items_expected_max() > 0;
}

/// The word for the option's value, without what its check adds.
std::string valueName(const CLI::Option& option)
{
    const std::string name = option.get_type_name();
    return name.substr(0, name.find(':'));
}

/// The values that the option's check allows, if it lists them.
std::vector<std::string> allowedValues(const CLI::Option& option)
{
    const std::string name = option.get_type_name();
    const auto begin = name.find('{');
    const auto end = name.find('}');
    std::vector<std::string> values;
    if (begin == std::string::npos || end == std::string::npos)
        return values;
    std::istringstream list(name.substr(begin + 1, end - begin - 1));
    for (std::string value; std::getline(list, value, ',');)
        values.push_back(value);
    return values;
}

std::string joined(const std::vector<std::string>& words, const std::string& separator)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : separator) + word;
    return text;
}

std::string replaced(std::string text, const std::string& what, const std::string& by)
{
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
    return text;
}

/// Minus signs that can be searched for and copied, and no requests at the beginnings of lines.
std::string inManual(const std::string& text)
{
    const std::string escaped = replaced(replaced(text, "\\", "\\e"), "-", "\\-");
    return !escaped.empty() && (escaped.front() == '.' || escaped.front() == '\'') ? "\\&" + escaped
                                                                                   : escaped;
}

void describe(std::ostream& manual, const CLI::Option& option)
{
    manual << ".TP\n";
    if (!option.nonpositional()) {
        manual << "\\fI" << inManual(valueName(option)) << "\\fR\n";
    } else {
        std::vector<std::string> names;
        for (const std::string& name : namesOf(option))
            names.push_back("\\fB" + inManual(name) + "\\fR");
        manual << joined(names, ", ");
        if (takesValue(option))
            manual << " \\fI" << inManual(valueName(option)) << "\\fR";
        manual << '\n';
    }
    manual << inManual(option.get_description()) << '.';
    const std::vector<std::string> values = allowedValues(option);
    if (!values.empty())
        manual << " One of " << inManual(joined(values, ", ")) << '.';
    if (!option.get_default_str().empty())
        manual << " Default: " << inManual(option.get_default_str()) << '.';
    manual << '\n';
}

void describeCommand(std::ostream& manual, const CLI::App& command)
{
    manual << ".SS vdchart " << inManual(command.get_name());
    for (const CLI::Option* option : optionsOf(command, true))
        manual << " \\fI" << inManual(valueName(*option))
               << (option->get_expected_max() > 1 ? "\\fR..." : "\\fR");
    manual << " [\\fIoptions\\fR]\n" << inManual(command.get_description()) << ".\n";
    for (const bool positional : {true, false}) {
        for (const CLI::Option* option : optionsOf(command, positional))
            describe(manual, *option);
    }
}

std::vector<std::string> fields()
{
    std::vector<std::string> names;
    for (const QString& name : fieldNames())
        names.push_back(name.toStdString());
    return names;
}

bool isFile(const CLI::Option& option)
{
    const std::string name = valueName(option);
    return name == "FILE" || name == "RECORD";
}

/// The shell words that complete `option`'s value in bash.
std::string bashValues(const CLI::Option& option)
{
    if (valueName(option) == "FIELD=VALUE")
        return "compgen -S = -W '" + joined(fields(), " ") + "' -- \"$current\"";
    const std::vector<std::string> values = allowedValues(option);
    if (!values.empty())
        return "compgen -W '" + joined(values, " ") + "' -- \"$current\"";
    if (valueName(option) == "PRESET")
        return "compgen -W \"$(vdchart presets --names)\" -- \"$current\"";
    if (valueName(option) == "FOLDER")
        return "compgen -d -- \"$current\"";
    return isFile(option) ? "compgen -f -- \"$current\"" : std::string();
}

/// A case for each option with a value, and one with the words that may stand elsewhere.
void completeInBash(std::ostream& script, const CLI::App& command)
{
    const std::string prefix = command.get_name() + "\\ ";
    std::vector<std::string> words;
    for (const CLI::Option* option : optionsOf(command, false)) {
        const std::vector<std::string> names = namesOf(*option);
        words.insert(words.end(), names.begin(), names.end());
        if (!takesValue(*option))
            continue;
        const std::string values = bashValues(*option);
        script << "    " << prefix << joined(names, "|" + prefix) << ") ";
        if (!values.empty())
            script << "mapfile -t COMPREPLY < <(" << values << "); ";
        if (valueName(*option) == "FIELD=VALUE")
            script << "compopt -o nospace 2> /dev/null; ";
        script << "return ;;\n";
    }
    script << "    " << prefix << "*) options='" << joined(words, " ") << "' ;;\n";
}

/// One argument of `_arguments`.
std::string zshArgument(const CLI::Option& option)
{
    const auto quoted = [](const std::string& text) {
        return replaced(replaced(replaced(replaced(text, "'", "'\\''"), "[", "\\["), "]", "\\]"), ":", "\\:");
    };
    std::string action = isFile(option) ? "_files" : valueName(option) == "FOLDER" ? "_files -/" : "";
    const std::vector<std::string> values = allowedValues(option);
    if (!values.empty())
        action = "(" + joined(values, " ") + ")";
    if (valueName(option) == "PRESET")
        action = "($(vdchart presets --names))";
    if (valueName(option) == "FIELD=VALUE")
        action = "{compadd -S = -- " + joined(fields(), " ") + "}";
    const std::string value = takesValue(option) ? ":" + quoted(valueName(option)) + ":" + action : "";
    if (!option.nonpositional())
        return "'" + std::string(option.get_expected_max() > 1 ? "*" : "") + value + "'";
    const std::vector<std::string> names = namesOf(option);
    const std::string repeat = option.get_expected_max() > 1 ? "*" : "";
    const std::string head =
        names.size() > 1 ? "'" + repeat + "'{" + joined(names, ",") + "}'" : "'" + repeat + names.front();
    return head + "[" + quoted(option.get_description()) + "]" + value + "'";
}

void zshArguments(std::ostream& script, const CLI::App& command, const std::string& indent)
{
    script << indent << "_arguments";
    for (const bool positional : {false, true}) {
        for (const CLI::Option* option : optionsOf(command, positional))
            script << " \\\n" << indent << "  " << zshArgument(*option);
    }
}

} // namespace

std::string manualPage(const CLI::App& table)
{
    std::ostringstream manual;
    manual << ".TH VDCHART 1 \"\" \"vdchart " VDPATTERNDESIGN_VERSION "\"\n"
           << ".SH NAME\nvdchart \\- make, check and verify test charts for LED screens\n"
           << ".SH SYNOPSIS\n\\fBvdchart\\fR \\fIcommand\\fR [\\fIoptions\\fR]\n"
           << ".SH DESCRIPTION\n"
           << inManual(table.get_description()) << '\n'
           << ".SH OPTIONS\n";
    for (const CLI::Option* option : optionsOf(table, false))
        describe(manual, *option);
    manual << ".SH COMMANDS\n";
    for (const CLI::App* command : commandsOf(table))
        describeCommand(manual, *command);
    manual << ".SH EXIT STATUS\n" << inManual(table.get_footer()) << '\n';
    return manual.str();
}

std::string bashCompletion(const CLI::App& table)
{
    std::vector<std::string> commands;
    for (const CLI::App* command : commandsOf(table))
        commands.push_back(command->get_name());
    std::vector<std::string> options;
    for (const CLI::Option* option : optionsOf(table, false)) {
        for (const std::string& name : namesOf(*option))
            options.push_back(name);
    }
    std::ostringstream script;
    script
        << "# bash completion for vdchart\n"
        << "_vdchart() {\n"
        << "  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} options=\n"
        << "  if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
        << "    mapfile -t COMPREPLY < <(compgen -W '" << joined(commands, " ") << ' ' << joined(options, " ")
        << "' -- \"$current\")\n"
        << "    return\n"
        << "  fi\n"
        << "  if [ \"$current\" = '=' ]; then current=; fi\n" // the shell takes "--lang=en" for three words
        << "  if [ \"$previous\" = '=' ]; then previous=${COMP_WORDS[COMP_CWORD - 2]}; fi\n"
        << "  case \"${COMP_WORDS[1]} $previous\" in\n";
    for (const CLI::App* command : commandsOf(table))
        completeInBash(script, *command);
    script << "  esac\n"
           << "  case $current in\n"
           << "    -*) mapfile -t COMPREPLY < <(compgen -W \"$options\" -- \"$current\") ;;\n"
           << "    *) mapfile -t COMPREPLY < <(compgen -f -- \"$current\") ;;\n"
           << "  esac\n"
           << "}\n"
           << "complete -o filenames -F _vdchart vdchart\n";
    return script.str();
}

std::string zshCompletion(const CLI::App& table)
{
    std::ostringstream script;
    script << "#compdef vdchart\n"
           << "_vdchart() {\n"
           << "  if (( CURRENT == 2 )); then\n"
           << "    local -a commands=(\n";
    for (const CLI::App* command : commandsOf(table))
        script << "      '" << command->get_name() << ':' << command->get_description() << "'\n";
    script << "    )\n"
           << "    _describe command commands\n";
    zshArguments(script, table, "    ");
    script << "\n    return\n"
           << "  fi\n"
           << "  local command=$words[2]\n"
           << "  shift words; (( CURRENT-- ))\n"
           << "  case $command in\n";
    for (const CLI::App* command : commandsOf(table)) {
        script << "    " << command->get_name() << ")\n";
        zshArguments(script, *command, "      ");
        script << " ;;\n";
    }
    script << "  esac\n"
           << "}\n"
           << "_vdchart \"$@\"\n";
    return script.str();
}
