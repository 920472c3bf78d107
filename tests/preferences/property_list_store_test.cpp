#include "preferences/property_list_store.h"

#include <locale>
#include <numeric>
#include <tuple>

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
    void loadFile(const char *name) {
        write(fileText(ZELVANE_SOURCE_DIR "/tests/preferences/data/"s + name));
        ASSERT_TRUE(store.load(error, false)) << error;
    }
    // The result of a getter and its output, which has this value before the call.
    template <typename T, typename... Fallback>
    pair<PreferenceResult, T> read(const std::string &key,
                                   PreferenceResult (Store::*get)(const std::string &, T *, Fallback...), T value,
                                   Fallback... fallback) {
        const auto result = (store.*get)(key, &value, fallback...);
        return {result, value};
    }

    Store store{"Zelvane"};
    std::string error;
};

TEST_F(PropertyList, StructureDecides) {
    const auto expectStructure = [&](const std::string &content, const std::string &expectedError, bool isFound,
                                     const char *reason) {
        SCOPED_TRACE(reason);
        write(content);
        error = "";
        EXPECT_EQ(store.load(error, false), expectedError.empty());
        EXPECT_TRUE(error.starts_with(expectedError)) << error;
        EXPECT_EQ(store.contains("a"), isFound);
        EXPECT_EQ(text(), content) << "reading changed the file";
    };
#define STRUCTURE(...) expectStructure(__VA_ARGS__);
#include "preferences/data/structures.def"
}

TEST_F(PropertyList, WithoutADocument) {
    EXPECT_EQ(read("a", &Store::getInt, 77, 5), pair(RESULT_CRITICAL_ERROR, 5));
    EXPECT_EQ(read("a", &Store::getBool, true, false), pair(RESULT_CRITICAL_ERROR, true)) << "leaves the fallback out";
    EXPECT_TRUE(store.remove("a") == RESULT_CRITICAL_ERROR && !store.save(true) && !store.firstEntry());
    EXPECT_STREQ(resultName(RESULT_BAD_KEY), "INCORRECT_TYPE") << "the names are out of step with the codes";
}

TEST_F(PropertyList, SaveWritesOnlyWhatIsDirty) {
    write("");
    ASSERT_TRUE(store.load(error, false));
    EXPECT_TRUE(store.save(false)) << "nothing to write";
    EXPECT_FALSE(store.save(true)) << "written, but the parse error of the load still stands";
    store.setInt("a", 1);
    EXPECT_FALSE(store.save(false) || store.save(false)) << "still dirty";

    store = Store("Zelvane");
    loadPairs("<key>a</key><true/>");
    EXPECT_EQ(store.remove("a"), RESULT_SUCCESS);
    write("changed");
    EXPECT_TRUE(store.save(false));
    EXPECT_EQ(text(), "changed") << "a removal alone is not written without force";
    store.setInt("a", 1);
    EXPECT_TRUE(store.save(false));
    EXPECT_NE(text(), "changed");
    write("changed");
    // If the disk was full during the write, the old file was removed.
    fs::create_symlink("/dev/full", temporary);
    EXPECT_FALSE(store.save(true));
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
        EXPECT_EQ(read("a", &Store::getInt, 77, 5), pair(RESULT_SUCCESS, seen));
    }
    writePairs("<true/>");
    EXPECT_EQ(read("a", &Store::getInt, 77, 5), pair(RESULT_CRITICAL_ERROR, 77)) << "and stores no fallback";
    const Variable noHome("HOME", "");
    error = "before ";
    EXPECT_FALSE(store.load(error, false));
    EXPECT_EQ(error, "before ERROR: Failed to retrieve $(HOME) variable.");
}

// A copy kept the document that the original deleted when it loaded again.
TEST_F(PropertyList, CopyKeepsItsDocumentWhenTheOriginalLoads) {
    loadPairs("<key>a</key><integer>1</integer>");
    const Store copy(store);
    store.setInt("a", 2);
    ASSERT_TRUE(store.load(error, false));
    EXPECT_EQ(read("a", &Store::getInt, 77, 5), pair(RESULT_SUCCESS, 1));
    store = copy;
    EXPECT_EQ(read("a", &Store::getInt, 77, 5), pair(RESULT_SUCCESS, 2)) << "copies had shared the document";
}

TEST_F(PropertyList, WhatASetterNestsCanBeReadAgain) {
    loadPairs("");
    std::string deepest;
    for (std::string key = "a"; store.setArray(key, Ints{1}) == RESULT_SUCCESS && key.size() < 4000; key += "/a") {
        deepest = key;
        (void)store.remove("a");
    }
    EXPECT_GT(deepest.size(), 100u);
    store.setArray(deepest, Ints{1});
    ASSERT_TRUE(store.save(true) && store.load(error, false));
    EXPECT_EQ(read(deepest, &Store::getArray, Ints{}), pair(RESULT_SUCCESS, Ints{1}));
}

TEST_F(PropertyList, GettersGoByPathAndElement) {
    loadFile("values.plist");
#define GET(key, getter, before, result, after, reason)                                                                \
    EXPECT_EQ(read(key, &Store::getter, before), pair(result, after)) << key << ": " << reason;
#define INTEGER(key, result, withFallback, without)                                                                    \
    EXPECT_EQ(read(key, &Store::getInt, 77, 5), pair(result, withFallback)) << key;                                    \
    EXPECT_EQ(read(key, &Store::getInt, 77), pair(result, without)) << key;
#define PATH(key, isThere, reason) EXPECT_EQ(store.contains(key), isThere) << key << ": " << reason;
#include "preferences/data/values.def"
}

TEST_F(PropertyList, ChangesReachTheFile) {
    loadFile("changes_before.plist");
    // The application's locale must not affect numbers.
    struct Grouping : std::numpunct<char> {
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale usual = std::locale::global(std::locale(std::locale::classic(), new Grouping));
#define CHANGE(result, reason, ...) EXPECT_EQ(store.__VA_ARGS__, result) << reason;
#include "preferences/data/changes.def"
    EXPECT_TRUE(store.save(true));
    std::locale::global(usual);
    EXPECT_EQ(text(), fileText(ZELVANE_SOURCE_DIR "/tests/preferences/data/changes_after.plist"));
}

TEST_F(PropertyList, DataRoundTrip) {
    // Data is decoded in blocks of 49152 bytes; from the fourth one on, zero bytes are appended to the value.
    for (const auto &[size, readSize] : {pair(55u, 55u), {147456u, 147456u}, {147466u, 4 * 49152 + 10u}}) {
        loadPairs("");
        std::vector<uint8_t> bytes(size);
        std::iota(bytes.begin(), bytes.end(), uint8_t{3});
        EXPECT_EQ(store.setData("d", bytes.data(), size), RESULT_SUCCESS);
        std::unique_ptr<uint8_t[]> found;
        uint32_t foundSize = 0;
        ASSERT_EQ(store.getData("d", &found, &foundSize), RESULT_SUCCESS);
        bytes.resize(readSize);
        EXPECT_EQ(std::vector(found.get(), found.get() + foundSize), bytes) << size;
    }
    EXPECT_EQ(store.setData("d", nullptr, 4), RESULT_CRITICAL_ERROR);
}

} // namespace
