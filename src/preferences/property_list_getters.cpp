#include <algorithm>
#include <cstring>
#include <strings.h>
#include <type_traits>

#include "preferences/base64.h"
#include "preferences/byte_buffers.h"
#include "preferences/property_list_store.h"
#include "preferences/property_list_text.h"
#include "preferences/property_list_tree.h"

namespace {

// Sets text to the text of a value of the type; the document owns it.
PreferenceResult findText(tinyxml2::XMLDocument &document, const std::string &key, PreferenceType type,
                          const char *&text) {
    const auto *element = findValue(document, splitKey(key));
    if (!element) return RESULT_NO_VALUE;
    if (strcmp(element->Name(), entryOf(type).name) != 0) return RESULT_INCORRECT_TYPE;
    const auto *child = element->FirstChild();
    if (!child) return RESULT_NO_VALUE;
    if (!child->ToText()) return RESULT_INCORRECT_TYPE;
    text = child->Value();
    return RESULT_SUCCESS;
}

// A first child other than a text does not parse. Without a child, entry is left empty.
template <typename T>
bool readItem(const tinyxml2::XMLElement &item, T &entry) {
    const auto *child = item.FirstChild();
    if (!child) return true;
    return child->ToText() && parseText(child->Value(), entry);
}

// The element's name is the value; its contents are ignored.
bool readItem(const tinyxml2::XMLElement &item, bool &entry) {
    return parseText(item.Name(), entry);
}

} // namespace

template <typename T>
PreferenceResult KZRPreferences::getScalar(const std::string &key, PreferenceType type, T *value, const T *fallback) {
    if (m_document && !refreshIfChanged()) return RESULT_CRITICAL_ERROR;
    const char *text = nullptr;
    const auto result = m_document ? findText(*m_document, key, type, text) : RESULT_CRITICAL_ERROR;
    if (result != RESULT_SUCCESS) {
        if (value && fallback) *value = *fallback;
        return result;
    }
    T parsed{};
    const bool isParsed = parseText(text, parsed);
    if (value) *value = parsed;
    return isParsed ? RESULT_SUCCESS : RESULT_INCORRECT_TYPE;
}

PreferenceResult KZRPreferences::getString(const std::string &key, std::string *value) {
    return getScalar<std::string>(key, PreferenceType::string, value, nullptr);
}

PreferenceResult KZRPreferences::getString(const std::string &key, std::string *value, const std::string &fallback) {
    return getScalar(key, PreferenceType::string, value, &fallback);
}

PreferenceResult KZRPreferences::getInt(const std::string &key, int32_t *value) {
    return getScalar<int32_t>(key, PreferenceType::integer, value, nullptr);
}

PreferenceResult KZRPreferences::getInt(const std::string &key, int32_t *value, int32_t fallback) {
    return getScalar(key, PreferenceType::integer, value, &fallback);
}

PreferenceResult KZRPreferences::getReal(const std::string &key, double *value) {
    return getScalar<double>(key, PreferenceType::real, value, nullptr);
}

PreferenceResult KZRPreferences::getReal(const std::string &key, double *value, double fallback) {
    return getScalar(key, PreferenceType::real, value, &fallback);
}

PreferenceResult KZRPreferences::getBoolOr(const std::string &key, bool *value, const bool *fallback) const {
    if (!m_document) return RESULT_CRITICAL_ERROR;
    const auto giveFallback = [&](PreferenceResult result) {
        if (value && fallback) *value = *fallback;
        return result;
    };
    const auto *element = findValue(*m_document, splitKey(key));
    if (!element) return giveFallback(RESULT_NO_VALUE);
    const uint32_t hash = fnv1Hash(element->Name());
    if (hash != entryOf(PreferenceType::isTrue).hash && hash != entryOf(PreferenceType::isFalse).hash) {
        return giveFallback(RESULT_INCORRECT_TYPE);
    }
    bool parsed = false;
    const bool isParsed = parseText(element->Name(), parsed);
    if (value) *value = parsed;
    return isParsed ? RESULT_SUCCESS : RESULT_INCORRECT_TYPE;
}

PreferenceResult KZRPreferences::getBool(const std::string &key, bool *value) {
    return getBoolOr(key, value, nullptr);
}

PreferenceResult KZRPreferences::getBool(const std::string &key, bool *value, bool fallback) {
    return getBoolOr(key, value, &fallback);
}

PreferenceResult KZRPreferences::getData(const std::string &key, std::unique_ptr<uint8_t[]> *bytes, uint32_t *size) {
    std::string text;
    const auto result = getScalar<std::string>(key, PreferenceType::data, &text, nullptr);
    if (result != RESULT_SUCCESS) return result;

    std::erase_if(text, [](char character) { return !isBase64Character(character); });
    const auto *begin = reinterpret_cast<const uint8_t *>(text.data());
    CImmutableByteWrapper encoded(begin, begin + text.size());
    CVectorByteWrapper decoded;
    std::istream source(&encoded);
    std::ostream sink(&decoded);
    if (!base64Decode(source, sink)) return RESULT_CRITICAL_ERROR;

    const auto &found = decoded.bytes();
    if (bytes) {
        *bytes = std::make_unique<uint8_t[]>(found.size());
        std::copy(found.begin(), found.end(), bytes->get());
    }
    if (size) *size = static_cast<uint32_t>(found.size());
    return RESULT_SUCCESS;
}

template <typename Sequence>
PreferenceResult KZRPreferences::getTexts(const std::string &key, Sequence *items) {
    using Item = typename Sequence::value_type;
    if (!m_document || !refreshIfChanged()) return RESULT_CRITICAL_ERROR;
    const auto *element = findValue(*m_document, splitKey(key));
    if (!element) return RESULT_NO_VALUE;
    // Only this comparison ignores case. Bools are read from any element.
    if constexpr (!std::is_same_v<Item, bool>) {
        if (strcasecmp(element->Name(), entryOf(PreferenceType::array).name) != 0) return RESULT_INCORRECT_TYPE;
    }
    for (const auto *item = element->FirstChildElement(); item; item = item->NextSiblingElement()) {
        Item entry{};
        const bool isRead = readItem(*item, entry);
        if (items) items->push_back(entry);
        if (!isRead) return RESULT_INCORRECT_TYPE;
    }
    return RESULT_SUCCESS;
}

PreferenceResult KZRPreferences::getArray(const std::string &key, std::vector<std::string> *items) {
    return getTexts(key, items);
}

PreferenceResult KZRPreferences::getArray(const std::string &key, std::deque<std::string> *items) {
    return getTexts(key, items);
}

PreferenceResult KZRPreferences::getArray(const std::string &key, std::vector<int32_t> *items) {
    return getTexts(key, items);
}

PreferenceResult KZRPreferences::getArray(const std::string &key, std::vector<double> *items) {
    return getTexts(key, items);
}

PreferenceResult KZRPreferences::getArray(const std::string &key, std::vector<bool> *items) {
    return getTexts(key, items);
}
