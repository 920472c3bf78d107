// Parses the command line and runs the action of a verb.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tools/command/verb.h"

class CommandLine {
public:
    CommandLine(const std::string &name, const std::string &help, const std::string &version,
                const std::string &footer);
    ~CommandLine();

    [[nodiscard]] Verb top() const;
    // Removes the verb's program and all that follows it from the words, unchanged: the parser would look for verbs and
    // lists among them. It begins after "--", or with the first word that is not an option.
    [[nodiscard]] std::vector<std::string> takeProgram(std::vector<std::string> &words, const std::string &verb) const;
    // Runs the action of the verb. False when the words are invalid; the error is printed on standard error, with a
    // suggestion.
    [[nodiscard]] bool run(std::vector<std::string> words) const;

private:
    void explain(const std::string &mistake) const;

    std::unique_ptr<CLI::App> m_app;
};
