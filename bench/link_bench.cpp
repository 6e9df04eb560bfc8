#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <sched.h>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "bench/groups.h"
#include "bench/timing.h"
#include "platform/simulator/server.h"
#include "platform/simulator/simulator.h"
#include "simlink/fsuipc.h"

// link_bench [--benchmark_...]: the exchange with a simulator, over the transport of the desktop
// program, beside a byte that another process sends back.

namespace {

constexpr const char* Window_Class = "UIPCMAIN";

/// A child that ends with its parent: `work` gets a pipe that ends then.
template <typename Work>
pid_t In_Child(std::array<int, 2> pipe, Work work) {
    const pid_t child = fork();
    if (child != 0) return child;
    close(pipe[1]);
    work(pipe[0]);
    _exit(0);
}

std::array<int, 2> Connected_Pair() {
    std::array<int, 2> pair{-1, -1};
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, pair.data()) != 0) bench::Give_Up("no socket pair");
    return pair;
}

int echo = -1;  // this end of the pair whose other end sends bytes back

void Send_Back(int socket) {
    char byte = 0;
    while (read(socket, &byte, 1) == 1 && write(socket, &byte, 1) == 1) {
    }
}

void Simulate() {
    const std::string fault = platform::simulator::Open_Window(Window_Class);
    if (!fault.empty() || !platform::simulator::Follow(getppid())) bench::Give_Up(fault);
    platform::simulator::Start(Window_Class);
    platform::simulator::Serve(platform::simulator::Answer_Batch);
}

bool Read_Value(std::uint32_t offset) {
    std::int32_t value = 0;
    std::int32_t result = 0;
    return skerrand::Queue_Read(offset, sizeof value, &value, result) &&
           skerrand::Process_Queue(result);
}

void Exchange_Byte(benchmark::State& state) {
    char byte = 1;
    for (auto _ : state) {
        bench::Time(state, bench::Clock::Wall, [&byte] {
            if (write(echo, &byte, 1) != 1 || read(echo, &byte, 1) != 1) {
                bench::Give_Up("the byte did not come back");
            }
        });
    }
}

void Exchange_Batch(benchmark::State& state) {
    for (auto _ : state) {
        bench::Time(state, bench::Clock::Wall, [] {
            if (!Read_Value(0x0564)) bench::Give_Up("the link broke");
        });
    }
}

/// Both ends on one processor: on several it is chance where a process wakes up, and behind whom.
void Stay_On_One_Processor() {
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(static_cast<unsigned>(sched_getcpu()), &one);
    sched_setaffinity(0, sizeof one, &one);
}

void Open() {
    std::int32_t result = 0;
    for (int tries = 0; tries < 100; ++tries) {
        if (skerrand::Open_Link(6, result)) return;
        usleep(20000);  // the child is not ready yet
    }
    bench::Give_Up("the link does not open, code " + std::to_string(result));
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    bench::Take_Options(arguments);
    // Its own sockets, apart from those of a Skerrand that runs.
    std::string folder = std::filesystem::temp_directory_path() / "link_bench_XXXXXX";
    if (mkdtemp(folder.data()) == nullptr) bench::Give_Up("no folder for the socket");
    setenv("XDG_RUNTIME_DIR", folder.c_str(), 1);

    Stay_On_One_Processor();
    const std::array<int, 2> bytes = Connected_Pair();
    const pid_t sender = In_Child(bytes, Send_Back);
    echo = bytes[1];
    close(bytes[0]);
    const pid_t simulator = fork();
    if (simulator == 0) Simulate();
    Open();

    bench::Register("link/byte", Exchange_Byte);
    bench::Register("link/batch", Exchange_Batch);
    bench::Results results;
    bench::Run_Group("link", results);
    results.Print_All();
    bench::Print({bench::Compared(results, "a batch to the simulator and back (a byte)",
                                  "link/batch", "link/byte", 3)});

    skerrand::Close_Link();
    close(bytes[1]);
    kill(simulator, SIGKILL);
    waitpid(sender, nullptr, 0);
    waitpid(simulator, nullptr, 0);
    std::filesystem::remove_all(folder);
    return 0;
}
