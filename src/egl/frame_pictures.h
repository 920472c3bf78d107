// Pictures of the frames that a program shows, as they were drawn: for "zelvane lab", which asks for them by variables.
//   ZELVANE_PICTURE          where they go: FILE-PID.ppm, the newest one in the place of those before
//   ZELVANE_PICTURE_FRAMES   the number of the last one
//   ZELVANE_PICTURE_SECONDS  or its age, from the first frame on
// Until the last one others are taken, as many as a tenth of the time is enough for, since a program may end or come to
// rest on its own.
#pragma once

namespace egl {

class Surface;

namespace frame_pictures {

// Whether any are wanted. Looked at once.
[[nodiscard]] bool areWanted();

// Before the swap of a surface that is drawn to on the calling thread. The journal tells of each, and of the last one
// that it is the last.
void take(Surface &surface);

} // namespace frame_pictures

} // namespace egl
