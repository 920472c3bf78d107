#include "tools/command_line.h"

#include <iostream>

#include "tools/command/nearest.h"

namespace {

bool isOption(const std::string &word) {
    return word.starts_with('-');
}

// The words may be "run --profile NAME PROGRAM": an option takes the next word unless it brings its value.
bool takesNext(const std::string &word, const CLI::App &run) {
    const CLI::Option *option = run.get_option_no_throw(word);
    return option && option->get_items_expected_min() > 0;
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

// speaker: the verb with the verbs before it.
std::string mistakeOf(const std::string &word, const CLI::App &app, const std::string &speaker) {
    const std::string quoted = '"' + word + '"';
    if (isOption(word)) {
        const std::string name = word.substr(0, word.find('='));
        return "there is no option \"" + name + "\" of \"" + speaker + '"' + suggestion(name, optionNames(app));
    }
    const std::vector<std::string> verbs = verbNames(app);
    if (!verbs.empty()) return "there is no verb " + quoted + " of \"" + speaker + '"' + suggestion(word, verbs);
    return quoted + " is a word too many for \"" + speaker + '"';
}

} // namespace

std::vector<std::string> takeProgram(std::vector<std::string> &words, const CLI::App &run) {
    if (words.empty() || words[0] != run.get_name()) return {};
    size_t first = 1;
    while (first < words.size() && isOption(words[first]) && words[first] != "--")
        first += takesNext(words[first], run) ? 2 : 1;
    if (first >= words.size()) return {};
    const size_t program = words[first] == "--" ? first + 1 : first;
    std::vector<std::string> taken(words.begin() + program, words.end());
    words.resize(first);
    return taken;
}

void explainMistake(const CLI::App &app, const CLI::ParseError &error) {
    const CLI::App *verb = &app;
    std::string speaker = app.get_name();
    while (!verb->get_subcommands().empty()) {
        verb = verb->get_subcommands().front();
        speaker += ' ' + verb->get_name();
    }
    const std::vector<std::string> unknown = app.remaining(true);
    if (!unknown.empty()) {
        std::cerr << "zelvane: " << mistakeOf(unknown.front(), *verb, speaker) << '\n';
    } else if (verb == &app) {
        std::cerr << "zelvane: a verb is missing\n";
    } else {
        std::cerr << "zelvane: " << error.what() << '\n';
    }
    std::cerr << "\"" << speaker << " --help\" tells what there is.\n";
}
