// Reads the records at the offsets of the wire format, as a separately built GUI does.
#include "ui/message_builders.h"

#include <gmock/gmock.h>

#include <array>
#include <cstring>
#include <string>
#include <vector>

#include "ui/socket.h"

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
    const struct {
        Message message;
        std::vector<std::pair<size_t, uint32_t>> words;
    } rows[] = {
#include "ui/data/records.def"
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

TEST(SocketPath, IsWhereGuisListen) {
    EXPECT_EQ(KZRIPC::socketPath("Zelvane"), "/tmp/Zelvane");
}

// Without truncation, data after the field or a read past the record would show here.
TEST(MessageBuilders, TextsAreCutOneShortOfTheirField) {
    using Build = Message (*)(const std::string &);
    const std::tuple<Build, size_t, size_t> rows[] = {
#define FIELD(record, offset, size) {[](const std::string &text) { return record; }, offset, size},
#include "ui/data/text_fields.def"
    };
    for (const auto &[build, offset, size] : rows) {
        for (const size_t length : {size - 1, size, size_t(20000)}) {
            const Message message = build(std::string(length, 'x'));
            EXPECT_EQ(reinterpret_cast<const char *>(message.bytes + offset), std::string(size - 1, 'x'));
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
