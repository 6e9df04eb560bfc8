#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/posix/descriptor.h"

/// The simulator's view of a client's block.
namespace simulator {

inline constexpr std::size_t Block_Size = 0x8000;

/// A block opened by its name. It is read and written as a file and not mapped: a client that cuts
/// its block short, or changes it while it is being worked on, does no harm.
class Shared_Block {
  public:
    using Bytes = std::array<std::uint8_t, Block_Size>;

    /// Opens a block of this link that belongs to this user; any other counts as not there.
    explicit Shared_Block(const std::string& name);

    /// False if the block is not there or not of its full size.
    bool Read(Bytes& bytes) const;

    /// Gives the client its requests back, as far as they reach. False on failure.
    bool Write(const Bytes& bytes) const;

  private:
    bool Is_Whole() const;

    platform::posix::Descriptor file_;
};

}  // namespace simulator
