#include <cstdio>
#include <windows.h>

/// Holds a block of the name that the running program gives its own, as what is left of another
/// process might.
int main() {
    DWORD process = 0;
    GetWindowThreadProcessId(FindWindowA("SkerrandWindow", nullptr), &process);
    char name[32];
    std::snprintf(name, sizeof name, "FSASMLIB:IPC:%lX:1", process);
    if (CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, 8, name)) puts(name);
    std::fflush(stdout);
    Sleep(INFINITE);
}
