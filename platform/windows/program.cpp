#include "platform/windows/program.h"

#include <algorithm>

#include "platform/program.h"
#include "platform/windows/live.h"

namespace platform {

namespace windows {

void Set_Up() {
    // A long handler keeps its window as it is, where the system would cover it with a pale copy.
    DisableProcessWindowsGhosting();
    // A drive without a disk is a drive without folders, and nobody is asked for one.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_STANDARD_CLASSES | ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&classes);
}

void Begin(Handler start) {
    MSG quit;
    PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    Watch_Keys();
    common::Begin(start);
}

void Serve(unsigned long most_wait) {
    constexpr int Most_Messages = 64;  // before a timer has its turn
    MSG message;
    for (int i = 0; i < Most_Messages && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE); ++i) {
        if (message.message == WM_QUIT || Is_Ending()) return;
        Dispatch(message);
    }
    Run_Due_Timers();
    Destroy_Retired();
    if (Is_Ending()) return;
    const DWORD wait = std::min<DWORD>(Time_To_Next_Tick(), most_wait);
    MsgWaitForMultipleObjectsEx(0, nullptr, wait, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

}  // namespace windows

// Ends the loops of a menu or of a window that is being dragged too.
void common::Leave_Loop() {
    PostQuitMessage(0);
}

int Run(int, char**, Handler start) {
    windows::Set_Up();
    windows::Begin(start);
    while (!windows::Is_Ending())
        windows::Serve(INFINITE);
    windows::Destroy_Windows();
    return 0;
}

}  // namespace platform
