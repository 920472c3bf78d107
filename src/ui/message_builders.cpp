#include "ui/message_builders.h"

#include <algorithm>
#include <string>

#include "zelvane/message_builders.h"

namespace ui::messages {

namespace {

Message unstamped(zvMessageType type) {
    Message message{};
    message.header.type = type;
    return message;
}

Message withoutFrame(zvMessageType type) {
    Message message = unstamped(type);
    message.header.frameStamp = ZV_NO_FRAME;
    return message;
}

// The field is zero and its last byte is not written, so it remains a terminator.
template <size_t size>
void copyText(char (&field)[size], std::string_view text) {
    text.copy(field, size - 1);
}

template <size_t size>
void copyList(uint32_t (&field)[size], List list) {
    const List fitting = list.first(std::min(list.size(), size - 1));
    std::copy(fitting.begin(), fitting.end(), field);
}

Message withText(zvMessageType type, std::string_view text) {
    Message message = withoutFrame(type);
    copyText(message.text.text, text);
    return message;
}

} // namespace

Message processHello(int32_t processNumber) {
    Message message = withoutFrame(ZV_PROCESS_HELLO);
    message.processHello.processNumber = processNumber;
    return message;
}

Message linkStop() {
    return withoutFrame(ZV_LINK_STOP);
}

Message windowTitle(std::string_view title) {
    return withText(ZV_WINDOW_TITLE, title);
}

Message logInfo(std::string_view text) {
    return withText(ZV_LOG_INFO, text);
}

Message logWarning(std::string_view text) {
    return withText(ZV_LOG_WARNING, text);
}

Message logError(std::string_view text) {
    return withText(ZV_LOG_ERROR, text);
}

Message backEndText(uint32_t first, uint32_t second, std::string_view text) {
    return zvBuildBackEndText(first, second, std::string(text).c_str());
}

Message backEndMarker() {
    return zvBuildBackEndMarker();
}

Message backEndRecord(const uint32_t (&values)[4], std::string_view text) {
    return zvBuildBackEndRecord(values, std::string(text).c_str());
}

Message backEndNamedText(uint32_t value, std::string_view name, std::string_view text) {
    return zvBuildBackEndNamedText(value, std::string(name).c_str(), std::string(text).c_str());
}

Message backEndLists(const BackEndLists &lists) {
    const auto listOf = [](List list) { return zvList{list.data(), list.size()}; };
    const auto &[first, second, third] = lists.firstLists;
    const zvLists all{lists.key,
                      lists.number,
                      {lists.firstValues[0], lists.firstValues[1]},
                      {listOf(first), listOf(second), listOf(third)},
                      {lists.lastValues[0], lists.lastValues[1]},
                      listOf(lists.lastList)};
    return zvBuildBackEndLists(&all);
}

Message guiDisconnect() {
    return withoutFrame(ZV_GUI_DISCONNECT);
}

Message guiRenderModeOn() {
    return withoutFrame(ZV_GUI_RENDER_MODE_ON);
}

Message guiRenderModeOff() {
    return withoutFrame(ZV_GUI_RENDER_MODE_OFF);
}

Message systemReportGlVersion(uint32_t version) {
    Message message = unstamped(ZV_SYSTEM_REPORT_GL_VERSION);
    message.glVersion.glVersion = version;
    return message;
}

Message systemReportExtension(uint32_t extension, bool isAvailable) {
    Message message = unstamped(ZV_SYSTEM_REPORT_EXTENSION);
    message.extension.extension = extension;
    message.extension.isAvailable = isAvailable;
    return message;
}

Message systemReportFeature(std::string_view name, bool isAvailable) {
    Message message = unstamped(ZV_SYSTEM_REPORT_FEATURE);
    copyText(message.feature.name, name);
    message.feature.isAvailable = isAvailable;
    return message;
}

Message systemReportFeatureAlternative(std::string_view name, uint32_t minVersion, List extensions) {
    Message message = unstamped(ZV_SYSTEM_REPORT_FEATURE_ALTERNATIVE);
    copyText(message.featureAlternative.name, name);
    message.featureAlternative.minVersion = minVersion;
    copyList(message.featureAlternative.extensions, extensions);
    return message;
}

Message systemReportEsRequirement(int32_t section, std::string_view feature) {
    Message message = unstamped(ZV_SYSTEM_REPORT_ES_REQUIREMENT);
    message.esRequirement.section = section;
    copyText(message.esRequirement.feature, feature);
    return message;
}

Message systemReportEsExtensionRequirement(uint32_t esExtension, std::string_view feature) {
    Message message = unstamped(ZV_SYSTEM_REPORT_ES_EXTENSION_REQUIREMENT);
    message.esExtensionRequirement.esExtension = esExtension;
    copyText(message.esExtensionRequirement.feature, feature);
    return message;
}

Message systemReportEnd() {
    return withoutFrame(ZV_SYSTEM_REPORT_END);
}

} // namespace ui::messages
