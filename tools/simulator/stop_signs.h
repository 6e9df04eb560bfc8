#pragma once

#include <optional>
#include <span>
#include <vector>

#include "platform/posix/descriptor.h"

/// What ends the program: the user's signals, and the end of another process.
namespace simulator {

class Stop_Signs {
  public:
    /// From now on SIGINT, SIGTERM and SIGHUP are such signs and do nothing else.
    explicit Stop_Signs(std::optional<int> followed_process);

    /// False if the process to be followed is not there.
    bool Are_Set() const { return are_set_; }

    /// File descriptors that can be read once the program is to end.
    std::span<const int> Ends() const { return ends_; }

    /// Waits; false if a sign comes meanwhile.
    bool Wait(int milliseconds) const;

  private:
    platform::posix::Descriptor signals_;
    platform::posix::Descriptor process_;
    std::vector<int> ends_;
    bool are_set_ = false;
};

}  // namespace simulator
