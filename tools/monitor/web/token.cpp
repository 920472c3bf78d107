#include "tools/monitor/web/token.h"

#include <sys/random.h>

#include "tools/command/failure.h"

std::string makeToken() {
    unsigned char bytes[16];
    if (getrandom(bytes, sizeof bytes, 0) != sizeof bytes) failCommand("the system has no random numbers");
    std::string token;
    for (const unsigned char byte : bytes) {
        token += "0123456789abcdef"[byte >> 4];
        token += "0123456789abcdef"[byte & 15];
    }
    return token;
}

bool isSameSecret(std::string_view secret, std::string_view text) {
    if (secret.size() != text.size()) return false;
    volatile unsigned char difference = 0;
    for (size_t index = 0; index < secret.size(); ++index)
        difference = difference | static_cast<unsigned char>(secret[index] ^ text[index]);
    return difference == 0;
}
