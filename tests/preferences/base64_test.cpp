#include "preferences/base64.h"

#include <gtest/gtest.h>

#include <sstream>
#include <tuple>

namespace {

TEST(Base64, LinesPadsAndForeignCharacters) {
    const std::string line(72, 'A');
    const std::tuple<std::string, std::string, bool, const char *> rows[] = {
        {"", "\n", true, "a final line feed in all cases"},
        {"f", "Zg==\n", true, "one byte: two pads"},
        {"\xff\xef\xbe", "/+++\n", true, "bytes above 127, the last characters of the alphabet"},
        {std::string(54, '\0'), line + "\n\n", true, "a full line has its own line feed"},
        {std::string(109, '\0'), line + "\n" + line + "\nAA==\n", true, "the count of groups starts anew"},
        {"foo", "Z m\n9%v\xff\x80", false, "foreign characters are skipped"},
        {"", "Z", false, "a cut group gives no byte for its rest"},
    };
    for (const auto &[bytes, text, isEncoded, reason] : rows) {
        std::istringstream plain(bytes), coded(text);
        std::ostringstream encoded, decoded;
        EXPECT_TRUE(base64Decode(coded, decoded) && base64Encode(plain, encoded));
        EXPECT_EQ(decoded.str(), bytes) << reason;
        EXPECT_EQ(encoded.str() == text, isEncoded) << reason;
    }
}

} // namespace
