#include "tools/invented_names.h"

#include <array>

namespace world {

namespace {

constexpr std::array<const char*, 24> Syllables{
    "ba",  "cor", "den", "el",  "far", "gil", "ha",  "ing", "jor", "ka",  "lin", "mar",
    "nor", "or",  "pel", "qua", "rin", "sal", "tam", "ul",  "ver", "wes", "yor", "zan"};

constexpr std::array<const char*, 8> Endings{"",           "",       "",          " Intl",
                                             " Municipal", " Field", " Regional", " Airpark"};

constexpr std::size_t Longest_Name = 30;

template <std::size_t Size>
const char* Any_Of(Random& random, const std::array<const char*, Size>& texts) {
    return texts[random.engine() % Size];
}

std::string Invent_Word(Random& random) {
    std::string word;
    for (int left = Between(random, 2, 4); left > 0; --left)
        word += Any_Of(random, Syllables);
    word[0] = static_cast<char>(word[0] - 'a' + 'A');
    return word;
}

}  // namespace

std::string Nth_Ident(int index) {
    constexpr int All = 26 * 26 * 26 * 26;
    // A factor without a divisor in common with their number visits each of them once.
    auto code = static_cast<int>(static_cast<std::int64_t>(index) * 123457 % All);
    std::string ident(4, 'A');
    for (char& letter : ident) {
        letter = static_cast<char>('A' + code % 26);
        code /= 26;
    }
    return ident;
}

std::string Invent_Name(Random& random) {
    std::string name = Invent_Word(random);
    if (name.size() < 4 || Chance(random, 0.3)) name += ' ' + Invent_Word(random);
    const std::string ending = Any_Of(random, Endings);
    return name.size() + ending.size() <= Longest_Name ? name + ending : name;
}

std::string Invent_Letters(Random& random, int count) {
    std::string letters;
    for (; count > 0; --count)
        letters += static_cast<char>(Between(random, 'A', 'Z'));
    return letters;
}

}  // namespace world
