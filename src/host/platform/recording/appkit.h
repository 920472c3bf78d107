// AppKit and OpenGL classes of the same names, which the cocoa operations run on in tests: each notes the messages that
// it gets. Objects are named by class and number from 1; messages are one a line, shortened to their first word:
// "NSOpenGLContext1 setView NSView1".
#pragma once

#include <cstdint>
#include <string>

#include "host/platform/operations.h"

namespace recorded_appkit {

// Forgets all messages and counts objects from 1 again.
void restart();
// What was noted; cases add lines of their own.
extern std::string messages;
// The next object of this class cannot be initialised.
extern std::string failingClass;
// Of any handle of the operations list.
unsigned retainCount(const void *object);

// A null title means a window without one, and inNoWindow a view that has no window.
enum class Place { inWindow, inNoWindow };
host::platform::View makeView(double width, double height, const char *title, Place place = Place::inWindow);
// Tells the observers, as the platform does.
void setFrame(const host::platform::View &view, double width, double height);
// An object that is no view.
host::platform::View makeOther();
// Gives the context, and what is current on the thread, as addresses to compare.
const void *makeForeignCurrent();
const void *current();

} // namespace recorded_appkit
