// For cases that require an X server in binaries that run without one.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>

#define SKIP_WITHOUT_DISPLAY()                                                                                         \
    if (const char *display = getenv("DISPLAY"); !display || !*display)                                                \
    GTEST_SKIP() << "there is no X server: DISPLAY is not set"
