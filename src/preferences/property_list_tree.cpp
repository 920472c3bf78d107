#include "preferences/property_list_tree.h"

#include <cstring>

using tinyxml2::XMLDocument;
using tinyxml2::XMLElement;
using tinyxml2::XMLNode;

namespace {

// The levels that the parser counts in addition to those of the path: document, plist and dict, and the items of an
// array.
constexpr size_t otherLevels = 4;

bool isNamed(const XMLElement &element, PreferenceType type) {
    return strcmp(element.Name(), entryOf(type).name) == 0;
}

bool hashesLike(const XMLElement &element, PreferenceType type) {
    return fnv1Hash(element.Name()) == entryOf(type).hash;
}

// A key element without a text child has the empty text.
bool hasText(const XMLElement &key, const std::string &text) {
    const char *found = key.GetText();
    return text == (found ? found : "");
}

XMLElement *appendSkeleton(XMLDocument &document, XMLNode &parent, const char *name, std::string &error) {
    XMLElement *element = document.NewElement(name);
    if (!element) {
        error.append("ERROR: Failed to recreate <").append(name).append("> tag. Out of memory!\n");
        return nullptr;
    }
    if (!parent.InsertEndChild(element)) {
        error.append("ERROR: Failed to link <").append(name).append("> tag!\n");
        return nullptr;
    }
    return element;
}

// The contents of an array's items are not checked: a malformed dict there is valid.
bool validateArray(const XMLElement *element, std::string &error) {
    for (; element; element = element->NextSiblingElement()) {
        if (isNamed(*element, PreferenceType::key)) {
            error += "ERROR: Array elements cannot contain a <key> tag!\n";
            return false;
        }
    }
    return true;
}

// The parser limits the depth of this recursion.
bool validateDict(const XMLElement *key, std::string &error) {
    while (key) {
        if (!isNamed(*key, PreferenceType::key)) {
            error += "ERROR: Missing <key> tag\n";
            return false;
        }
        const XMLElement *value = key->NextSiblingElement();
        if (!value) {
            error += "ERROR: Key missing value!";
            return false;
        }
        if (hashesLike(*value, PreferenceType::key)) {
            error += "ERROR: Key missing value\n";
            return false;
        }
        const XMLElement *nested = value->FirstChildElement();
        if (hashesLike(*value, PreferenceType::dict) && !validateDict(nested, error)) return false;
        if (hashesLike(*value, PreferenceType::array) && !validateArray(nested, error)) return false;
        key = value->NextSiblingElement();
    }
    return true;
}

XMLElement *appendElement(XMLElement &parent, PreferenceType type) {
    return parent.InsertEndChild(parent.GetDocument()->NewElement(entryOf(type).name))->ToElement();
}

void appendText(XMLElement &parent, const char *text) {
    parent.InsertEndChild(parent.GetDocument()->NewText(text));
}

// A dict gets the empty text too; the printer then prints its first key on the dict's own line.
XMLElement *appendPair(XMLElement &dict, const std::string &key, PreferenceType type) {
    appendText(*appendElement(dict, PreferenceType::key), key.c_str());
    XMLElement *value = appendElement(dict, type);
    if (type != PreferenceType::isTrue && type != PreferenceType::isFalse) appendText(*value, "");
    return value;
}

} // namespace

bool validateDocument(XMLDocument &document, std::string &error) {
    XMLElement *root = document.FirstChildElement();
    if (!root) {
        root = appendSkeleton(document, document, "plist", error);
        if (!root) return false;
        root->SetAttribute("version", "1.0");
    }
    const XMLElement *first = root->FirstChildElement();
    if (first && hashesLike(*first, PreferenceType::dict)) return validateDict(first->FirstChildElement(), error);
    // Other children remain before the new dict, and the accessors use the first child: such a file loads, but its
    // values are not found.
    return appendSkeleton(document, *root, "dict", error) != nullptr;
}

std::vector<std::string> splitKey(std::string_view key) {
    if (key.starts_with('/')) key.remove_prefix(1);
    if (key.ends_with('/')) key.remove_suffix(1);
    std::vector<std::string> path;
    for (size_t slash; (slash = key.find('/')) != std::string_view::npos; key.remove_prefix(slash + 1)) {
        if (slash > 0) path.emplace_back(key.substr(0, slash));
    }
    path.emplace_back(key);
    return path;
}

XMLElement *rootDictOf(XMLDocument &document) {
    XMLElement *root = document.FirstChildElement();
    return root ? root->FirstChildElement() : nullptr;
}

XMLElement *findValue(XMLDocument &document, const std::vector<std::string> &path) {
    XMLElement *dict = rootDictOf(document);
    XMLElement *key = dict ? dict->FirstChildElement() : nullptr;
    size_t level = 0;
    while (key) {
        XMLElement *value = key->NextSiblingElement();
        if (!value) return nullptr;
        if (!hasText(*key, path[level])) {
            key = value->NextSiblingElement();
            continue;
        }
        if (++level == path.size()) return value;
        key = value->FirstChildElement();
    }
    return nullptr;
}

XMLElement *createValue(XMLDocument &document, const std::vector<std::string> &path, PreferenceType type) {
    XMLElement *dict = rootDictOf(document);
    if (!dict || path.size() + otherLevels >= TINYXML2_MAX_ELEMENT_DEPTH) return nullptr;
    for (size_t level = 0; level + 1 < path.size(); ++level) {
        XMLElement *next = nullptr;
        for (XMLElement *key = dict->FirstChildElement(); key && !next;) {
            XMLElement *value = key->NextSiblingElement();
            if (!value) return nullptr;
            if (hasText(*key, path[level])) next = value;
            key = value->NextSiblingElement();
        }
        dict = next ? next : appendPair(*dict, path[level], PreferenceType::dict);
    }
    return appendPair(*dict, path.back(), type);
}
