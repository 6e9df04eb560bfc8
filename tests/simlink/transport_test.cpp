// The real client and the stand-in simulator's server, over their sockets and shared memory.

#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <future>
#include <gtest/gtest.h>
#include <sys/eventfd.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>

#include "platform/headless/simulator.h"
#include "platform/link.h"
#include "platform/posix/link_endpoint.h"
#include "simlink/fsuipc.h"
#include "tests/platform/scratch_folder.h"
#include "tools/simulator/instruments.h"
#include "tools/simulator/server.h"

namespace {

using platform::posix::Descriptor;
using simulator::Answer;

constexpr const char* Class = "UIPCMAIN";
constexpr std::uint32_t Long_Enough = 20000;  // ms, for what happens in far less

const std::string Block_Name = "FSASMLIB:IPC:" + std::to_string(getpid()) + ":test";

platform::Mapping_Handle Make_Block(const std::string& name = Block_Name,
                                    std::uint32_t size = 0x8000) {
    return platform::CreateFileMappingA(size, name.c_str());
}

/// A server in a thread of its own.
class Running_Server {
  public:
    explicit Running_Server(const Answer& answer)
        : server_(simulator::Open_Server(Class, fault_)), thread_([this, answer] {
              const int ends[] = {stop_.Get()};
              if (server_ != nullptr) simulator::Serve(*server_, ends, answer);
          }) {}
    ~Running_Server() {
        eventfd_write(stop_.Get(), 1);
        thread_.join();
    }

  private:
    std::string fault_;
    std::unique_ptr<simulator::Server> server_;
    Descriptor stop_{eventfd(0, EFD_CLOEXEC)};
    std::thread thread_;
};

class Transport : public testing::Test {
  protected:
    void SetUp() override {
        setenv("XDG_RUNTIME_DIR", scratch.Path().c_str(), 1);
        simulator::Start(Class, 0xFADE0006);
        skerrand::Clear_Link();
    }
    void TearDown() override { skerrand::Close_Link(); }

    /// A message about the block of that name.
    static std::uint32_t Reply(const std::string& block_name = Block_Name,
                               const char* message = "FSASMLIB:IPC",
                               std::uint32_t time_out = Long_Enough) {
        std::uint32_t reply = 99;
        const platform::Atom atom = platform::GlobalAddAtomA(block_name.c_str());
        const bool sent = platform::SendMessageTimeoutA(
            platform::FindWindowExA(Class), platform::RegisterWindowMessageA(message),
            static_cast<std::int16_t>(atom), time_out, reply);
        platform::GlobalDeleteAtom(atom);
        return sent ? reply : 1000 + platform::GetLastError();
    }

