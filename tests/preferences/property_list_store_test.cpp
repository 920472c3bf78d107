#include "preferences/property_list_store.h"

#include <locale>
#include <numeric>
#include <regex>
#include <tuple>

#include <gmock/gmock.h>

#include "preferences/preference_home.h"

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using std::pair, std::tuple;
using Store = KZRPreferences;
using Ints = std::vector<int32_t>;
using Bools = std::vector<bool>;
using Texts = std::deque<std::string>;

class PropertyList : public PreferenceHome {
protected:
    void loadPairs(const std::string &pairs, bool watch = false) {
        writePairs(pairs);
        ASSERT_TRUE(store.load(error, watch)) << error;
    }
    // Result and value of a getter whose output holds this value at the call.
    template <typename T>
    pair<PreferenceResult, T> read(const char *key, PreferenceResult (Store::*get)(const std::string &, T *), T value) {
        const auto result = (store.*get)(key, &value);
        return {result, value};
    }
    pair<PreferenceResult, int32_t> readIntOr5(const char *key) {
        int32_t value = 77;
        const auto result = store.getInt(key, &value, 5);
        return {result, value};
    }

    Store store{"Zelvane"};
    std::string error;
};

TEST_F(PropertyList, StructureDecides) {
    std::string deep;
    for (int i = 0; i < 5000; ++i)
        deep += "<dict><key>a</key>";
    const tuple<std::string, std::string, bool, const char *> rows[] = {
        {"", "", false, "an empty file"},
        {"<plist><dict><key>a</key><integer>1</integer>", "", false, "cut off"},
        {"<plist><dict><key>a</key>" + deep, "", false, "nested deeper than the parser goes"},
        {"<plist><array/><dict><key>a</key><true/></dict></plist>", "", false, "the first child is no dict"},
        {"<plist><dict><string>a</string></dict></plist>", "ERROR: Missing <key> tag\n", false, "no key"},
        {"<plist><dict><key>a</key></dict></plist>", "ERROR: Key missing value!", false, "no value"},
        {"<plist><dict><key>a</key><key>b</key></dict></plist>", "ERROR: Key missing value\n", true, "key for value"},
        {"<plist><dict><key>a</key><dict><true/></dict></dict></plist>", "ERROR: Missing <key> tag\n", true, "nested"},
        {"<plist><dict><key>a</key><array><key>b</key></array></dict></plist>",
         "ERROR: Array elements cannot contain a <key> tag!\n", true, "key in an array"},
        {"<plist><dict><key>a</key><true/></dict></plist><", "", true, "what the parser reached is used"},
        {"<plist><dict><true/></dict></plist><", "ERROR: Missing <key> tag\nError=XML", false, "both fail"},
    };
    for (const auto &[content, expectedError, isFound, reason] : rows) {
        SCOPED_TRACE(reason);
        write(content);
        error = "";
        EXPECT_EQ(store.load(error, false), expectedError.empty());
        EXPECT_TRUE(error.starts_with(expectedError)) << error;
        EXPECT_EQ(store.contains("a"), isFound);
        EXPECT_EQ(text(), content) << "reading changed the file";
    }
}

TEST_F(PropertyList, WithoutADocument) {
    EXPECT_EQ(readIntOr5("a"), pair(RESULT_CRITICAL_ERROR, 5));
    bool isSet = true;
    EXPECT_EQ(store.getBool("a", &isSet, false), RESULT_CRITICAL_ERROR);
    EXPECT_TRUE(isSet) << "the bool getter leaves the fallback out";
    EXPECT_EQ(store.setInt("", 1), RESULT_CRITICAL_ERROR);
    EXPECT_TRUE(store.remove("a") == RESULT_CRITICAL_ERROR && !store.save(true) && !store.firstEntry());
    EXPECT_STREQ(resultName(RESULT_BAD_KEY), "INCORRECT_TYPE") << "the names are out of step with the codes";
    EXPECT_EQ(resultName(RESULT_CRITICAL_ERROR), nullptr);
}

TEST_F(PropertyList, LoadWithAParseErrorSavesAndStaysDirty) {
    write("");
    ASSERT_TRUE(store.load(error, false));
    EXPECT_TRUE(store.save(false)) << "nothing to write";
    EXPECT_FALSE(store.save(true)) << "written, but the parse error of the load still stands";
    EXPECT_EQ(text(), "<plist version=\"1.0\">\n    <dict/>\n</plist>\n");
    store.setInt("a", 1);
    EXPECT_FALSE(store.save(false) || store.save(false)) << "still dirty";
}

