#include "tools/command/text_file.h"

#include <cerrno>
#include <cstring>

#include "foundation/paths.h"
#include "tools/command/failure.h"

std::string readTextFile(const std::string &path) {
    FILE *file = openForReading(path);
    if (!file) failCommand("\"" + path + "\" cannot be read: " + strerror(errno));
    std::string text;
    char bytes[4096];
    while (const size_t count = fread(bytes, 1, sizeof bytes, file))
        text.append(bytes, count);
    fclose(file);
    return text;
}
