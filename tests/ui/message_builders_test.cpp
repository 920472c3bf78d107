// Reads the records at the offsets of the wire, as a GUI that was built elsewhere does.
#include "ui/message_builders.h"

#include <gmock/gmock.h>

#include <array>
#include <cstring>
#include <string>
#include <vector>

using namespace ui::messages;

namespace {

uint32_t word(const Message &message, size_t offset) {
    uint32_t value;
    memcpy(&value, message.bytes + offset, sizeof value);
    return value;
}

TEST(MessageBuilders, TypesStampsAndValuesLieAtTheirOffsets) {
    const uint32_t first[] = {31, 32}, second[] = {41}, third[] = {51, 52, 53}, last[] = {61}, extensions[] = {7, 8};
    const BackEndLists lists{0x1122334455667788, -5, {21, 22}, {first, second, third}, {71, 72}, last};
    // One a type, in the order of their numbers.
    const struct {
        Message message;
        std::vector<std::pair<size_t, uint32_t>> words;
    } rows[] = {
        {processHello(-3), {{12, uint32_t(-3)}}},
        {linkStop(), {}},
        {windowTitle(""), {}},
        {backEndText(4, 5, ""), {{12, 4}, {16, 5}}},
        {backEndMarker(), {}},
        {backEndRecord({1, 2, 3, 4}, ""), {{12, 1}, {16, 2}, {20, 3}, {24, 4}}},
        {logInfo(""), {}},
        {logWarning(""), {}},
        {logError(""), {}},
        {backEndNamedText(6, "", ""), {{12, 6}}},
        {backEndLists(lists),
         {{16, 0x55667788},
          {20, 0x11223344},
          {24, uint32_t(-5)},
          {28, 21},
          {32, 22},
          {36, 31},
          {40, 32},
          {44, 0},
          {2084, 41},
          {2088, 0},
          {4132, 51},
          {4140, 53},
          {4144, 0},
          {6180, 71},
          {6184, 72},
          {6188, 61},
          {6192, 0}}},
        {guiDisconnect(), {}},
        {guiRenderModeOn(), {}},
        {guiRenderModeOff(), {}},
        {systemReportGlVersion(9), {{12, 9}}},
        {systemReportExtension(642, true), {{12, 642}, {16, 1}}},
        {systemReportFeature("", true), {{524, 1}}},
        {systemReportFeatureAlternative("", 11, extensions), {{524, 11}, {528, 7}, {532, 8}, {536, 0}}},
        {systemReportEsRequirement(5, ""), {{12, 5}}},
        {systemReportEsExtensionRequirement(80, ""), {{12, 80}}},
        {systemReportEnd(), {}},
    };
    for (uint32_t type = 0; type < std::size(rows); ++type) {
        const Message &message = rows[type].message;
        const uint32_t stamp = type >= 14 && type <= 19 ? 0 : ~0u;
        EXPECT_THAT((std::array{word(message, 0), word(message, 4), word(message, 8)}),
                    testing::ElementsAre(stamp, stamp, type));
        for (const auto &[offset, value] : rows[type].words)
            EXPECT_EQ(word(message, offset), value) << "type " << type << " at " << offset;
    }
}

// A build without the cut would show here as what follows the field, or as a read beyond the record.
TEST(MessageBuilders, TextsAreCutOneShortOfTheirField) {
    using Build = Message (*)(const std::string &);
    const struct {
        Build build;
        size_t offset, size;
    } rows[] = {
        {[](auto &text) { return windowTitle(text); }, 12, 512},
        {[](auto &text) { return logInfo(text); }, 12, 512},
        {[](auto &text) { return logWarning(text); }, 12, 512},
        {[](auto &text) { return logError(text); }, 12, 512},
        {[](auto &text) { return backEndText(1, 1, text); }, 20, 512},
        {[](auto &text) { return backEndRecord({}, text); }, 28, 512},
        {[](auto &text) { return backEndNamedText(1, text, "after"); }, 16, 64},
        {[](auto &text) { return backEndNamedText(1, "before", text); }, 80, 512},
        {[](auto &text) { return systemReportFeature(text, true); }, 12, 512},
        {[](auto &text) { return systemReportFeatureAlternative(text, 0x41414141, {}); }, 12, 512},
        {[](auto &text) { return systemReportEsRequirement(1, text); }, 16, 512},
        {[](auto &text) { return systemReportEsExtensionRequirement(1, text); }, 16, 512},
    };
    for (const auto &row : rows) {
        for (const size_t length : {row.size - 1, row.size, size_t(20000)}) {
            const Message message = row.build(std::string(length, 'x'));
            EXPECT_EQ(reinterpret_cast<const char *>(message.bytes + row.offset), std::string(row.size - 1, 'x'));
        }
    }
}

TEST(MessageBuilders, ListsAreCutOneShortOfTheirField) {
    const std::vector<uint32_t> many(3000, 9);
    const Message lists = backEndLists({0, 0, {}, {many, many, many}, {1, 2}, many});
    const Message alternative = systemReportFeatureAlternative("", 0, many);
    const std::tuple<const Message &, size_t, size_t> fields[] = {
        {lists, 36, 511}, {lists, 2084, 511}, {lists, 4132, 511}, {lists, 6188, 511}, {alternative, 528, 1927}};
    for (const auto &[message, offset, room] : fields) {
        EXPECT_EQ(word(message, offset + (room - 1) * 4), 9u) << offset;
        EXPECT_EQ(word(message, offset + room * 4), 0u) << offset;
    }
}

} // namespace
