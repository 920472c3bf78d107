#include "common/refusal.h"

#include <zelvane/back_end.h>

#include <cstdio>
#include <memory>

void reportRefusal(const std::string &reason) {
    std::fprintf(stderr, "(Error) %s\n", reason.c_str());
    const auto message = std::make_unique<zvMessage>();
    message->header.type = ZV_LOG_ERROR;
    std::snprintf(message->text.text, sizeof message->text.text, "%s", reason.c_str());
    zvPostFrameMessage(*message);
}
