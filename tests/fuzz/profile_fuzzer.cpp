// Passes texts to the profile reader, and to the check that reports how the reader interprets them.
#include <cstdint>
#include <cstdlib>

#include "profiles/embedded_profiles.h"
#include "profiles/profile_reader.h"
#include "tools/profiles/check_profile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    static const CKZRTString name("fuzzed");
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    (void)egl::profileDisplayName(text);

    egl::DeviceProfile profile;
    const bool isRead = readDeviceProfile(profile, text, name);
    for (const egl::Config &config : profile.configs) {
        // All attributes except the id come from a row or from the defaults, so the list ends and is short.
        if (config.toAttributeList().size() > 81) abort();
    }
    if (!isRead && !profile.configs.empty()) abort();

    // A text without findings must load.
    if (!checkProfile(text, "fuzzed").hasProblems() && !isRead) abort();
    return 0;
}
