#include "tests/scenarios/world_steps.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

using Words = std::vector<std::string>;

std::string Joined(const Words& words, std::size_t first) {
    std::string text;
    for (std::size_t i = first; i < words.size(); ++i)
        text += (i > first ? " " : "") + words[i];
    return text;
}

std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// False if what was looked for is not so. Throws what went wrong.
bool Run(const Words& words) {
    const std::string& step = words[0];
    const std::string& path = words.at(1);
    if (step == "exists") return fs::exists(path);
    if (step == "missing") return !fs::exists(path);
    if (step == "same") return Content(path) == Content(words.at(2));
    if (step == "remove") return fs::remove_all(path) > 0;
    if (step == "folder") {
        fs::create_directories(path);
    } else if (step == "copy") {
        fs::copy(path, words.at(2),
                 fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    } else if (step == "ln") {
        fs::create_symlink(words.at(2), words.at(3));
    } else if (step == "truncate") {
        fs::resize_file(path, std::stoull(words.at(2)));
    } else if (step == "write") {
        std::ofstream(path, std::ios::binary) << Joined(words, 2);
    } else {
        throw std::invalid_argument("no such step");
    }
    return true;
}

}  // namespace

std::string Do_File_Step(const Words& words, const fs::path& make_world) {
    if (words[0] == "make_world") {
        const std::string command = "'" + make_world.string() + "' " + Joined(words, 1);
        return std::system(command.c_str()) == 0 ? "" : "the tool failed";
    }
    try {
        return Run(words) ? "" : "it is not so";
    } catch (const std::exception& problem) {
        return problem.what();
    }
}
