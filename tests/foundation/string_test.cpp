#include "foundation/string.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace {

using namespace std::string_literals;

void expectString(const CKZRTString &string, const std::string &text, uint64_t capacity) {
    EXPECT_EQ(std::string(string.data(), string.length()), text);
    EXPECT_EQ(string.capacity(), capacity) << text;
    EXPECT_EQ(string.data()[string.length()], '\0');
}

TEST(String, BufferFitsAndIsKeptWhileItIsLongEnoughAndMayBeItsOwnSource) {
    expectString(CKZRTString(nullptr, 3), "", 1);
    expectString(CKZRTString("a\0b", 3), "a\0b"s, 4);
    CKZRTString string("abc", 2);
    string.assign("xyz"); // as long as the capacity
    string.assign("q");
    expectString(string, "q", 4);
    string.append("rst");
    expectString(string, "qrst", 5);
    string.append(string.data() + 1, 2); // of itself
    string.append(string);
    expectString(string, "qrstrsqrstrs", 13);
    string.assign(string.data() + 2, 4);
    string = *&string;
    expectString(string, "strs", 13);
    string.clear();
    expectString(string, "", 1);
    expectString(CKZRTString("dir/") + "file", "dir/file", 9);
    expectString(CKZRTString("dir/").concat(static_cast<const char *>(nullptr)), "dir/", 5);
}

TEST(String, Erase) {
    constexpr auto npos = CKZRTString::npos;
    const std::tuple<uint64_t, uint64_t, std::string, const char *> rows[] = {
#define ERASE(...) {__VA_ARGS__},
#include "foundation/data/erasures.def"
    };
    for (const auto &[position, count, text, reason] : rows) {
        SCOPED_TRACE(reason);
        CKZRTString string("abcde");
        string.erase(position, count);
        expectString(string, text, text.size() > 5 ? 8 : 6);
    }
}

} // namespace
