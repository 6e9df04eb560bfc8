#include "platform/desktop/wide_registers.h"

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#endif

namespace platform::desktop {

#if defined(__x86_64__) && defined(__GNUC__)

namespace {
[[gnu::target("avx"), gnu::noinline]] void Zero_Upper_Halves() {
    _mm256_zeroupper();
}
}  // namespace

void Release_Wide_Registers() {
    if (__builtin_cpu_supports("avx") != 0) Zero_Upper_Halves();
}

#else

void Release_Wide_Registers() {}

#endif

}  // namespace platform::desktop
