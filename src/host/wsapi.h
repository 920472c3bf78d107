// The window system interface: a handle without data. The process counts as loaded once it holds one, and whoever
// probes the host keeps a reference while it does.
#pragma once

namespace glove {

class WSAPI {};

} // namespace glove
