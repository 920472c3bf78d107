// The standard streams of the command.
#pragma once

// The exit status when the output cannot be written.
inline constexpr int outputFailure = 3;

// Opens a placeholder for each closed standard stream that fails in its direction: the files and sockets of a verb
// then get other numbers, and writes fail.
void occupyStandardStreams();

// Flushes the output. Returns the status, or outputFailure with a message when only the output has failed. A reader
// that has closed its end is no failure.
[[nodiscard]] int finishOutput(int status);
