#include "tools/simulator/shared_block.h"

#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>

#include "platform/posix/link_endpoint.h"

namespace simulator {

namespace {

constexpr std::string_view Name_Start = "FSASMLIB:IPC:";

/// Other memory of this user is none of the simulator's, whatever a message says.
int Open(const std::string& name) {
    const std::string path = platform::posix::Block_Path(name);
    if (path.empty() || !name.starts_with(Name_Start)) return -1;
    return shm_open(path.c_str(), O_RDWR, 0);
}

/// Up to the mark behind the last request; writing all of the block costs as much as the rest of an
/// exchange.
std::size_t Used_Bytes(const Shared_Block::Bytes& bytes) {
    constexpr std::size_t Read_Head = 16, Write_Head = 12;
    for (std::size_t at = 0; at + Read_Head <= bytes.size();) {
        std::array<std::uint32_t, 3> head;  // kind, offset, count of bytes
        std::memcpy(head.data(), &bytes[at], sizeof head);
        if (head[0] == 0) return at + sizeof head[0];
        at += (head[0] == 1 ? Read_Head : Write_Head) + std::size_t{head[2]};
    }
    return bytes.size();
}

}  // namespace

Shared_Block::Shared_Block(const std::string& name) : file_(Open(name)) {}

bool Shared_Block::Is_Whole() const {
    struct stat status {};
    return fstat(file_.Get(), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_uid == geteuid() && status.st_size == static_cast<off_t>(Block_Size);
}

bool Shared_Block::Read(Bytes& bytes) const {
    return Is_Whole() &&
           pread(file_.Get(), bytes.data(), Block_Size, 0) == static_cast<ssize_t>(Block_Size);
}

bool Shared_Block::Write(const Bytes& bytes) const {
    const std::size_t used = Used_Bytes(bytes);
    return pwrite(file_.Get(), bytes.data(), used, 0) == static_cast<ssize_t>(used);
}

}  // namespace simulator
