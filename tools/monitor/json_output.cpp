// One object a record. Texts of applications are cut anywhere, so that what is no UTF-8 becomes the replacement
// character; everything else is escaped as JSON asks.
#include <cstdio>

#include "tools/monitor/output.h"
#include "tools/monitor/record_fields.h"

using ui::messages::Message;

namespace {

// Length of the character that starts here, or 0 when it is none.
size_t characterLength(std::string_view text) {
    const auto byte = [&](size_t index) { return static_cast<unsigned char>(text[index]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) return 1;
    const size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
    for (size_t index = 1; index < length; ++index) {
        if ((byte(index) & 0xC0) != 0x80) return 0;
    }
    // Longer forms than needed, surrogates and what lies beyond the last character.
    const bool isOutside = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xED && byte(1) > 0x9F) ||
                           (lead == 0xF0 && byte(1) < 0x90) || (lead == 0xF4 && byte(1) > 0x8F);
    return isOutside ? 0 : length;
}

std::string quoted(std::string_view text) {
    std::string result = "\"";
    while (!text.empty()) {
        const size_t length = characterLength(text);
        const auto character = static_cast<unsigned char>(text[0]);
        if (length == 0) {
            result += "\\ufffd";
        } else if (character < 0x20 || character == 0x7F) {
            char escape[8];
            snprintf(escape, sizeof escape, "\\u%04x", character);
            result += escape;
        } else {
            if (character == '"' || character == '\\') result += '\\';
            result += text.substr(0, length);
        }
        text.remove_prefix(length ? length : 1);
    }
    return result + '"';
}

std::string listText(const std::vector<uint32_t> &values) {
    std::string text = "[";
    for (const uint32_t value : values)
        text += (text.size() > 1 ? "," : "") + std::to_string(value);
    return text + "]";
}

std::string valueText(const Message &message, const Field &field) {
    switch (field.kind) {
    case FieldKind::Unsigned:
    case FieldKind::Unsigned64:
        return std::to_string(numberAt(message, field));
    case FieldKind::Signed:
        return std::to_string(signedAt(message, field));
    case FieldKind::Flag:
        return numberAt(message, field) ? "true" : "false";
    case FieldKind::Text:
        return quoted(textAt(message, field));
    case FieldKind::List:
        return listText(listAt(message, field));
    }
    return "null";
}

class JsonOutput final : public MonitorOutput {
public:
    void listening(const std::string &, bool) override {}

    void record(const MonitoredApplication &application, const Message &message) override {
        const RecordKind *kind = recordKind(message.header.type);
        std::string line = head(application) + (kind ? kind->name : "unknown") + '"';
        if (hasFrame(message)) line += ",\"frame\":" + std::to_string(message.header.frameStamp);
        if (!kind) line += ",\"number\":" + std::to_string(message.header.type);
        for (const Field &field : kind ? kind->fields : std::vector<Field>{})
            line += std::string(",\"") + field.name + "\":" + valueText(message, field);
        puts((line + '}').c_str());
    }

    // The one line that is no record: the connection has ended.
    void ended(const MonitoredApplication &application) override { puts((head(application) + "ended\"}").c_str()); }

    // Standard output is for the objects alone.
    void notice(const std::string &text) override { fprintf(stderr, "%s\n", text.c_str()); }

private:
    static std::string head(const MonitoredApplication &application) {
        return "{\"pid\":" + std::to_string(application.processNumber()) +
               ",\"command\":" + quoted(application.commandName()) + ",\"type\":\"";
    }
};

} // namespace

std::unique_ptr<MonitorOutput> makeJsonOutput() {
    return std::make_unique<JsonOutput>();
}
