#include "tools/simulator/stop_signs.h"

#include <csignal>
#include <poll.h>
#include <sys/signalfd.h>
#include <sys/syscall.h>

namespace simulator {

namespace {

int Take_Signals() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&signals, signal);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    return signalfd(-1, &signals, SFD_CLOEXEC);
}

int Open_Process(std::optional<int> process) {
    return process ? static_cast<int>(syscall(SYS_pidfd_open, *process, 0)) : -1;
}

}  // namespace

Stop_Signs::Stop_Signs(std::optional<int> followed_process)
    : signals_(Take_Signals()), process_(Open_Process(followed_process)) {
    ends_.push_back(signals_.Get());
    if (followed_process) ends_.push_back(process_.Get());
    are_set_ = !followed_process || process_.Get() >= 0;
}

bool Stop_Signs::Wait(int milliseconds) const {
    std::vector<pollfd> waiting;
    for (const int end : ends_)
        waiting.push_back({end, POLLIN, 0});
    return poll(waiting.data(), waiting.size(), milliseconds) == 0;
}

}  // namespace simulator