TEST_F(PropertyList, SaveWritesOnlyWhatIsDirty) {
    loadPairs("<key>a</key><true/>");
    EXPECT_EQ(store.remove("a"), RESULT_SUCCESS);
    write("changed");
    EXPECT_TRUE(store.save(false));
    EXPECT_EQ(text(), "changed") << "a removal alone is not written without force";
    store.setInt("a", 1);
    EXPECT_TRUE(store.save(false));
    EXPECT_NE(text(), "changed");
    write("changed");
    EXPECT_TRUE(store.save(false));
    EXPECT_EQ(text(), "changed");

    // A disk that filled up during the write took the good file away.
    fs::create_symlink("/dev/full", temporary);
    EXPECT_FALSE(store.save(true));
    EXPECT_EQ(text(), "changed");
    fs::create_directory(temporary);
    EXPECT_TRUE(store.save(true)) << "no stream at all prints to nowhere and counts as success";
    EXPECT_EQ(text(), "changed");
}

TEST_F(PropertyList, WatchFollowsTheFile) {
    for (const auto &[isWatched, isDirty, seen] : {tuple(false, false, 1), {true, true, 1}, {true, false, 2}}) {
        store = Store("Zelvane");
        loadPairs("<key>a</key><integer>1</integer><key>b</key><false/>", isWatched);
        if (isDirty) store.setInt("c", 3);
        writePairs("<key>a</key><integer>2</integer><key>b</key><true/>");
        fs::last_write_time(file, {});
        EXPECT_EQ(read("b", &Store::getBool, true), pair(RESULT_SUCCESS, false)) << "never looks at the file";
        EXPECT_EQ(readIntOr5("a"), pair(RESULT_SUCCESS, seen));
    }
    writePairs("<true/>");
    EXPECT_EQ(readIntOr5("a"), pair(RESULT_CRITICAL_ERROR, 77)) << "a failed reload stores no fallback";
    EXPECT_EQ(store.setInt("a", 1), RESULT_CRITICAL_ERROR);
    const Variable noHome("HOME", "");
    error = "before ";
    EXPECT_FALSE(store.load(error, false));
    EXPECT_EQ(error, "before ERROR: Failed to retrieve $(HOME) variable.");
}

// A copy was left with the document that the original deleted when it loaded again.
TEST_F(PropertyList, CopyKeepsItsDocumentWhenTheOriginalLoads) {
    loadPairs("<key>a</key><integer>1</integer>");
    const Store copy(store);
    store.setInt("a", 2);
    ASSERT_TRUE(store.load(error, false));
    EXPECT_EQ(readIntOr5("a"), pair(RESULT_SUCCESS, 1));
    store = copy;
    EXPECT_EQ(readIntOr5("a"), pair(RESULT_SUCCESS, 2)) << "copies had shared the document";
}

TEST_F(PropertyList, WhatASetterNestsCanBeReadAgain) {
    loadPairs("");
    std::string deepest;
    for (std::string key = "a"; store.setArray(key, Ints{1}) == RESULT_SUCCESS && key.size() < 4000; key += "/a") {
        deepest = key;
        (void)store.remove("a");
    }
    EXPECT_GT(deepest.size(), 100u);
    EXPECT_EQ(store.setArray(deepest, Ints{1}), RESULT_SUCCESS);
    ASSERT_TRUE(store.save(true) && store.load(error, false));
    EXPECT_EQ(read(deepest.c_str(), &Store::getArray, Ints{}), pair(RESULT_SUCCESS, Ints{1}));
}

TEST_F(PropertyList, PathsGoByPosition) {
    loadPairs("<key>a</key><string>first</string><key>a</key><dict><key>b</key><true/></dict><key/><true/>"
              "<key>d</key><dict><key>e</key><dict><key>f g</key><true/></dict></dict>");
    EXPECT_TRUE(store.contains("/d//e/f g/")) << "a slash at either end and empty parts count for nothing";
    EXPECT_FALSE(store.contains("d/e//")) << "the part after the last slash counts though it is empty";
    EXPECT_TRUE(store.contains("//")) << "the key without text";
    EXPECT_FALSE(store.contains("D") || store.contains("d/f g"));
    EXPECT_FALSE(store.contains("a/b")) << "the first of two equal keys wins, though it does not lead on";
}

TEST_F(PropertyList, NumbersByElement) {
    const tuple<const char *, PreferenceResult, int32_t> rows[] = {
        {"<integer> \n-3abc</integer>", RESULT_SUCCESS, -3},
        {"<integer>abc</integer>", RESULT_INCORRECT_TYPE, 0},
        {"<integer>99999999999</integer>", RESULT_INCORRECT_TYPE, INT32_MAX},
        {"<integer><!--1--></integer>", RESULT_INCORRECT_TYPE, 5},
        {"<Integer>1</Integer>", RESULT_INCORRECT_TYPE, 5},
    };
    for (const auto &[element, result, value] : rows) {
        loadPairs("<key>a</key>"s + element);
        EXPECT_EQ(readIntOr5("a"), pair(result, value)) << element;
        EXPECT_EQ(read("a", &Store::getInt, 77), pair(result, value == 5 ? 77 : value)) << element;
    }
}

