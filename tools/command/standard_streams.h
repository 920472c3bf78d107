// The standard streams of the command.
#pragma once

// The exit status when the output cannot be written.
inline constexpr int outputFailure = 3;

// Puts something in the place of standard streams that are closed, which cannot be used in the way of the stream: the
// files and sockets of a verb get other numbers, and what is written fails.
void occupyStandardStreams();

// Writes what is left of the output. Gives the status, or outputFailure with a message when all went well but the
// output. A reader that has gone is no failure.
[[nodiscard]] int finishOutput(int status);
