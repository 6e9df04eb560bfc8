#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/headless/form.h"
#include "platform/headless/program.h"

namespace platform {

namespace {

constexpr std::string_view separators = "/\\";

/// A name and what parts it from the one ahead of it.
struct Step {
    std::string_view parting;
    std::string_view name;
};

bool Starts_With_Drive(std::string_view path) {
    if (path.size() < 2 || path[1] != ':') return false;
    const char letter = path[0];
    return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
}

bool Starts_With_Separator(std::string_view path) {
    return !path.empty() && separators.find(path.front()) != std::string_view::npos;
}

std::string_view Take(std::string_view& path, std::size_t count) {
    const std::string_view taken = path.substr(0, count);
    path.remove_prefix(taken.size());
    return taken;
}

Step Take_Step(std::string_view& path) {
    const std::string_view parting = Take(path, path.find_first_not_of(separators));
    return {parting, Take(path, path.find_first_of(separators))};
}

/// The names that are left when "." and ".." have been followed.
std::vector<Step> Resolved_Steps(std::string_view path) {
    std::vector<Step> steps;
    while (!path.empty()) {
        const Step step = Take_Step(path);
        if (step.name == "..") {
            if (!steps.empty()) steps.pop_back();
        } else if (!step.name.empty() && step.name != ".") {
            steps.push_back(step);
        }
    }
    return steps;
}

}  // namespace

std::string headless::Whole_Path(std::string_view path) {
    std::string from_root(path);
    const bool has_drive = Starts_With_Drive(path);
    if (!has_drive && !Starts_With_Separator(path)) {
        from_root = Current_Folder();
        if (from_root.empty()) return {};
        if (separators.find(from_root.back()) == std::string_view::npos) from_root += '/';
        from_root += path;
    }
    std::string_view rest = from_root;
    std::string whole(Take(rest, has_drive ? 2 : 0));
    const std::string_view root = Take(rest, rest.find_first_not_of(separators));
    const auto steps = Resolved_Steps(rest);
    if (steps.empty()) return whole + (root.empty() ? '\\' : root.front());
    whole += root;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (i > 0) whole += steps[i].parting;
        whole += steps[i].name;
    }
    return whole;
}

void headless::Move_Folder_List(Control_State& list, const std::string& whole_path) {
    list.folder = whole_path;
    list.entries = Subfolders(whole_path);
}

std::vector<std::string> headless::Subfolders(std::string_view path) {
    std::vector<std::string> names;
    for (const std::string& name : platform::Subfolders(path))
        names.push_back(From_Utf8_Lossy(name));
    return names;
}

bool headless::Control_State::Go_To(std::string_view path) {
    const bool is_drive = path.size() == 2 && Starts_With_Drive(path);
    if (!is_drive && !Folder_Exists(path)) return false;
    const std::string whole = Whole_Path(path);
    if (whole.empty() || whole == folder) return false;
    Move_Folder_List(*this, whole);
    return true;
}

}  // namespace platform
