// The real client and the stand-in simulator's server, each a process of its own, as in life.

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "app/settings.h"
#include "platform/link.h"
#include "platform/simulator/server.h"
#include "platform/simulator/simulator.h"
#include "scenery/database.h"
#include "simlink/fsuipc.h"
#include "tests/platform/scratch_folder.h"

using namespace platform;

constexpr const char* Class = "UIPCMAIN";
constexpr std::uint32_t Long_Enough = 20000;  // ms, for what happens in far less
constexpr std::uint32_t Timed_Out = 1000, Gone = 1000 + Error_Invalid_Window;

/// Does `work` in a child that ends as in a crash.
template <typename Work>
static pid_t In_Child(Work work) {
    const pid_t child = fork();
    if (child == 0) _exit(work() ? 0 : 1);
    return child;
}

static bool Ended_Well(pid_t child) {
    int status = 1;
    return waitpid(child, &status, 0) == child && status == 0;
}

static std::ptrdiff_t Open_Files(pid_t process) {
    return std::distance(
        std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/fd"), {});
}

class Transport : public testing::Test {
  protected:
    void SetUp() override {
        alarm(60);  // ends a test that hangs
        setenv("XDG_RUNTIME_DIR", scratch.Path().c_str(), 1);
        skerrand::Clear_Link();
        block = CreateFileMappingA(0x8000, "block");
    }
    void TearDown() override {
        CloseHandle(block);
        End_Server();
    }
    void Start_Server(const simulator::Answer& answer) {
        ASSERT_EQ(simulator::Open_Window(Class), "");
        server = In_Child([&, parent = getpid()] {
            if (simulator::Follow(parent)) simulator::Serve(answer);
            return true;
        });
        simulator::Close_Window();
        ASSERT_NE(FindWindowExA(Class), 0U);
    }
    void End_Server() {
        if (server == 0) return;
        kill(server, SIGKILL);
        waitpid(std::exchange(server, 0), nullptr, 0);
    }
    /// The reply to a message about the block; 1000 and the error if there is none.
    static std::uint32_t Reply(std::uint32_t time_out = Long_Enough) {
        std::uint32_t reply = 99;
        return SendMessageTimeoutA(1, 0, 0, time_out, reply) ? reply : 1000 + GetLastError();
    }

    Scratch_Folder scratch;
    std::int32_t result = 99;
    Mapping_Handle block = 0;
    pid_t server = 0;
};

TEST_F(Transport, Slow_Server_Holds_The_Client_Or_Its_Late_Reply_Is_Taken) {
    Start_Server([reply = 6U](auto) mutable {
        if (++reply != 8) raise(SIGSTOP);
        return reply;
    });
    EXPECT_EQ(Reply(30), Timed_Out);
    waitpid(server, nullptr, WUNTRACED);
    kill(server, SIGCONT);
    EXPECT_EQ(Reply(), 8U);
    EXPECT_EQ(Reply(30), Timed_Out);
    // It takes no more clients, and those that wait are not many.
    for (int i = 0; FindWindowExA(Class) != 0; ++i)
        ASSERT_LT(i, 20);
}

TEST_F(Transport, Killed_Server_Blocks_The_Next_One_Or_Leaves_A_Connection) {
    EXPECT_EQ(FindWindowExA(Class), 0U);
    const std::ptrdiff_t files = Open_Files(getpid());
    Start_Server([](auto) { return raise(SIGKILL); });
    EXPECT_NE(FindWindowExA(Class), 0U);
    EXPECT_NE(simulator::Open_Window(Class), "") << "two at a time";
    EXPECT_EQ(Reply(), Gone) << "while it answers";
    End_Server();
    EXPECT_EQ(FindWindowExA(Class), 0U);
    EXPECT_EQ(Open_Files(getpid()), files);
    EXPECT_EQ(Reply(), Gone);
    Start_Server([](auto) { return 8; });
    EXPECT_EQ(Reply(), 8U);
    setenv("XDG_RUNTIME_DIR", "/another/session", 1);
    EXPECT_EQ(FindWindowExA(Class), 0U);
}

TEST_F(Transport, Killed_Client_Ends_The_Server_Or_Leaves_Something_Behind) {
    simulator::Start(Class);
    Start_Server(simulator::Answer_Batch);
    CloseHandle(block);
    EXPECT_EQ(Reply(), 0U) << "no block";
    const std::ptrdiff_t files = Open_Files(server);
    EXPECT_TRUE(Ended_Well(In_Child([&] { return skerrand::Open_Link(6, result); })));
    EXPECT_EQ(Reply() + Reply(), 0U);  // by the second one the server has seen the end
    EXPECT_EQ(Open_Files(server), files);
    EXPECT_TRUE(std::filesystem::is_empty(scratch.Path()));
}

TEST_F(Transport, Program_Flies_Or_Ends_Otherwise_Than_Told) {
    CloseHandle(block);
    skerrand::Set_App_Path(scratch.Path());
    skerrand::Airport_Info& airport = skerrand::airport_table.emplace_back();
    airport.icao_id = "ZZZZ";
    airport.runways = {{"9", "27", 45, 10, 45, 10.01}};
    skerrand::settings.airport_count = 1;
    ASSERT_EQ(skerrand::Save_Settings() + skerrand::Write_Airport_Table(), "");
    const pid_t program = In_Child([&] {
        return execl(SIMULATOR, "", "--folder", scratch.Path().c_str(), "--departure", "zzzz",
                     "--altimeter", "1000", "--speed-up", "1000", "--die-after", "2", nullptr) == 0;
    });
    for (int i = 0; i < 200 && FindWindowExA(Class) == 0; ++i)
        Sleep(50);
    std::int32_t lat = 0, lon = 0, heading = 0, altimeter = 0;
    EXPECT_TRUE(skerrand::Open_Link(6, result)) << result;
    skerrand::Queue_Read(0x564, 4, &lat, result);
    skerrand::Queue_Read(0x56C, 4, &lon, result);
    skerrand::Queue_Read(0x580, 4, &heading, result);
    skerrand::Queue_Read(0xEC6, 2, &altimeter, result);
    EXPECT_TRUE(skerrand::Process_Queue(result));
    // 100 seconds and more after the start, at 150 m/s to the east.
    EXPECT_NEAR(lat * (90 / 10001750.0), 45, 0.1);
    EXPECT_NEAR(lon * (360 / 4294967296.0), 12.5, 2.4);
    EXPECT_NEAR(heading * (360 / 4294967296.0), 91, 2);
    EXPECT_EQ(altimeter, 16000);
    EXPECT_FALSE(skerrand::Queue_Read(0, 1, &lat, result) && skerrand::Process_Queue(result));
    int status = 0;
    EXPECT_TRUE(waitpid(program, &status, 0) == program && WEXITSTATUS(status) == 3) << status;
    skerrand::Close_Link();
}
