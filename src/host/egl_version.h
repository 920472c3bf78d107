// The EGL version that the library implements.
#pragma once

namespace host {

constexpr int eglMajorVersion() {
    return 1;
}
constexpr int eglMinorVersion() {
    return 5;
}

} // namespace host
