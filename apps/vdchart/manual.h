#pragma once

#include <CLI/App.hpp>

#include <string>

// What tells of the commands and options besides the help, made from the same table.

/// In man(7) markup, for section 1.
std::string manualPage(const CLI::App& table);

std::string bashCompletion(const CLI::App& table);
std::string zshCompletion(const CLI::App& table);
