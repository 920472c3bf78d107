// A tree of typed values kept in one property-list file, with access by a path of keys such as "section/name". Works on
// the parsed document; setters change only that, and save() writes it. Takes no lock: keep a store and its copies on
// one thread at a time.
#pragma once

#include <cstdint>
#include <deque>
#include <list>
#include <memory>
#include <string>
#include <vector>

#include "preferences/preference_file.h"
#include "preferences/preference_types.h"

namespace tinyxml2 {
class XMLDocument;
class XMLElement;
} // namespace tinyxml2

// Copies share the document. A copy that loads again gets its own document and leaves the others theirs.
class KZRPreferences {
public:
    // Does not access the file; there is no document before load().
    explicit KZRPreferences(std::string name, bool systemWide = false);

    // Reads the file, creating it if there is none. A file that does not parse is loaded up to the error. With watch,
    // accessors reload the file when it has changed and nothing is unsaved. False, with a text appended to error, when
    // the file cannot be opened or keys and values do not alternate; watch is then unchanged.
    [[nodiscard]] bool load(std::string &error, bool watch);
    // Writes the document when it has changes, or always with force. False when that fails, and also, though the file
    // is written, after a load with a parse error; the changes then still count as unsaved.
    bool save(bool force);

    [[nodiscard]] bool contains(const std::string &key) const;
    // Removes key and value. Of several equal keys the first is removed, and the second too when its value has no child
    // elements. Does not count as a change that save(false) would write.
    PreferenceResult remove(const std::string &key);
    // The first key of the root dict, or null. Valid until the next load or change.
    [[nodiscard]] const tinyxml2::XMLElement *firstEntry() const;

    // Getters. value may be null, to get the result only. It is written on success, and with a fallback also on most
    // failures, but not when the reload of a changed file fails. A number that does not parse returns
    // RESULT_INCORRECT_TYPE and what the extraction left (zero for a text without a number), never the fallback.
    PreferenceResult getString(const std::string &key, std::string *value);
    PreferenceResult getString(const std::string &key, std::string *value, const std::string &fallback);
    PreferenceResult getInt(const std::string &key, int32_t *value);
    PreferenceResult getInt(const std::string &key, int32_t *value, int32_t fallback);
    PreferenceResult getReal(const std::string &key, double *value);
    PreferenceResult getReal(const std::string &key, double *value, double fallback);
    // Never checks whether the file has changed, and without a document does not write value, even with a fallback.
    PreferenceResult getBool(const std::string &key, bool *value);
    PreferenceResult getBool(const std::string &key, bool *value, bool fallback);
    PreferenceResult getData(const std::string &key, std::unique_ptr<uint8_t[]> *bytes, uint32_t *size);

    // Append one entry for each item to items. An item without text adds an empty entry. An item that does not parse
    // returns RESULT_INCORRECT_TYPE and ends the reading. For bools the value may be any element.
    PreferenceResult getArray(const std::string &key, std::vector<std::string> *items);
    PreferenceResult getArray(const std::string &key, std::deque<std::string> *items);
    PreferenceResult getArray(const std::string &key, std::vector<int32_t> *items);
    PreferenceResult getArray(const std::string &key, std::vector<double> *items);
    PreferenceResult getArray(const std::string &key, std::vector<bool> *items);

    // Setters create the path as needed, and change the type of an existing value.
    PreferenceResult setString(const std::string &key, const std::string &value);
    PreferenceResult setInt(const std::string &key, int32_t value);
    // Keeps six significant digits.
    PreferenceResult setReal(const std::string &key, double value);
    PreferenceResult setBool(const std::string &key, bool value);
    PreferenceResult setData(const std::string &key, const uint8_t *bytes, uint32_t size);

    // Replace the items. An existing value that is not an array keeps its type and receives the items all the same.
    PreferenceResult setArray(const std::string &key, const std::vector<std::string> &items);
    PreferenceResult setArray(const std::string &key, const std::deque<std::string> &items);
    PreferenceResult setArray(const std::string &key, const std::list<std::string> &items);
    PreferenceResult setArray(const std::string &key, const std::vector<int32_t> &items);
    PreferenceResult setArray(const std::string &key, const std::vector<double> &items);
    PreferenceResult setArray(const std::string &key, const std::vector<bool> &items);

private:
    [[nodiscard]] bool refreshIfChanged();

    template <typename T>
    PreferenceResult getScalar(const std::string &key, PreferenceType type, T *value, const T *fallback);
    PreferenceResult getBoolOr(const std::string &key, bool *value, const bool *fallback) const;
    template <typename Sequence>
    PreferenceResult getTexts(const std::string &key, Sequence *items);

    // Finds or creates the element to write to; null with a reason in result.
    [[nodiscard]] tinyxml2::XMLElement *openForWriting(const std::string &key, PreferenceType type,
                                                       PreferenceResult &result);
    PreferenceResult setText(const std::string &key, PreferenceType type, const std::string &text);
    template <typename Sequence>
    PreferenceResult setItems(const std::string &key, PreferenceType itemType, const Sequence &items);

    std::shared_ptr<tinyxml2::XMLDocument> m_document;
    std::shared_ptr<KZRPreferencesImpl> m_impl;
    std::string m_name;
    uint32_t m_stamp = 0; // of the file at the last load or save
    bool m_watch = false;
    bool m_dirty = false;
    bool m_systemWide;
};
