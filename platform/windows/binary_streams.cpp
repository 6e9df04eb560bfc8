#include <cstdio>
#include <fcntl.h>
#include <io.h>

namespace {

// Lines end in a line feed alone, as everywhere. Set ahead of main, for programs that are the same
// on all systems.
[[maybe_unused]] const bool streams_are_binary =
    _setmode(_fileno(stdin), _O_BINARY) != -1 && _setmode(_fileno(stdout), _O_BINARY) != -1;

}  // namespace
