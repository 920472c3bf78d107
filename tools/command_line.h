// The words that the zelvane command is given.
#pragma once

#include <CLI/App.hpp>

#include <string>
#include <vector>

// Takes the program of the run verb and all that follows it off the words, exactly as they are: the parser of our own
// words would look for verbs and lists among them. It begins behind "--", or with the first word that is no option.
[[nodiscard]] std::vector<std::string> takeProgram(std::vector<std::string> &words, const CLI::App &run);

// Writes to standard error what is wrong with the words that were parsed, and what was meant perhaps.
void explainMistake(const CLI::App &app, const CLI::ParseError &error);
