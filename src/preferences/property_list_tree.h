// Walks and repairs the tree of a property-list document: plist, one dict in it, and in each dict alternating keys and
// values. Works on the parsed document directly and stores no pointer.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tinyxml2.h>

#include "preferences/preference_types.h"

// Creates missing plist and dict elements, then checks that keys and values alternate. False with a text appended to
// error, and with the tree repaired so far.
[[nodiscard]] bool validateDocument(tinyxml2::XMLDocument &document, std::string &error);

// "/a//b/" and "a/b" are the same path. The part after the last slash is kept even when it is empty.
[[nodiscard]] std::vector<std::string> splitKey(std::string_view key);

// The first child element of the root, which accessors use as the root dict whatever its name. Null without one.
[[nodiscard]] tinyxml2::XMLElement *rootDictOf(tinyxml2::XMLDocument &document);

// The value at the path, by position in pairs and never by element name. Of two equal keys in a level the first is
// used, even if it does not lead further. Null when there is none.
[[nodiscard]] tinyxml2::XMLElement *findValue(tinyxml2::XMLDocument &document, const std::vector<std::string> &path);

// Appends a value of the type at the path, and the dicts above it. Null without a root dict, in a level with a key
// that lacks its value, and for a path so long that the parser would reject the file.
[[nodiscard]] tinyxml2::XMLElement *createValue(tinyxml2::XMLDocument &document, const std::vector<std::string> &path,
                                                PreferenceType type);
