#include "tools/lab/journal_facts.h"

#include <algorithm>
#include <fstream>

#include "tools/command/json.h"

namespace {

class Reader {
public:
    explicit Reader(DeviceResult &result) : m_result(result) {}

    void read(const Json &line) {
        const std::string event = line.value("event", "");
        if (event == "start") readStart(line);
        if (event == "device") readDevice(line);
        if (event == "context") readContext(line);
        if (event == "choice" && !line["order"].empty()) makeGood("eglChooseConfig");
        if (event == "surface") makeGood(line["call"]);
        if (event == "refusal") readRefusal(line);
        if (event == "lacking") readLacking(line);
        if (event == "glError") m_result.glErrors.push_back({line["call"], line["error"], line["arguments"], 1});
        if (event == "frame") readFrame(line);
        if (event == "picture") m_picture = line["file"];
        if (event == "end") readEnd(line);
    }

    std::string finish() {
        const double span = m_newestFrame - m_firstFrame;
        if (m_result.frames > 1 && span > 0) m_result.framesPerSecond = static_cast<double>(m_result.frames - 1) / span;
        return m_picture;
    }

private:
    void readStart(const Json &line) {
        if (line["host"].is_null()) return;
        m_result.host = std::string(line["host"]["renderer"]) + ", " + std::string(line["host"]["version"]);
    }

    void readDevice(const Json &line) {
        m_result.hasContext = true;
        // The text before the parentheses, which contain the host's version.
        const std::string version = line["version"];
        m_result.esVersion = version.substr(0, version.find(" Zelvane"));
        m_result.renderer = line["renderer"];
    }

    void readContext(const Json &line) {
        makeGood("eglCreateContext");
        makeGood("eglBindAPI");
        const Json &sizes = line["sizes"];
        const auto size = [&](const char *name) { return std::to_string(int(sizes[name])); };
        m_result.config = std::to_string(uint64_t(line["config"])) + ": RGBA " + size("EGL_RED_SIZE") + ' ' +
                          size("EGL_GREEN_SIZE") + ' ' + size("EGL_BLUE_SIZE") + ' ' + size("EGL_ALPHA_SIZE") +
                          ", depth " + size("EGL_DEPTH_SIZE") + ", stencil " + size("EGL_STENCIL_SIZE") + ", samples " +
                          size("EGL_SAMPLES");
    }

    void makeGood(const std::string &call) {
        for (LabRefusal &refusal : m_result.refusals)
            if (refusal.call == call) refusal.isMadeGood = true;
    }

    void readRefusal(const Json &line) {
        const LabRefusal refusal{line["call"], line["values"], line["why"], line["help"]};
        const auto isSame = [&](const LabRefusal &other) {
            return other.call == refusal.call && other.values == refusal.values && other.why == refusal.why;
        };
        if (std::ranges::none_of(m_result.refusals, isSame)) m_result.refusals.push_back(refusal);
    }

    void readLacking(const Json &line) {
        m_result.lacking.push_back(
            {line["what"], line["name"], line["call"], line.value("whole", std::string(line["call"])), 1});
    }

    void readFrame(const Json &line) {
        makeGood("eglMakeCurrent");
        m_newestFrame = line["time"];
        if (m_result.frames++ == 0) m_firstFrame = m_newestFrame;
    }

    // Reads the counts. A journal without this line has at least one of each.
    void readEnd(const Json &line) {
        for (const Json &counted : line["lacking"]) {
            for (LabFinding &finding : m_result.lacking)
                if (finding.what == counted["what"] && finding.name == counted["name"] &&
                    finding.call == counted["call"])
                    finding.count = counted["count"];
        }
        for (const Json &counted : line["glErrors"]) {
            for (LabGlError &error : m_result.glErrors)
                if (error.call == counted["call"] && error.error == counted["error"]) error.count = counted["count"];
        }
    }

    DeviceResult &m_result;
    double m_firstFrame = 0, m_newestFrame = 0;
    std::string m_picture;
};

} // namespace

std::string readJournal(const std::string &path, DeviceResult &result) {
    Reader reader(result);
    std::ifstream file(path);
    for (std::string text; std::getline(file, text);) {
        const Json line = Json::parse(text, nullptr, false);
        if (line.is_object()) reader.read(line);
    }
    return reader.finish();
}
