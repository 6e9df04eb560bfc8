#include "keys/key_names.h"

#include <algorithm>
#include <iterator>

#include "platform/keys.h"

namespace skerrand {

namespace {

struct Named_Key {
    std::int32_t code;
    const char* name;
};

/// Ascending by code. The digits of the keypad and the function keys are named by number.
constexpr Named_Key named_keys[] = {
    {1, "[LBUTTON]"},       {2, "[RIGHT BUTTON]"},   {3, "[CANCEL]"},
    {4, "[MBUTTON]"},       {8, "[BACKSPACE]"},      {9, "[TAB]"},
    {12, "[CLEAR]"},        {13, "[RETURN]"},        {16, "[SHIFT]"},
    {17, "[CONTROL]"},      {18, "[ALT]"},           {19, "[PAUSE]"},
    {20, "[CAPS LOCK]"},    {27, "[ESCAPE]"},        {32, "[SPACE]"},
    {33, "[PG UP]"},        {34, "[PG DOWN]"},       {35, "[END]"},
    {36, "[HOME]"},         {37, "[LEFT]"},          {38, "[UP]"},
    {39, "[RIGHT]"},        {40, "[DOWN]"},          {41, "[SELECT]"},
    {42, "[PRINT]"},        {43, "[EXECUTE]"},       {44, "[PRINT SCREEN]"},
    {45, "[INSERT]"},       {46, "[DELETE]"},        {47, "[HELP]"},
    {106, "[MULTIPLY]"},    {107, "[PLUS]"},         {108, "[SEPARATOR]"},
    {109, "[SUBSTRACT]"},   {110, "[DECIMAL]"},      {111, "[DIVIDE]"},
    {144, "[VERR NUM]"},    {145, "[SCROLL LOCK]"},  {160, "[LEFT SHIFT]"},
    {161, "[RIGHT SHIFT]"}, {162, "[LEFT CONTROL]"}, {163, "[RIGHT CONTROL]"},
    {164, "[LEFT ALT]"},    {165, "[RIGHT ALT]"},    {229, "[PROCESS KEY]"},
    {246, "[ATTN]"},        {247, "[CRSEL]"},        {248, "[EXSEL]"},
    {249, "[EREOF]"},       {250, "[PLAY]"},         {251, "[ZOOM]"},
    {252, "[NONAME]"},      {253, "[PA1]"},          {254, "[OEM CLEAR]"},
};

constexpr std::int32_t Numpad_0 = 96;
constexpr std::int32_t Numpad_9 = 105;
constexpr std::int32_t F1 = 112;
constexpr std::int32_t F24 = 135;

std::string Bracketed(const char* name, std::int32_t number) {
    return "[" + std::string(name) + std::to_string(number) + "]";
}

}  // namespace

std::string Key_Name(std::int32_t code) {
    if (code < platform::First_Key_Code || code > platform::Last_Key_Code)
        return Bracketed("", code);
    if (code >= Numpad_0 && code <= Numpad_9) return Bracketed("NUMPAD ", code - Numpad_0);
    if (code >= F1 && code <= F24) return Bracketed("F", code - F1 + 1);
    const auto* found = std::lower_bound(
        std::begin(named_keys), std::end(named_keys), code,
        [](const Named_Key& key, std::int32_t wanted) { return key.code < wanted; });
    if (found != std::end(named_keys) && found->code == code) return found->name;
    return std::string(1, static_cast<char>(code));
}

}  // namespace skerrand
