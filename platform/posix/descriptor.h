#pragma once

#include <unistd.h>

namespace platform::posix {

/// A file descriptor that closes itself; negative if the file could not be opened.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0) close(number_);
    }

    int Get() const { return number_; }

  private:
    int number_;
};

}  // namespace platform::posix
