#include "announcement/extensions.h"

#include "common/desktop_clients.h"

#include <algorithm>
#include <iterator>

namespace {

struct Extension {
    std::string_view name;
    int version;
    std::string_view hostExtensions;
    bool isForAll;
};

constexpr Extension extensions[] = {
#define EXTENSION(name, version, hostExtensions) {name, version, hostExtensions, true},
#define DESKTOP_EXTENSION(name, version, hostExtensions) {name, version, hostExtensions, false},
#include "announcement/extensions.def"
#undef DESKTOP_EXTENSION
#undef EXTENSION
};

bool isCarried(const HostFeatures &host, const Extension &extension) {
    if (!extension.isForAll && !servesDesktopClients()) return false;
    const bool isOurs = extension.version == 0 && extension.hostExtensions.empty();
    return isOurs || host.carries(extension.version, extension.hostExtensions);
}

} // namespace

bool carriesExtension(const HostFeatures &host, std::string_view name) {
    const auto row = std::ranges::find(extensions, name, &Extension::name);
    return row != std::end(extensions) && isCarried(host, *row);
}

std::string announcedExtensions(const HostFeatures &host, const std::optional<EsBlock> &device) {
    std::string text;
    const auto add = [&](std::string_view name) { (text += text.empty() ? "" : " ") += name; };
    if (device && device->listsExtensions()) {
        for (const std::string &name : device->extensionNames)
            if (carriesExtension(host, name)) add(name);
    } else {
        for (const Extension &extension : extensions)
            if (isCarried(host, extension)) add(extension.name);
    }
    return text;
}
