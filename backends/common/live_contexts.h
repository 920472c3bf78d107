// Which of the back-end contexts are this library's own: the application may have one of another back end current.
#pragma once

// Notes that a back-end context begins or ends to live. Any thread.
void contextBegins(const void *esContext);
void contextEnds(const void *esContext);

// The calling thread's current back-end context if it is one of this library's, otherwise null. Takes no lock while
// neither the current context nor the set of live ones changes.
[[nodiscard]] void *currentLiveContext();

// Whether that is one of this library's own. Any thread.
[[nodiscard]] bool isLiveContext(const void *esContext);
