#include "platform/windows/text.h"

#include <array>

#include "platform/code_page.h"
#include "platform/windows/native.h"

namespace platform::windows {

namespace {

/// The characters of the code page, all of which take one unit.
std::array<wchar_t, 256> Characters() {
    std::array<wchar_t, 256> characters{};
    for (int code = 0; code < 256; ++code) {
        const char byte = static_cast<char>(code);
        const std::string utf8 = To_Utf8(std::string_view(&byte, 1));
        MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()),
                            &characters[static_cast<std::size_t>(code)], 1);
    }
    return characters;
}

}  // namespace

std::string Utf8_Of(std::wstring_view wide) {
    const int length = static_cast<int>(wide.size());
    const int size =
        WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, utf8.data(), size, nullptr, nullptr);
    return utf8;
}

std::wstring To_Wide(std::string_view text) {
    static const std::array<wchar_t, 256> characters = Characters();
    std::wstring wide;
    wide.reserve(text.size());
    for (const char byte : text)
        wide.push_back(characters[static_cast<unsigned char>(byte)]);
    return wide;
}

std::optional<std::string> From_Wide(std::wstring_view wide) {
    return From_Utf8(Utf8_Of(wide));
}

std::string From_Wide_Lossy(std::wstring_view wide) {
    return From_Utf8_Lossy(Utf8_Of(wide));
}

}  // namespace platform::windows