    Scratch_Folder scratch;
    std::int32_t result = 99;
};

constexpr std::uint32_t Timed_Out = 1000;
constexpr std::uint32_t Gone = 1000 + platform::Error_Invalid_Window;

const sockaddr* Generic(const sockaddr_un& address) {
    return static_cast<const sockaddr*>(static_cast<const void*>(&address));
}

/// Runs `work` in a child and waits for its end; true if all went well there.
bool In_Child(const std::function<bool()>& work) {
    const pid_t child = fork();
    if (child == 0) _exit(work() ? 0 : 1);  // as in a crash: nothing is put in order
    int status = 1;
    return waitpid(child, &status, 0) == child && status == 0;
}

TEST_F(Transport, Link_Closed_And_Opened_Again_Shows_An_Old_Block) {
    const Running_Server server(platform::headless::Answer_Batch);
    for (const double lat : {-33.5, 90.0}) {
        simulator::Show({.lat = lat, .lon = 180, .heading = 270});
        ASSERT_TRUE(skerrand::Open_Link(6, result)) << result;
        std::int32_t raw_lat = 0, raw_lon = 0, raw_heading = 0;
        const std::array<std::uint8_t, 2> data{3, 4};
        ASSERT_TRUE(skerrand::Queue_Read(0x0564, 4, &raw_lat, result) &&
                    skerrand::Queue_Read(0x056C, 4, &raw_lon, result) &&
                    skerrand::Queue_Read(0x0580, 4, &raw_heading, result) &&
                    skerrand::Queue_Write(0x8000, 2, data.data(), result) &&
                    skerrand::Process_Queue(result))
            << result;
        EXPECT_NEAR(raw_lat * 90.0 / 10001750, lat, 1e-5);
        EXPECT_EQ(raw_lon, INT32_MIN);
        EXPECT_EQ(raw_heading, -0x40000000);
        EXPECT_EQ(platform::headless::State_Area()[0x8001], 4);
        skerrand::Close_Link();
        std::array<char, 32> name;
        std::snprintf(name.data(), name.size(), "/FSASMLIB:IPC:%X:1",
                      platform::GetCurrentProcessId());
        EXPECT_LT(Descriptor(shm_open(name.data(), O_RDONLY, 0)).Get(), 0) << "left behind";
    }
    EXPECT_EQ(platform::FindWindowExA("FS98MAIN"), 0U);
}

TEST_F(Transport, Late_Reply_Is_Taken_For_The_Next_One) {
    std::promise<void> gate;
    std::uint32_t count = 100;
    const auto block = Make_Block();
    {
        const Running_Server server([&, open = gate.get_future().share()](auto) {
            open.wait();
            return ++count;
        });
        EXPECT_EQ(Reply(Block_Name, "FSASMLIB:IPC", 30), Timed_Out);
        EXPECT_EQ(Reply(Block_Name, "FSASMLIB:IPC", 0), Timed_Out);
        gate.set_value();
        EXPECT_EQ(Reply(), 103U);
    }
    EXPECT_EQ(Reply(), Gone) << "the server has ended";
    EXPECT_EQ(platform::FindWindowExA(Class), 0U);
    platform::CloseHandle(block);
}

TEST_F(Transport, Crash_Of_The_Server_Kills_The_Client_Or_Blocks_The_Next_Server) {
    // The child crashes at the third message.
    const int ready = eventfd(0, 0);
    const pid_t child = fork();
    if (child == 0) {
        std::string fault;
        const auto server = simulator::Open_Server(Class, fault);
        int left = 2;
        eventfd_write(ready, 1);
        simulator::Serve(*server, {}, [&](auto) { return left-- > 0 ? 1U : (_exit(0), 0U); });
    }
    eventfd_t value = 0;
    ASSERT_EQ(eventfd_read(ready, &value), 0);
    const auto block = Make_Block();
    std::string fault;
    EXPECT_EQ(simulator::Open_Server(Class, fault), nullptr) << "two at a time";
    for (const std::uint32_t expected : {1U, 1U, Gone, Gone})
        EXPECT_EQ(Reply(), expected);
    waitpid(child, nullptr, 0);
    close(ready);
    {
        const Running_Server next([](auto) { return 7; });
        EXPECT_EQ(Reply(), 7U);
    }
    EXPECT_TRUE(std::filesystem::is_empty(scratch.Path() + "/skerrand")) << "a socket is left";
    platform::CloseHandle(block);
}

TEST_F(Transport, Leftover_Block_Stands_In_The_Way_Or_One_In_Use_Does_Not) {
    ASSERT_TRUE(In_Child([] {
        std::uint8_t* const view = platform::MapViewOfFile(Make_Block(Block_Name, 100));
        return view != nullptr && std::memset(view, 1, 100) != nullptr;
    }));
    const auto mine = Make_Block();
    ASSERT_EQ(platform::GetLastError(), 0U);
    std::uint8_t* const view = platform::MapViewOfFile(mine);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(std::count(view, view + 0x8000, 0), 0x8000);
    const auto is_taken = [] {
        const auto again = Make_Block();
        const bool taken = platform::GetLastError() == platform::Error_Already_Exists;
        platform::CloseHandle(again);
        return taken;
    };
    EXPECT_TRUE(In_Child(is_taken));
    EXPECT_TRUE(is_taken());
    view[0x7FFF] = 5;
    platform::CloseHandle(mine);
    EXPECT_EQ(view[0x7FFF]--, 5) << "the view outlives its handle";
    platform::UnmapViewOfFile(view);
    EXPECT_FALSE(is_taken());
}

TEST_F(Transport, Another_User_Stands_Between) {
    std::string fault;
    const std::string folder = platform::posix::Link_Folder(fault);
    {
        const Running_Server server([](auto) { return 1; });
        std::filesystem::permissions(folder, std::filesystem::perms(0750));
        EXPECT_EQ(platform::FindWindowExA(Class), 0U) << "others may enter the folder";
        std::filesystem::permissions(folder, std::filesystem::perms(0700));
        EXPECT_NE(platform::FindWindowExA(Class), 0U);
    }
    std::filesystem::rename(folder, folder + "2");
    std::filesystem::create_directory_symlink(folder + "2", folder);
    EXPECT_EQ(simulator::Open_Server(Class, fault), nullptr) << "the folder is a link";
    std::filesystem::remove(folder);
    if (geteuid() != 0) GTEST_SKIP() << "only root can be another user";
    EXPECT_TRUE(In_Child([&] {
        sockaddr_un address;
        if (!platform::posix::Link_Address(Class, address, fault)) return false;
        const Descriptor listener(socket(AF_UNIX, SOCK_SEQPACKET, 0));
        // Who listens is who called listen().
        return bind(listener.Get(), Generic(address), sizeof address) == 0 && seteuid(65534) == 0 &&
               listen(listener.Get(), 1) == 0 && seteuid(0) == 0 &&
               platform::FindWindowExA(Class) == 0;
    }));
}

TEST_F(Transport, Hostile_Client_Is_Believed_Or_Ends_The_Server) {
    const std::string other = "other-" + Block_Name;
    const std::string small = Block_Name + "small";
    const auto blocks = {Make_Block(other), Make_Block(small, 0x7FFF), Make_Block()};
    std::uint8_t* const view = platform::MapViewOfFile(*(blocks.end() - 1));
    ASSERT_NE(view, nullptr);
    const Running_Server server(platform::headless::Answer_Batch);
    EXPECT_EQ(Reply(), 1U);
    EXPECT_EQ(Reply(Block_Name, "FSASMLIB:IPD"), 0U);
    for (const std::string& name : {other, small, std::string("FSASMLIB:IPC:none"),
                                    std::string("FSASMLIB:IPC:/../x"), std::string(255, 'F')}) {
        EXPECT_EQ(Reply(name), 0U) << name;
    }
    // A sound read, whose answer must not come back, ahead of a broken request.
    const std::uint32_t requests[][8] = {{1, 0x3304, 4, 0, 0, 3, 0, 0},
                                         {1, 0x3304, 4, 0, 0, 1, 0, 0x7FF1},
                                         {1, 0x3304, 4, 0, 0, 2, 0, 0xFFFFFFFF}};
    for (const auto& batch : requests) {
        std::memcpy(view, batch, sizeof batch);
        EXPECT_EQ(Reply(), 0U) << batch[5];
        EXPECT_EQ(std::memcmp(view, batch, sizeof batch), 0) << "a refused block is written to";
    }
    // Packets of a wrong length cost the client its connection.
    sockaddr_un address;
    std::string fault;
    ASSERT_TRUE(platform::posix::Link_Address(Class, address, fault));
    for (const std::size_t size : {7U, 264U}) {
        const Descriptor raw(socket(AF_UNIX, SOCK_SEQPACKET, 0));
        ASSERT_EQ(connect(raw.Get(), Generic(address), sizeof address), 0);
        std::array<char, 300> packet{};
        EXPECT_EQ(send(raw.Get(), packet.data(), size, 0), static_cast<ssize_t>(size));
        EXPECT_EQ(recv(raw.Get(), packet.data(), packet.size(), 0), 0);
    }
    std::memset(view, 0, 4);
    EXPECT_EQ(Reply(), 1U);
    platform::UnmapViewOfFile(view);
    for (const auto each : blocks)
        platform::CloseHandle(each);
}

}  // namespace
