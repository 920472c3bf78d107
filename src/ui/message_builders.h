// Builds the records of the GUI link, one builder per type. All bytes after a payload are zero.
// Texts and lists that exceed their field are cut.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "zelvane/messages.h"

namespace ui::messages {

using Message = ::zvMessage;
using List = std::span<const uint32_t>;

[[nodiscard]] inline uint32_t typeOf(const Message &message) {
    return message.header.type;
}

// Sent by the library.
[[nodiscard]] Message processHello(int32_t processNumber);
[[nodiscard]] Message linkStop();
[[nodiscard]] Message windowTitle(std::string_view title);
[[nodiscard]] Message logInfo(std::string_view text);
[[nodiscard]] Message logWarning(std::string_view text);
[[nodiscard]] Message logError(std::string_view text);

// Sent by back ends. The sender of the record sets the frame number.
[[nodiscard]] Message backEndText(uint32_t first, uint32_t second, std::string_view text);
[[nodiscard]] Message backEndMarker();
[[nodiscard]] Message backEndRecord(const uint32_t (&values)[4], std::string_view text);
[[nodiscard]] Message backEndNamedText(uint32_t value, std::string_view name, std::string_view text);

struct BackEndLists {
    uint64_t key = 0;
    int32_t number = 0;
    uint32_t firstValues[2] = {};
    List firstLists[3];
    uint32_t lastValues[2] = {};
    List lastList;
};
[[nodiscard]] Message backEndLists(const BackEndLists &lists);

// Sent by the GUI.
[[nodiscard]] Message guiDisconnect();
[[nodiscard]] Message guiRenderModeOn();
[[nodiscard]] Message guiRenderModeOff();

// System report records. All but the end record leave frameStamp 0.
[[nodiscard]] Message systemReportGlVersion(uint32_t version);
[[nodiscard]] Message systemReportExtension(uint32_t extension, bool isAvailable);
[[nodiscard]] Message systemReportFeature(std::string_view name, bool isAvailable);
[[nodiscard]] Message systemReportFeatureAlternative(std::string_view name, uint32_t minVersion, List extensions);
[[nodiscard]] Message systemReportEsRequirement(int32_t section, std::string_view feature);
[[nodiscard]] Message systemReportEsExtensionRequirement(uint32_t esExtension, std::string_view feature);
[[nodiscard]] Message systemReportEnd();

} // namespace ui::messages
