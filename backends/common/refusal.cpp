#include "common/refusal.h"

#include <zelvane/back_end.h>
#include <zelvane/message_builders.h>

#include <cstdio>

void reportRefusal(const std::string &reason) {
    std::fprintf(stderr, "(Error) %s\n", reason.c_str());
    zvPostFrameMessage(zvBuildLogLine(ZV_LOG_ERROR, reason.c_str()));
}
