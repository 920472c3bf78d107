/* Script and log of the recording platform, for tests on either side of a shared library. Any thread may call.
   The log has one line a call, in the order of the calls: "setView(context1, 0:291) = true". Objects are named by kind
   and number from 1 (format1, context2, buffer1), views as display:window in decimal, and nothing as "null". */
#ifndef ZELVANE_RECORDING_CONTROL_H
#define ZELVANE_RECORDING_CONTROL_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define RECORDING_API __attribute__((visibility("default")))

/* Copies the log, ended by a 0 byte, and empties it. Returns its length without the 0; if the buffer is too
   small, nothing is copied and the log is kept. */
RECORDING_API size_t recordingTakeLog(char *buffer, size_t capacity);

/* Adds a line of another fake, so that one log shows the order of all calls. */
RECORDING_API void recordingNote(const char *line);

/* Empties log and script, numbers objects from 1 again, and unbinds the calling thread's context. */
RECORDING_API void recordingReset(void);

/* Makes the next call of the operation return null or false; each call of this adds one. Operations that can fail:
   createPixelFormat, derivePixelFormat, createContext, makeCurrent, setView, setPixelBuffer, createPixelBuffer. */
RECORDING_API void recordingFailNext(const char *operation);

/* Size in pixels and title in UTF-8 of a window on every display. Other windows have neither, but can be drawn
   to. */
RECORDING_API void recordingSetWindow(uint64_t window, int32_t width, int32_t height, const char *title);

/* The host's value of a format attribute, whatever the lists request. */
RECORDING_API void recordingSetFormatValue(uint32_t attribute, int32_t value);

/* Makes a foreign context current on the calling thread instead of the current one. Any name but 0. */
RECORDING_API void recordingMakeForeignCurrent(uint32_t name);

#ifdef __cplusplus
}
#endif

#endif
