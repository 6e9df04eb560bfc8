#include "scenery/section_heads.h"

#include <cstdint>
#include <unordered_map>

#include "scenery/blanks.h"

namespace skerrand {

namespace {

/// Hash of a text that grows to the left. Texts of the same hash are still compared.
class Leftward_Hash {
  public:
    void Clear() { hash_ = 0; }

    /// Takes in the character to the left of those taken so far.
    void Add(char c) {
        constexpr std::uint64_t Odd_Factor = 0x9E3779B97F4A7C15;  // 2^64 over the golden ratio
        hash_ = (hash_ ^ static_cast<unsigned char>(c)) * Odd_Factor;
        hash_ ^= hash_ >> 29;
    }

    std::uint64_t Value() const { return hash_; }

  private:
    std::uint64_t hash_ = 0;
};

using Place_Of_Head = std::unordered_map<std::string_view, std::size_t>;
using Heads_By_Hash = std::unordered_multimap<std::uint64_t, Place_Of_Head::pointer>;

/// The heads by the hash from their "[" to their "]", without the blanks round it.
Heads_By_Hash Index_Heads(Place_Of_Head& places) {
    Heads_By_Hash index;
    index.reserve(places.size());
    for (Place_Of_Head::value_type& entry : places) {
        const std::string_view core = Trim_Blanks(entry.first);
        Leftward_Hash hash;
        for (auto c = core.rbegin(); c != core.rend(); ++c)
            hash.Add(*c);
        index.emplace(hash.Value(), &entry);
    }
    return index;
}

}  // namespace

bool Is_Section_Head(std::string_view line) {
    const std::string_view core = Trim_Blanks(line);
    return !core.empty() && core.front() == '[' && core.find(']') == core.size() - 1;
}

std::vector<std::size_t> First_Places(std::string_view text,
                                      const std::vector<std::string_view>& heads) {
    Place_Of_Head places;
    for (const std::string_view head : heads)
        places.emplace(head, 0);
    const Heads_By_Hash index = Index_Heads(places);
    // A head holds one "]", so wherever it stands it runs from a "[" to the next "]". Going
    // backwards, the hash of what lies between them is always at hand, and the occurrence noted
    // last is the first.
    Leftward_Hash hash;
    for (std::size_t i = text.size(); i-- > 0;) {
        if (text[i] == ']') hash.Clear();
        hash.Add(text[i]);
        if (text[i] != '[') continue;
        const auto [begin, end] = index.equal_range(hash.Value());
        for (auto found = begin; found != end; ++found) {
            auto& [head, place] = *found->second;
            const std::size_t blanks_ahead = head.find('[');
            if (blanks_ahead > i) continue;
            if (text.compare(i - blanks_ahead, head.size(), head) == 0) place = i - blanks_ahead;
        }
    }
    std::vector<std::size_t> result;
    result.reserve(heads.size());
    for (const std::string_view head : heads)
        result.push_back(places.at(head));
    return result;
}

}  // namespace skerrand
