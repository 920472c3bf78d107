// Prints the variables that the library reads; the test runs it with and without foreign rights.
#include <cstdio>
#include <unistd.h>

#include "egl/desktop_clients.h"
#include "foundation/dynamic_library.h"
#include "foundation/paths.h"
#include "preferences/settings.h"

int main() {
    Settings settings;
    std::string error, preferences;
    const bool isLoaded = settings.load(error);
    (void)KZRPreferencesUnix().getPreferenceDirectory(preferences, false);
    std::printf("%d back ends in %zu, profiles in '%s', preferences in %s, links in %s, %s client\n", isLoaded,
                esLibrarySearchPaths().size(), settings.getProfilesDirectory().c_str(), preferences.c_str(),
                getTemporaryDirectory().c_str(), egl::desktop_clients::isOn() ? "desktop" : "device");
    std::fflush(stdout);
    _exit(0); // the leak check has no access to such a process
}
