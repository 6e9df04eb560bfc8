#include "platform/posix/link_endpoint.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform::posix {

namespace {

bool Is_Folder(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string Folder_Path() {
    // A session that has ended may have left the variable without its folder.
    const char* const runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime != nullptr && *runtime == '/' && Is_Folder(runtime)) {
        return std::string(runtime) + "/skerrand";
    }
    return "/tmp/skerrand-" + std::to_string(geteuid());
}

/// Empty, or why other users could stand between the two ends.
std::string Fault_Of(const std::string& folder) {
    struct stat status {};
    if (lstat(folder.c_str(), &status) != 0) return folder + ": " + std::strerror(errno);
    if (!S_ISDIR(status.st_mode)) return folder + " is no folder";
    if (status.st_uid != geteuid()) return folder + " belongs to another user";
    if ((status.st_mode & 077) != 0) return folder + " is open to other users";
    return {};
}

bool Is_Plain(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

}  // namespace

std::uint32_t Message_Number(std::string_view name) {
    if (name.empty()) return 0;
    std::uint32_t hash = 2166136261;  // FNV-1a
    for (const char c : name)
        hash = (hash ^ static_cast<std::uint8_t>(c)) * 16777619;
    return 0xC000 + hash % 0x4000;
}

std::string Link_Folder(std::string& fault) {
    const std::string folder = Folder_Path();
    mkdir(folder.c_str(), 0700);  // what stands there is judged below, whoever made it
    fault = Fault_Of(folder);
    return fault.empty() ? folder : std::string();
}

bool Link_Address(std::string_view window_class, sockaddr_un& address, std::string& fault) {
    const std::string folder = Link_Folder(fault);
    if (folder.empty()) return false;
    const std::string path = folder + "/" + std::string(window_class);
    if (window_class.empty() || !std::all_of(window_class.begin(), window_class.end(), Is_Plain)) {
        fault = "no window can be of that class";
    } else if (path.size() >= sizeof address.sun_path) {
        fault = path + " is too long for a socket";
    }
    if (!fault.empty()) return false;
    address = {};
    address.sun_family = AF_UNIX;
    std::copy(path.begin(), path.end(), address.sun_path);
    return true;
}

bool Peer_Is_This_User(int connection) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == geteuid();
}

std::string Block_Path(std::string_view name) {
    const bool usable = !name.empty() && name.size() < NAME_MAX && name.front() != '.' &&
                        name.find('/') == name.npos && name.find('\0') == name.npos;
    return usable ? "/" + std::string(name) : std::string();
}

}  // namespace platform::posix