TEST_F(PropertyList, OtherGetters) {
    loadPairs(
        "<key>f</key><false>true</false><key>s</key><string> a &lt;b&gt;\n </string><key>r</key><real>-25e2</real>"
        "<key>mixed</key><array><integer>1</integer><integer/><integer>x</integer><integer>4</integer></array>"
        "<key>upper</key><ARRAY><string>a</string><string/></ARRAY>"
        "<key>bools</key><string><true/><x/><true/></string>");
    EXPECT_EQ(read("f", &Store::getBool, true), pair(RESULT_SUCCESS, false)) << "told by the name of the element";
    EXPECT_EQ(read("s", &Store::getBool, true), pair(RESULT_INCORRECT_TYPE, true));
    EXPECT_EQ(read("s", &Store::getString, ""s), pair(RESULT_SUCCESS, " a <b>\n "s));
    EXPECT_EQ(read("r", &Store::getReal, 0.0), pair(RESULT_SUCCESS, -2500.0));
    EXPECT_EQ(read("mixed", &Store::getArray, Ints{7}), pair(RESULT_INCORRECT_TYPE, Ints{7, 1, 0, 0}));
    EXPECT_EQ(read("upper", &Store::getArray, Texts{}), pair(RESULT_SUCCESS, Texts{"a", ""})) << "case does not count";
    EXPECT_EQ(read("s", &Store::getArray, Texts{}), pair(RESULT_INCORRECT_TYPE, Texts{}));
    EXPECT_EQ(read("bools", &Store::getArray, Bools{}), pair(RESULT_INCORRECT_TYPE, Bools{true, false})) << "any type";
}

TEST_F(PropertyList, ChangesReachTheFile) {
    loadPairs("<key>t</key><real>1</real><key>f</key><real>1</real><key>r</key><real>1</real>"
              "<key>e</key><dict><key>x</key><true/></dict><key>b</key><dict><key>x</key><true/></dict>"
              "<key>v</key><array><true/></array><key>n</key><string>x</string>"
              "<key>2</key><dict><key>x</key><true/></dict><!-- --><key>2</key><true/><key>2</key><real>3</real>"
              "<key>3</key><true/><key>3</key><dict><key>x</key><true/></dict>");
    // A grouping locale of the application must not.
    struct Grouping : std::numpunct<char> {
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale usual = std::locale::global(std::locale(std::locale::classic(), new Grouping));
    const PreferenceResult results[] = {
        store.setString("t", "<"),
        store.setBool("f", false),
        store.setInt("r/x", INT32_MIN),          // below a value that is no dict
        store.setString("e", "x"),               // a value with elements takes no text
        store.setBool("b", true),                // a bool loses its elements
        store.setArray("v", Texts{"b", ""}),     // items are replaced
        store.setArray("n", Bools{true, false}), // what is no array keeps its name
        store.remove("/2/"),                     // one duplicate goes along
        store.remove("3"),                       // but never one that holds values
        store.setReal("d/r", 3.14159265),        // six digits; the first key stays on the line of the new dict
    };
    EXPECT_THAT(results, testing::Each(RESULT_SUCCESS));
    EXPECT_EQ(store.setInt("", 1), RESULT_BAD_KEY);
    EXPECT_EQ(store.remove("x"), RESULT_NO_VALUE);
    EXPECT_TRUE(store.save(true));
    std::locale::global(usual);
    EXPECT_EQ(std::regex_replace(text(), std::regex("\n *"), " "),
              "<plist version=\"1.0\"> <dict> <key>t</key> <string>&lt;</string> <key>f</key> <false/> "
              "<key>r</key> <real>1<key>x</key> <integer>-2147483648</integer> </real> "
              "<key>e</key> <string> <key>x</key> <true/> </string> <key>b</key> <true/> "
              "<key>v</key> <array> <string>b</string> <string></string> </array> "
              "<key>n</key> <string> <true/> <false/> </string> <!-- --> <key>2</key> <real>3</real> "
              "<key>3</key> <dict> <key>x</key> <true/> </dict> "
              "<key>d</key> <dict><key>r</key> <real>3.14159</real> </dict> </dict> </plist> ");
}

TEST_F(PropertyList, DataRoundTrip) {
    // Decoding works in blocks of 49152 bytes; from the fourth one on a tail of zero bytes is part of the value.
    for (const auto &[size, readSize] : {pair(55u, 55u), {147456u, 147456u}, {147466u, 4 * 49152 + 10u}}) {
        loadPairs("");
        std::vector<uint8_t> bytes(size);
        std::iota(bytes.begin(), bytes.end(), uint8_t{3});
        EXPECT_EQ(store.setData("d", bytes.data(), size), RESULT_SUCCESS);
        ASSERT_TRUE(store.save(true) && store.load(error, false)) << error;
        std::unique_ptr<uint8_t[]> found;
        uint32_t foundSize = 0;
        ASSERT_EQ(store.getData("d", &found, &foundSize), RESULT_SUCCESS);
        bytes.resize(readSize);
        EXPECT_EQ(std::vector(found.get(), found.get() + foundSize), bytes) << size;
    }
    EXPECT_EQ(store.setData("d", nullptr, 4), RESULT_CRITICAL_ERROR);
}

} // namespace
