#include "platform/headless/reply.h"

#include "platform/code_page.h"

namespace platform::headless {

std::string Escaped(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        switch (c) {
            case '\r':
                escaped += "\\r";
                break;
            case '\n':
                escaped += "\\n";
                break;
            case '\t':
                escaped += "\\t";
                break;
            case '\\':
                escaped += "\\\\";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

void Add_Line(Reply& reply, std::string_view text) {
    Add_Fields(reply, {text});
}

void Add_Fields(Reply& reply, std::initializer_list<std::string_view> texts) {
    std::string line;
    for (const auto* text = texts.begin(); text != texts.end(); ++text) {
        if (text != texts.begin()) line += '\t';
        line += Escaped(To_Utf8(*text));
    }
    // What would read as the end of the answer is told apart by one more backslash.
    if (line == "ok" || line.starts_with("error ")) reply.lines += '\\';
    reply.lines += line;
    reply.lines += '\n';
}

void Fail(Reply& reply, std::string_view reason) {
    reply.failure = Escaped(reason);
}

std::string Finished(const Reply& reply) {
    return reply.failure.empty() ? reply.lines + "ok\n" : "error " + reply.failure + "\n";
}

}  // namespace platform::headless
