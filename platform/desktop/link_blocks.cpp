#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <map>
#include <string>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <utility>
#include <vector>

#include "platform/desktop/link.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/link_endpoint.h"

// A block is a shared memory object. Its maker holds a lock on it, which ends with the process: an
// object that nobody holds was left by a program that came to a bad end.
namespace platform {

namespace {

using posix::Descriptor;

constexpr mode_t Mine_Alone = 0600;

class Block {
  public:
    Block(int number, std::string own_path) : file_(number), own_path_(std::move(own_path)) {}
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;
    ~Block() {
        if (!own_path_.empty()) shm_unlink(own_path_.c_str());
    }

    int File() const { return file_.Get(); }

  private:
    Descriptor file_;
    std::string own_path_;  ///< empty if another one has made the object
};

struct View {
    std::uint8_t* start = nullptr;
    std::size_t size = 0;
};

std::map<Mapping_Handle, Block> blocks;
std::vector<View> views;
Mapping_Handle last_handle = 0;

bool Is_Mine(int file) {
    struct stat status {};
    return fstat(file, &status) == 0 && status.st_uid == geteuid();
}

bool Lock(int file) {
    return flock(file, LOCK_EX | LOCK_NB) == 0;
}

bool Remove_Leftover(const std::string& path) {
    const Descriptor file(shm_open(path.c_str(), O_RDWR, 0));
    return file.Get() >= 0 && Is_Mine(file.Get()) && Lock(file.Get()) &&
           shm_unlink(path.c_str()) == 0;
}

/// A new object; negative with `errno` on failure.
int Make(const std::string& path) {
    constexpr int Flags = O_RDWR | O_CREAT | O_EXCL;
    const int file = shm_open(path.c_str(), Flags, Mine_Alone);
    if (file >= 0 || errno != EEXIST) return file;
    if (Remove_Leftover(path)) return shm_open(path.c_str(), Flags, Mine_Alone);
    errno = EEXIST;
    return -1;
}

Mapping_Handle Keep(int file, const std::string& own_path) {
    blocks.try_emplace(++last_handle, file, own_path);
    return last_handle;
}

Mapping_Handle Fail(std::uint32_t error) {
    desktop::Set_Last_Error(error);
    return 0;
}

Mapping_Handle Open_Existing(const std::string& path) {
    const Mapping_Handle handle = Keep(shm_open(path.c_str(), O_RDWR, 0), {});
    if (!Is_Mine(blocks.at(handle).File())) {
        blocks.erase(handle);
        return Fail(desktop::Error_Access_Denied);
    }
    desktop::Set_Last_Error(Error_Already_Exists);
    return handle;
}

}  // namespace

Mapping_Handle CreateFileMappingA(std::uint32_t size, const char* name) {
    const std::string path = posix::Block_Path(name);
    if (path.empty() || size == 0) return Fail(desktop::Error_Invalid_Parameter);
    const int file = Make(path);
    if (file < 0) return errno == EEXIST ? Open_Existing(path) : Fail(desktop::Error_Access_Denied);
    const Mapping_Handle handle = Keep(file, path);
    // The memory is taken here, since later a lack of it would end the process.
    if (!Lock(file) || posix_fallocate(file, 0, size) != 0) {
        blocks.erase(handle);
        return Fail(desktop::Error_Not_Enough_Memory);
    }
    desktop::Set_Last_Error(0);
    return handle;
}

void CloseHandle(Mapping_Handle mapping) {
    blocks.erase(mapping);
}

std::uint8_t* MapViewOfFile(Mapping_Handle mapping) {
    const auto found = blocks.find(mapping);
    struct stat status {};
    if (found == blocks.end() || fstat(found->second.File(), &status) != 0) {
        desktop::Set_Last_Error(desktop::Error_Invalid_Handle);
        return nullptr;
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    void* const start =
        mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, found->second.File(), 0);
    if (start == MAP_FAILED) {
        desktop::Set_Last_Error(desktop::Error_Not_Enough_Memory);
        return nullptr;
    }
    views.push_back({static_cast<std::uint8_t*>(start), size});
    return views.back().start;
}

void UnmapViewOfFile(std::uint8_t* view) {
    const auto found = std::find_if(views.begin(), views.end(),
                                    [=](const View& each) { return each.start == view; });
    if (found == views.end()) return;
    munmap(found->start, found->size);
    views.erase(found);
}

}  // namespace platform
