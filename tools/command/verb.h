// The verbs of the command and their arguments. Wraps the parser, which takes seconds to compile: the verbs include
// only this header.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

// Thrown by an action for missing or surplus arguments, with a message.
struct UsageError {
    std::string text;
};

// An option or argument of a verb. Copies refer to the same one.
class Word {
public:
    explicit Word(CLI::Option &option) : m_option(&option) {}

    Word required() const;
    Word excludes(const Word &other) const;
    Word oneOf(const std::vector<std::string> &values) const;
    // whatIsWrong returns an error sentence about a value, or nothing.
    Word checkedBy(const std::function<std::string(const std::string &value)> &whatIsWrong) const;

private:
    CLI::Option *m_option;
};

// Copies refer to the same verb. Values are written when the words have been parsed, and must live until then.
class Verb {
public:
    explicit Verb(CLI::App &app) : m_app(&app) {}

    // A verb below this one. Its footer is printed last in its help, with the exit status.
    Verb verb(const std::string &name, const std::string &help, const std::string &footer) const;
    // The verb may be used without any of the verbs below it.
    void canStandAlone() const;
    Word flag(const std::string &name, bool &value, const std::string &help) const;
    // placeholder: the name of the value in the help.
    Word option(const std::string &name, std::string &value, const std::string &placeholder,
                const std::string &help) const;
    // May be given more than once.
    Word option(const std::string &name, std::vector<std::string> &values, const std::string &placeholder,
                const std::string &help) const;
    // The value may be omitted, and is then empty. Without the option there is no value.
    Word optionalValue(const std::string &name, std::optional<std::string> &value, const std::string &placeholder,
                       const std::string &help) const;
    // A positional argument.
    Word word(const std::string &name, std::string &value, const std::string &help) const;
    // Several positional arguments.
    Word words(const std::string &name, std::vector<std::string> &values, const std::string &help) const;
    // Runs when the verb was given and none below it.
    void action(const std::function<void()> &action) const;

private:
    CLI::App *m_app;
};
