// Reads the records at the offsets of the wire, as a GUI that was built elsewhere does.
#include "ui/message_builders.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

using namespace ui::messages;

namespace {

template <typename Value>
Value at(const Message &message, size_t offset) {
    Value value;
    memcpy(&value, message.bytes + offset, sizeof value);
    return value;
}

uint32_t word(const Message &message, size_t offset) {
    return at<uint32_t>(message, offset);
}

std::string textAt(const Message &message, size_t offset) {
    return reinterpret_cast<const char *>(message.bytes + offset);
}

TEST(MessageBuilders, EveryTypeHasItsNumberAndItsStamp) {
    constexpr uint64_t none = ~uint64_t(0);
    const struct {
        Message message;
        uint32_t type;
        uint64_t stamp;
    } rows[] = {
        {processHello(1), 0, none},
        {linkStop(), 1, none},
        {windowTitle(""), 2, none},
        {backEndText(0, 0, ""), 3, none},
        {backEndMarker(), 4, none},
        {backEndRecord({}, ""), 5, none},
        {logInfo(""), 6, none},
        {logWarning(""), 7, none},
        {logError(""), 8, none},
        {backEndNamedText(0, "", ""), 9, none},
        {backEndLists({}), 10, none},
        {guiDisconnect(), 11, none},
        {guiRenderModeOn(), 12, none},
        {guiRenderModeOff(), 13, none},
        {systemReportGlVersion(0), 14, 0},
        {systemReportExtension(0, false), 15, 0},
        {systemReportFeature("", false), 16, 0},
        {systemReportFeatureAlternative("", 0, {}), 17, 0},
        {systemReportEsRequirement(0, ""), 18, 0},
        {systemReportEsExtensionRequirement(0, ""), 19, 0},
        {systemReportEnd(), 20, none},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(word(row.message, 8), row.type);
        EXPECT_EQ(at<uint64_t>(row.message, 0), row.stamp) << row.type;
    }
}

TEST(MessageBuilders, ValuesLieAtTheirOffsets) {
    const uint32_t first[] = {31, 32}, second[] = {41}, third[] = {51, 52, 53}, last[] = {61};
    BackEndLists lists{0x1122334455667788, -5, {21, 22}, {first, second, third}, {71, 72}, last};
    const uint32_t extensions[] = {7, 8};
    const struct {
        Message message;
        std::vector<std::pair<size_t, uint32_t>> words;
    } rows[] = {
        {processHello(-3), {{12, uint32_t(-3)}}},
        {backEndText(4, 5, ""), {{12, 4}, {16, 5}}},
        {backEndRecord({1, 2, 3, 4}, ""), {{12, 1}, {16, 2}, {20, 3}, {24, 4}}},
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
        {systemReportGlVersion(9), {{12, 9}}},
        {systemReportExtension(642, true), {{12, 642}, {16, 1}}},
        {systemReportFeature("", true), {{524, 1}}},
        {systemReportFeatureAlternative("", 11, extensions), {{524, 11}, {528, 7}, {532, 8}, {536, 0}}},
        {systemReportEsRequirement(5, ""), {{12, 5}}},
        {systemReportEsExtensionRequirement(80, ""), {{12, 80}}},
    };
    for (const auto &row : rows) {
        for (const auto &[offset, value] : row.words)
            EXPECT_EQ(word(row.message, offset), value) << "type " << word(row.message, 8) << " at " << offset;
    }
}

// A build without the cut would show here as what follows the field, or as a read beyond the record.
TEST(MessageBuilders, TextsAreCutOneShortOfTheirField) {
    using Build = Message (*)(const std::string &);
    const struct {
        Build build;
        size_t offset, size;
    } rows[] = {
        {[](const std::string &text) { return windowTitle(text); }, 12, 512},
        {[](const std::string &text) { return logInfo(text); }, 12, 512},
        {[](const std::string &text) { return logWarning(text); }, 12, 512},
        {[](const std::string &text) { return logError(text); }, 12, 512},
        {[](const std::string &text) { return backEndText(1, 1, text); }, 20, 512},
        {[](const std::string &text) { return backEndRecord({}, text); }, 28, 512},
        {[](const std::string &text) { return backEndNamedText(1, text, "after"); }, 16, 64},
        {[](const std::string &text) { return backEndNamedText(1, "before", text); }, 80, 512},
        {[](const std::string &text) { return systemReportFeature(text, true); }, 12, 512},
        {[](const std::string &text) { return systemReportFeatureAlternative(text, 0x41414141, {}); }, 12, 512},
        {[](const std::string &text) { return systemReportEsRequirement(1, text); }, 16, 512},
        {[](const std::string &text) { return systemReportEsExtensionRequirement(1, text); }, 16, 512},
    };
    for (const auto &row : rows) {
        for (const size_t length : {size_t(0), row.size - 2, row.size - 1, row.size, size_t(600), size_t(20000)}) {
            const std::string text(length, 'x');
            EXPECT_EQ(textAt(row.build(text), row.offset), text.substr(0, row.size - 1)) << row.offset;
        }
    }
}

TEST(MessageBuilders, ListsAreCutOneShortOfTheirField) {
    const std::vector<uint32_t> many(3000, 9);
    const Message lists = backEndLists({0, 0, {}, {many, many, many}, {1, 2}, many});
    for (const size_t offset : {36, 2084, 4132, 6188}) {
        EXPECT_EQ(word(lists, offset + 510 * 4), 9u) << offset;
        EXPECT_EQ(word(lists, offset + 511 * 4), 0u) << offset;
    }
    const Message alternative = systemReportFeatureAlternative("", 0, many);
    EXPECT_EQ(word(alternative, 528 + 1926 * 4), 9u);
    EXPECT_EQ(word(alternative, 528 + 1927 * 4), 0u);
}

} // namespace
