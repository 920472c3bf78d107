// Passes mutated texts to the preferences store and to the profile reader. Usage: text_fuzzer [SECONDS [SEED]]
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "endurance/random.h"
#include "preferences/property_list_store.h"
#include "profiles/embedded_profiles.h"
#include "profiles/profile_reader.h"

namespace {

const std::string propertyLists[] = {
    "<plist version=\"1.0\"><dict><key>a</key><string>text</string><key>b</key><integer>-7</integer></dict></plist>",
    "<plist version=\"1.0\"><dict><key>a</key><dict><key>b</key><true/><key>c</key><data>QUJDRA==</data></dict>"
    "<key>d</key><array><string>x</string><integer>1</integer></array><key>e</key><real>1.5</real></dict></plist>",
};

const char *const keys[] = {"a", "b", "a/b", "a/c", "d", "e", "", "/", "a//b", "no/such/key"};

void useStore(Random &random) {
    KZRPreferences store("Zelvane");
    std::string error;
    if (!store.load(error, random.once(2))) return;
    for (uint32_t use = random.below(12); use > 0; --use) {
        const std::string key = random.of(keys);
        std::string text;
        int32_t number = 0;
        bool isSet = false;
        std::unique_ptr<uint8_t[]> bytes;
        uint32_t size = 0;
        switch (random.below(8)) {
        case 0:
            store.getString(key, &text, "fallback");
            break;
        case 1:
            store.getInt(key, &number, 4);
            break;
        case 2:
            store.getBool(key, &isSet);
            break;
        case 3:
            store.getData(key, &bytes, &size);
            break;
        case 4:
            store.setString(key, random.mutated("<&>\"' text"));
            break;
        case 5:
            store.remove(key);
            break;
        case 6:
            static_cast<void>(store.contains(key));
            break;
        default:
            store.save(random.once(2));
        }
    }
}

} // namespace

int main(int argc, char **argv) {
    const Run run(argc, argv);
    Random random(run.seed);
    std::string directory = "/tmp/zelvane-fuzz.XXXXXX";
    if (!mkdtemp(directory.data())) return 1;
    setenv("ZELVANE_PREFERENCES_DIRECTORY", directory.c_str(), 1);
    uint64_t texts = 0;
    for (; !run.isOver(); ++texts) {
        std::ofstream(directory + "/com.tarnlight.Zelvane.plist", std::ios::binary)
            << random.mutated(random.of(propertyLists));
        useStore(random);
        egl::DeviceProfile profile;
        const std::string text = random.mutated(std::string(random.of(egl::embeddedProfiles)));
        static_cast<void>(egl::readDeviceProfile(profile, text, CKZRTString("fuzzed")));
    }
    std::filesystem::remove_all(directory);
    std::printf("%s: %llu texts, nothing found\n", argv[0], static_cast<unsigned long long>(texts));
}
