#include "tests/scenarios/world_steps.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/scenarios/child.h"

namespace fs = std::filesystem;

namespace {

using Words = std::vector<std::string>;

std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Copy(const Words& words) {
    fs::copy(words[1], words[2],
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    return "";
}

std::string Remove(const Words& words) {
    return fs::remove_all(words[1]) > 0 ? "" : words[1] + " does not exist";
}

std::string Folder(const Words& words) {
    fs::create_directories(words[1]);
    return "";
}

std::string Write(const Words& words) {
    std::ofstream file(words[1], std::ios::binary);
    for (std::size_t i = 2; i < words.size(); ++i)
        file << (i > 2 ? " " : "") << words[i];
    return file.flush() ? "" : words[1] + " cannot be written";
}

std::string Truncate(const Words& words) {
    fs::resize_file(words[1], std::stoull(words[2]));
    return "";
}

std::string Exists(const Words& words) {
    return fs::exists(words[1]) ? "" : words[1] + " does not exist";
}

std::string Missing(const Words& words) {
    return fs::exists(words[1]) ? words[1] + " exists" : "";
}

std::string Same(const Words& words) {
    return Content(words[1]) == Content(words[2]) ? "" : "the files differ";
}

std::string Size(const Words& words) {
    const auto size = std::to_string(fs::file_size(words[1]));
    return size == words[2] ? "" : words[1] + " has " + size + " bytes";
}

struct Step {
    const char* name;
    std::size_t least_words;
    std::string (*run)(const Words& words);
};

constexpr Step steps[] = {{"copy", 3, Copy},       {"remove", 2, Remove},     {"folder", 2, Folder},
                          {"write", 3, Write},     {"truncate", 3, Truncate}, {"exists", 2, Exists},
                          {"missing", 2, Missing}, {"same", 3, Same},         {"size", 3, Size}};

std::string Run_Tool(Words words, const std::string& tool) {
    words[0] = tool;
    Child child = Start_Child(words);
    return Finish(child) == 0 ? "" : "the tool failed";
}

}  // namespace

std::string Do_Step(const Words& words, const std::string& make_world) {
    if (words[0] == "make_world") return Run_Tool(words, make_world);
    const auto* step = std::find_if(std::begin(steps), std::end(steps),
                                    [&words](const Step& each) { return each.name == words[0]; });
    if (step == std::end(steps)) return "no such step";
    if (words.size() < step->least_words) return "too few words";
    try {
        return step->run(words);
    } catch (const std::exception& problem) {
        return problem.what();
    }
}
