// The words that the command is given, from the first to the action of a verb.
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
    // Takes the program of the verb and all that follows it off the words, exactly as they are: the parser would look
    // for verbs and lists among them. It begins behind "--", or with the first word that is no option.
    [[nodiscard]] std::vector<std::string> takeProgram(std::vector<std::string> &words, const std::string &verb) const;
    // Runs the action of the verb. False when the words are wrong, which has been said to standard error with what may
    // have been meant.
    [[nodiscard]] bool run(std::vector<std::string> words) const;

private:
    void explain(const std::string &mistake) const;

    std::unique_ptr<CLI::App> m_app;
};
