#pragma once

namespace platform::desktop {

/// Lets go of the upper halves of the processor's wide registers. The toolkit's painting leaves
/// them in use, and from then on each change between code that knows them, as the mathematical
/// library has it, and code that does not, as this program is, costs some hundred cycles on some
/// processors: arithmetic takes ten times as long.
void Release_Wide_Registers();

}  // namespace platform::desktop
