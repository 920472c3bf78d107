// The window system interface: a handle without data. The process counts as loaded once it holds one. Code that probes
// the host keeps a reference meanwhile.
#pragma once

namespace glove {

class WSAPI {};

} // namespace glove
