#include "tools/lab/page.h"

#include <cstdio>
#include <string_view>

#include "preferences/base64.h"
#include "tools/lab/page_template.h"
#include "tools/lab/results_json.h"
#include "tools/lab/verdict.h"

// Embeds page/page.html. The build declares that this object depends on it.
asm(".section .rodata\n"
    ".hidden zelvane_lab_page\n.global zelvane_lab_page\nzelvane_lab_page:\n.incbin \"" ZELVANE_LAB_PAGE "\"\n"
    ".hidden zelvane_lab_page_end\n.global zelvane_lab_page_end\nzelvane_lab_page_end:\n.byte 0\n.previous");
extern "C" const char zelvane_lab_page[], zelvane_lab_page_end[];

namespace {

std::string dataUri(const Picture &picture) {
    std::string text;
    Base64Encoder encoder;
    encoder.encode(pngOf(picture), text);
    encoder.finish(text);
    std::erase(text, '\n');
    return "data:image/png;base64," + text;
}

std::string printed(const char *format, double value) {
    char text[64];
    snprintf(text, sizeof text, format, value);
    return text;
}

template <typename Items>
std::string joined(const Items &items, const char *between) {
    std::string text;
    for (const std::string &item : items)
        text += (text.empty() ? "" : between) + item;
    return text;
}

// Adds the values that the page shows and lab.json lacks.
void addWords(Json &row, const DeviceResult &result, size_t number) {
    row["number"] = number;
    row["verdict"] = result.passes ? "passes" : "fails";
    row["faultWords"] = joined(result.faults, ", ");
    row["rate"] = result.framesPerSecond > 0 ? printed("%.1f", result.framesPerSecond) : "";
    row["secondsText"] = printed("%.1f", result.seconds);
    row["refusalCount"] = result.refusals.size();
    row["lackingCount"] = result.lacking.size();
    row["glErrorCount"] = result.glErrors.size();
    row["hasRefusals"] = !result.refusals.empty();
    row["hasLacking"] = !result.lacking.empty();
    row["hasGlErrors"] = !result.glErrors.empty();
    if (result.picture) row["picture"]["uri"] = dataUri(*result.picture);
    if (!result.difference) return;
    row["difference"]["percent"] = printed("%.2f", result.difference->share * 100);
    if (result.difference->pixels > 0) row["difference"]["uri"] = dataUri(result.difference->picture);
}

} // namespace

std::string resultsAsPage(const LabOptions &options, const std::vector<DeviceResult> &results) {
    Json values = resultsAsJson(options, results);
    values["programText"] = joined(options.program, " ");
    values["count"] = results.size();
    values["failOnWords"] = joined(options.failOn, ", ");
    values["tolerance"] = channelTolerance;
    values["differingPercent"] = printed("%g", differingShare * 100);
    values["length"] =
        options.frames ? std::to_string(options.frames) + " frames" : printed("%g seconds", options.seconds);
    values["hostText"] = results.empty() ? "" : results.front().host;
    for (size_t i = 0; i < results.size(); ++i)
        addWords(values["devices"][i], results[i], i + 1);
    const auto length = static_cast<size_t>(zelvane_lab_page_end - zelvane_lab_page);
    return fillTemplate({zelvane_lab_page, length}, values);
}
