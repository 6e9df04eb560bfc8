#include <array>
#include <climits>
#include <unistd.h>

#include "platform/code_page.h"
#include "platform/program.h"

namespace platform {

// The process never leaves the folder that it was started in, so this is the one at start-up too.
std::string Current_Folder() {
    std::array<char, PATH_MAX> folder{};
    if (getcwd(folder.data(), folder.size()) == nullptr) return {};
    return From_Utf8(folder.data()).value_or(std::string());
}

}  // namespace platform
