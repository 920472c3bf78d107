#include <sstream>

#include "preferences/base64.h"
#include "preferences/byte_buffers.h"
#include "preferences/property_list_store.h"
#include "preferences/property_list_text.h"
#include "preferences/property_list_tree.h"

namespace {

void appendItem(tinyxml2::XMLElement &parent, PreferenceType type, const std::string &text) {
    auto *document = parent.GetDocument();
    auto *item = document->NewElement(entryOf(type).name);
    item->InsertEndChild(document->NewText(text.c_str()));
    parent.InsertEndChild(item);
}

PreferenceType typeOf(bool value) {
    return value ? PreferenceType::isTrue : PreferenceType::isFalse;
}

} // namespace

tinyxml2::XMLElement *KZRPreferences::openForWriting(const std::string &key, PreferenceType type,
                                                     PreferenceResult &result) {
    result = m_document ? RESULT_BAD_KEY : RESULT_CRITICAL_ERROR;
    if (!m_document || key.empty()) return nullptr;
    result = RESULT_CRITICAL_ERROR;
    if (!refreshIfChanged()) return nullptr;
    const auto path = splitKey(key);
    auto *element = findValue(*m_document, path);
    if (!element) element = createValue(*m_document, path, type);
    if (element) result = RESULT_SUCCESS;
    return element;
}

PreferenceResult KZRPreferences::setText(const std::string &key, PreferenceType type, const std::string &text) {
    PreferenceResult result;
    auto *element = openForWriting(key, type, result);
    if (!element) return result;
    element->SetName(entryOf(type).name);
    if (!element->FirstChild()) element->InsertEndChild(m_document->NewText(""));
    // A value with child elements keeps them and gets no text, but counts as changed.
    if (auto *node = element->FirstChild()->ToText()) node->SetValue(text.c_str());
    m_dirty = true;
    return RESULT_SUCCESS;
}

PreferenceResult KZRPreferences::setString(const std::string &key, const std::string &value) {
    return setText(key, PreferenceType::string, value);
}

PreferenceResult KZRPreferences::setInt(const std::string &key, int32_t value) {
    return setText(key, PreferenceType::integer, textOf(value));
}

PreferenceResult KZRPreferences::setReal(const std::string &key, double value) {
    return setText(key, PreferenceType::real, textOf(value));
}

PreferenceResult KZRPreferences::setBool(const std::string &key, bool value) {
    PreferenceResult result;
    auto *element = openForWriting(key, typeOf(value), result);
    if (!element) return result;
    const std::string name = textOf(value);
    if (name != element->Name()) {
        element->DeleteChildren();
        element->SetName(name.c_str());
    }
    m_dirty = true;
    return RESULT_SUCCESS;
}

PreferenceResult KZRPreferences::setData(const std::string &key, const uint8_t *bytes, uint32_t size) {
    if (!bytes && size > 0) return RESULT_CRITICAL_ERROR;
    CImmutableByteWrapper plain(bytes, bytes + size);
    std::istream source(&plain);
    std::ostringstream text;
    if (!base64Encode(source, text)) return RESULT_CRITICAL_ERROR;
    return setText(key, PreferenceType::data, text.str());
}

template <typename Sequence>
PreferenceResult KZRPreferences::setItems(const std::string &key, PreferenceType itemType, const Sequence &items) {
    PreferenceResult result;
    auto *element = openForWriting(key, PreferenceType::array, result);
    if (!element) return result;
    element->DeleteChildren();
    for (const auto &item : items) {
        appendItem(*element, itemType, textOf(item));
    }
    m_dirty = true;
    return RESULT_SUCCESS;
}

PreferenceResult KZRPreferences::setArray(const std::string &key, const std::vector<std::string> &items) {
    return setItems(key, PreferenceType::string, items);
}

PreferenceResult KZRPreferences::setArray(const std::string &key, const std::deque<std::string> &items) {
    return setItems(key, PreferenceType::string, items);
}

PreferenceResult KZRPreferences::setArray(const std::string &key, const std::list<std::string> &items) {
    return setItems(key, PreferenceType::string, items);
}

PreferenceResult KZRPreferences::setArray(const std::string &key, const std::vector<int32_t> &items) {
    return setItems(key, PreferenceType::integer, items);
}

PreferenceResult KZRPreferences::setArray(const std::string &key, const std::vector<double> &items) {
    return setItems(key, PreferenceType::real, items);
}

PreferenceResult KZRPreferences::setArray(const std::string &key, const std::vector<bool> &items) {
    PreferenceResult result;
    auto *element = openForWriting(key, PreferenceType::array, result);
    if (!element) return result;
    element->DeleteChildren();
    for (const bool item : items) {
        element->InsertNewChildElement(textOf(item).c_str());
    }
    m_dirty = true;
    return RESULT_SUCCESS;
}
