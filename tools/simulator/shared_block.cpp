#include "tools/simulator/shared_block.h"

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
    return pwrite(file_.Get(), bytes.data(), Block_Size, 0) == static_cast<ssize_t>(Block_Size);
}

}  // namespace simulator
