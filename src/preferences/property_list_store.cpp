#include "preferences/property_list_store.h"

#include <string_view>

#include "preferences/property_list_tree.h"

namespace {

// Longer parser messages are cut to this.
constexpr size_t errorDetailLimit = 1023;

} // namespace

KZRPreferences::KZRPreferences(std::string name, bool systemWide)
    : m_impl(std::make_shared<KZRPreferencesUnix>()), m_name(std::move(name)), m_systemWide(systemWide) {}

bool KZRPreferences::load(std::string &error, bool watch) {
    std::string reason;
    PreferenceFile file = m_impl->openPreferenceFile(m_name, readPreferences, m_systemWide, false, reason);
    if (!file.stream) {
        error += "ERROR: " + reason;
        m_impl->closePreferenceFile(std::move(file), false);
        return false;
    }
    m_document = std::make_shared<tinyxml2::XMLDocument>(true, tinyxml2::PRESERVE_WHITESPACE);
    const bool isParsed = m_document->LoadFile(file.stream) == tinyxml2::XML_SUCCESS;
    m_impl->closePreferenceFile(std::move(file), false);

    // A parse error alone is no failure: the part before it is used, and the rest is lost at the next save.
    if (!validateDocument(*m_document, error)) {
        if (!isParsed) error += std::string_view(m_document->ErrorStr()).substr(0, errorDetailLimit);
        return false;
    }
    m_watch = watch;
    if (m_watch) (void)m_impl->getPreferenceFileStamp(m_name, m_systemWide, m_stamp);
    return true;
}

bool KZRPreferences::save(bool force) {
    if (!m_document) return false;
    if (!force && !m_dirty) return true;

    std::string reason;
    PreferenceFile file = m_impl->openPreferenceFile(m_name, writePreferences, m_systemWide, true, reason);
    // Without a stream nothing is written, which counts as a success. SaveFile would clear the error of the load.
    tinyxml2::XMLPrinter printer(file.stream);
    m_document->Accept(&printer);
    const bool isWritten = !file.stream || (fflush(file.stream) == 0 && !ferror(file.stream));
    m_impl->closePreferenceFile(std::move(file), true);

    // After a load with an error the file is saved, but the store still has unsaved changes.
    if (!isWritten || m_document->Error()) return false;
    m_dirty = false;
    if (m_watch) (void)m_impl->getPreferenceFileStamp(m_name, m_systemWide, m_stamp);
    return true;
}

// False when the file had changed and could not be loaded again.
bool KZRPreferences::refreshIfChanged() {
    // Unsaved changes are never overwritten.
    if (m_dirty || !m_watch) return true;
    uint32_t stamp = 0;
    if (!m_impl->getPreferenceFileStamp(m_name, m_systemWide, stamp) || stamp == m_stamp) return true;
    std::string dropped;
    return load(dropped, true);
}

bool KZRPreferences::contains(const std::string &key) const {
    return m_document && findValue(*m_document, splitKey(key));
}

PreferenceResult KZRPreferences::remove(const std::string &key) {
    if (!m_document) return RESULT_CRITICAL_ERROR;
    const auto path = splitKey(key);
    const auto removeFound = [&](tinyxml2::XMLElement &value) {
        tinyxml2::XMLNode *dict = value.Parent();
        dict->DeleteChild(value.PreviousSiblingElement());
        dict->DeleteChild(&value);
    };
    tinyxml2::XMLElement *value = findValue(*m_document, path);
    if (!value) return RESULT_NO_VALUE;
    removeFound(*value);
    // One duplicate of the key is removed too, unless its value has child elements.
    if (auto *duplicate = findValue(*m_document, path); duplicate && !duplicate->FirstChildElement()) {
        removeFound(*duplicate);
    }
    return RESULT_SUCCESS;
}

const tinyxml2::XMLElement *KZRPreferences::firstEntry() const {
    const auto *dict = m_document ? rootDictOf(*m_document) : nullptr;
    return dict ? dict->FirstChildElement() : nullptr;
}
