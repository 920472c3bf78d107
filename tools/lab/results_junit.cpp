#include <algorithm>
#include <cstdio>

#include <tinyxml2.h>

#include "tools/lab/results_json.h"

namespace {

using Printer = tinyxml2::XMLPrinter;

// XML cannot contain most control characters, nor bytes that are not UTF-8.
std::string printable(const std::string &given) {
    std::string text = Json::parse(jsonLine(given));
    for (char &letter : text)
        if (static_cast<unsigned char>(letter) < 0x20 && letter != '\n' && letter != '\t') letter = '?';
    return text;
}

std::string faultText(const DeviceResult &result) {
    std::string text = "end: " + result.end + '\n';
    for (const LabRefusal &refusal : result.refusals)
        if (!refusal.isMadeGood) text += refusal.call + " refused: " + refusal.why + '\n';
    for (const LabGlError &error : result.glErrors)
        text += error.call + '(' + error.arguments + "): " + error.error + '\n';
    for (const LabFinding &finding : result.lacking)
        text += "the device lacks " + finding.name + ": " + finding.whole + '\n';
    return printable(text);
}

void print(Printer &printer, const DeviceResult &result) {
    printer.OpenElement("testcase");
    printer.PushAttribute("classname", "zelvane.lab");
    printer.PushAttribute("name", result.device.c_str());
    printer.PushAttribute("time", result.seconds);
    if (!result.passes) {
        std::string kinds;
        for (const std::string &fault : result.faults)
            kinds += (kinds.empty() ? "" : ", ") + fault;
        printer.OpenElement("failure");
        printer.PushAttribute("message", kinds.c_str());
        printer.PushText(faultText(result).c_str());
        printer.CloseElement();
    }
    printer.OpenElement("system-out");
    printer.PushText(printable(result.logTail).c_str());
    printer.CloseElement();
    printer.CloseElement();
}

} // namespace

std::string resultsAsJunit(const LabOptions &options, const std::vector<DeviceResult> &results) {
    Printer printer;
    printer.PushHeader(false, true);
    printer.OpenElement("testsuite");
    printer.PushAttribute("name", options.program.front().c_str());
    printer.PushAttribute("tests", static_cast<unsigned>(results.size()));
    printer.PushAttribute("failures", static_cast<unsigned>(std::ranges::count(results, false, &DeviceResult::passes)));
    for (const DeviceResult &result : results)
        print(printer, result);
    printer.CloseElement();
    return printer.CStr();
}
