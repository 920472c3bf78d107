#include "tools/command/command_line.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>

#include "tools/command/nearest.h"

namespace {

bool isOption(const std::string &word) {
    return word.starts_with('-');
}

std::vector<std::string> optionNames(const CLI::App &app) {
    std::vector<std::string> names;
    for (const CLI::Option *option : app.get_options()) {
        for (const std::string &name : option->get_lnames())
            names.push_back("--" + name);
    }
    return names;
}

std::vector<std::string> verbNames(const CLI::App &app) {
    std::vector<std::string> names;
    for (const CLI::App *verb : app.get_subcommands([](const CLI::App *) { return true; }))
        names.push_back(verb->get_name());
    return names;
}

// The error for an unexpected word. speaker: the verb, preceded by the verbs above it.
std::string mistakeOf(const std::string &word, const CLI::App &app, const std::string &speaker) {
    const std::string quoted = '"' + word + '"';
    if (isOption(word)) {
        const std::string name = word.substr(0, word.find('='));
        return "there is no option \"" + name + "\" of \"" + speaker + '"' + suggestion(name, optionNames(app));
    }
    const std::vector<std::string> verbs = verbNames(app);
    if (!verbs.empty()) return "there is no verb " + quoted + " of \"" + speaker + '"' + suggestion(word, verbs);
    return quoted + " is an unexpected argument of \"" + speaker + '"';
}

} // namespace

Word Word::required() const {
    m_option->required();
    return *this;
}

Word Word::excludes(const Word &other) const {
    m_option->excludes(other.m_option);
    return *this;
}

Word Word::oneOf(const std::vector<std::string> &values) const {
    return checkedBy([values](const std::string &value) {
        if (std::ranges::find(values, value) != values.end()) return std::string();
        std::string list;
        for (const std::string &known : values)
            list += (list.empty() ? "" : ", ") + known;
        return '"' + value + "\" is not one of " + list + suggestion(value, values);
    });
}

Word Word::checkedBy(const std::function<std::string(const std::string &value)> &whatIsWrong) const {
    m_option->check(CLI::Validator([whatIsWrong](const std::string &value) { return whatIsWrong(value); }, ""));
    return *this;
}

Verb Verb::verb(const std::string &name, const std::string &help, const std::string &footer) const {
    CLI::App &below = *m_app->add_subcommand(name, help);
    below.footer(footer);
    m_app->require_subcommand(1);
    return Verb(below);
}

void Verb::canStandAlone() const {
    m_app->require_subcommand(0, 1);
}

Word Verb::flag(const std::string &name, bool &value, const std::string &help) const {
    return Word(*m_app->add_flag(name, value, help));
}

Word Verb::option(const std::string &name, std::string &value, const std::string &placeholder,
                  const std::string &help) const {
    return Word(*m_app->add_option(name, value, help)->type_name(placeholder));
}

Word Verb::option(const std::string &name, std::vector<std::string> &values, const std::string &placeholder,
                  const std::string &help) const {
    return Word(*m_app->add_option(name, values, help)->type_name(placeholder)->allow_extra_args(false));
}

Word Verb::optionalValue(const std::string &name, std::optional<std::string> &value, const std::string &placeholder,
                         const std::string &help) const {
    const auto take = [&value](const std::string &text) { value = text; };
    return Word(*m_app->add_option_function<std::string>(name, take, help)->type_name(placeholder)->expected(0, 1));
}

Word Verb::word(const std::string &name, std::string &value, const std::string &help) const {
    return Word(*m_app->add_option(name, value, help)->type_name(""));
}

Word Verb::words(const std::string &name, std::vector<std::string> &values, const std::string &help) const {
    return Word(*m_app->add_option(name, values, help)->type_name(""));
}

void Verb::action(const std::function<void()> &action) const {
    m_app->callback([app = m_app, action] {
        if (app->get_subcommands().empty()) action();
    });
}

CommandLine::CommandLine(const std::string &name, const std::string &help, const std::string &version,
                         const std::string &footer)
    : m_app(std::make_unique<CLI::App>(help, name)) {
    m_app->set_version_flag("--version", version);
    m_app->footer(footer);
    m_app->get_formatter()->label("SUBCOMMAND", "VERB");
}

CommandLine::~CommandLine() = default;

Verb CommandLine::top() const {
    return Verb(*m_app);
}

std::vector<std::string> CommandLine::takeProgram(std::vector<std::string> &words, const std::string &verb) const {
    if (words.empty() || words[0] != verb) return {};
    // "--option value" has two words, "--option=value" one.
    const auto takesNext = [&, app = m_app->get_subcommand(verb)](const std::string &word) {
        const CLI::Option *option = app->get_option_no_throw(word);
        return option && option->get_items_expected_min() > 0;
    };
    size_t first = 1;
    while (first < words.size() && isOption(words[first]) && words[first] != "--")
        first += takesNext(words[first]) ? 2 : 1;
    if (first >= words.size()) return {};
    const size_t program = words[first] == "--" ? first + 1 : first;
    std::vector<std::string> taken(words.begin() + program, words.end());
    words.resize(first);
    return taken;
}

bool CommandLine::run(std::vector<std::string> words) const {
    std::reverse(words.begin(), words.end()); // the parser reads them from the end
    try {
        m_app->parse(words);
    } catch (const UsageError &error) {
        explain(error.text);
        return false;
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0) return m_app->exit(error) == 0; // help or version
        explain(error.what());
        return false;
    }
    return true;
}

void CommandLine::explain(const std::string &mistake) const {
    const CLI::App *verb = m_app.get();
    std::string speaker = verb->get_name();
    while (!verb->get_subcommands().empty()) {
        verb = verb->get_subcommands().front();
        speaker += ' ' + verb->get_name();
    }
    const std::vector<std::string> unknown = m_app->remaining(true);
    std::cerr << "zelvane: "
              << (!unknown.empty()      ? mistakeOf(unknown.front(), *verb, speaker)
                  : verb == m_app.get() ? "a verb is missing"
                                        : mistake)
              << "\n\"" << speaker << " --help\" lists the options.\n";
}
