// Pictures of the frames that a program shows, as drawn, for "zelvane lab". Variables request them:
//   ZELVANE_PICTURE          the file: FILE-PID.ppm; each picture replaces the previous one
//   ZELVANE_PICTURE_FRAMES   the number of the last frame to save
//   ZELVANE_PICTURE_SECONDS  or its time, in seconds from the first frame
// Earlier frames are saved too, within a tenth of the run time, since a program may end or stop drawing before the last
// frame is reached.
#pragma once

namespace egl {

class Surface;

namespace frame_pictures {

// Whether pictures are requested. The variables are read once.
[[nodiscard]] bool areWanted();

// Called before the swap of a surface that is drawn to on the calling thread. The journal records each picture, and
// marks the last one.
void take(Surface &surface);

} // namespace frame_pictures

} // namespace egl
