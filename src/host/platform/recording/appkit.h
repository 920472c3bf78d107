// Fake AppKit and OpenGL classes of the same names, for the cocoa operations in tests: each records the messages that
// it receives. Objects are named by class and number from 1; messages are one a line, shortened to their first word:
// "NSOpenGLContext1 setView NSView1".
#pragma once

#include <cstdint>
#include <string>

#include "host/platform/operations.h"

namespace recorded_appkit {

// Forgets all messages and counts objects from 1 again.
void restart();
// The recorded messages; cases add lines of their own.
extern std::string messages;
// Makes the initialisation of the next object of this class fail.
extern std::string failingClass;
// For any handle of the operations list.
unsigned retainCount(const void *object);

// A null title means a window without one, and inNoWindow a view that has no window.
enum class Place { inWindow, inNoWindow };
host::platform::View makeView(double width, double height, const char *title, Place place = Place::inWindow);
// Notifies the observers, as the platform does.
void setFrame(const host::platform::View &view, double width, double height);
// An object that is not a view.
host::platform::View makeOther();
// Returns the context, and the thread's current one, as addresses to compare.
const void *makeForeignCurrent();
const void *current();

} // namespace recorded_appkit
