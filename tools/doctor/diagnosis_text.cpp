#include <cctype>

#include "tools/doctor/diagnosis.h"

namespace {

// "profileInForce" becomes "profile in force". Names of files, variables and extensions are unchanged.
std::string words(const std::string &name) {
    if (name == "xServer") return "X server";
    if (name == "guiSocket") return "GUI socket";
    if (!islower(static_cast<unsigned char>(name[0])) || name.find_first_of("._ ") != std::string::npos) return name;
    std::string text;
    for (const char letter : name) {
        const bool isNewWord = isupper(static_cast<unsigned char>(letter));
        if (isNewWord) text += ' ';
        text += isNewWord ? static_cast<char>(tolower(static_cast<unsigned char>(letter))) : letter;
    }
    return text.starts_with("glx") ? "GLX" + text.substr(3) : text;
}

std::string valueText(const Json &value) {
    if (value.is_null()) return "none";
    if (value.is_boolean()) return value.get<bool>() ? "yes" : "no";
    return value.is_string() ? value.get<std::string>() : value.dump();
}

std::string factText(const std::string &name, const Json &value, const std::string &indent) {
    if (!value.is_structured()) return indent + words(name) + ": " + valueText(value) + '\n';
    if (value.empty()) return indent + words(name) + ": none\n";
    std::string text = indent + words(name) + ":\n";
    for (const auto &[inner, item] : value.items())
        text += value.is_array() ? indent + "  " + valueText(item) + '\n' : factText(inner, item, indent + "  ");
    return text;
}

Json findingJson(const Finding &finding) {
    return {{"problem", finding.problem}, {"remedy", finding.remedy}};
}

} // namespace

std::string diagnosisAsText(const Diagnosis &diagnosis) {
    std::string text;
    for (const auto &[name, facts] : diagnosis.facts.items())
        text += factText(name, facts, "") + '\n';
    if (diagnosis.findings.empty()) return text + "no problem found\n";
    for (const Finding &finding : diagnosis.findings)
        text += "wrong:  " + finding.problem + "\nremedy: " + finding.remedy + '\n';
    return text;
}

std::string diagnosisAsJson(const Diagnosis &diagnosis) {
    Json json = diagnosis.facts;
    json["findings"] = jsonList(diagnosis.findings, findingJson);
    return jsonFields(json, "findings");
}
