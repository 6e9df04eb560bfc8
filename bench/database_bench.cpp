#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fcntl.h>
#include <malloc.h>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include "app/settings.h"
#include "bench/groups.h"
#include "bench/timing.h"
#include "platform/files.h"
#include "scenery/database.h"

namespace bench {

namespace {

using namespace skerrand;

constexpr const char* Yardstick_File = "yardstick.dat";

platform::Bytes file_bytes;
std::vector<Airport_Info> whole_table;
std::size_t table_memory = 0;

std::size_t Memory_In_Use() {
    const struct mallinfo2 now = mallinfo2();
    return now.uordblks + now.hblkhd;
}

void Write_Table(benchmark::State& state) {
    airport_table.swap(whole_table);
    for (auto _ : state) {
        malloc_trim(0);
        Time(state, Clock::Wall, [&state] {
            if (!Write_Airport_Table().empty()) state.SkipWithError("cannot write");
        });
    }
    airport_table.swap(whole_table);
}

void Compose_Table(benchmark::State& state) {
    for (auto _ : state) {
        malloc_trim(0);
        Time(state, [] { benchmark::DoNotOptimize(Airport_Table_Bytes(whole_table)); });
    }
}

/// Temporary file, to the disk, renamed.
void Write_Same_Way(benchmark::State& state) {
    for (auto _ : state) {
        Time(state, Clock::Wall, [&state] {
            if (!platform::Write_File(Yardstick_File, file_bytes).empty()) {
                state.SkipWithError("cannot write");
            }
        });
    }
}

/// Over the old file, and left to the system to bring to the disk.
void Write_Plain(benchmark::State& state) {
    for (auto _ : state) {
        Time(state, Clock::Wall, [&state] {
            const int file = open(Yardstick_File, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
            const ssize_t count = write(file, file_bytes.data(), file_bytes.size());
            if (count != std::ssize(file_bytes) || close(file) != 0) {
                state.SkipWithError("cannot write");
            }
        });
    }
}

void Read_Table(benchmark::State& state) {
    for (auto _ : state) {
        Release_Airport_Table();
        malloc_trim(0);
        Time(state, [&state] {
            if (!Read_Airport_Table()) state.SkipWithError("cannot read");
        });
    }
    Release_Airport_Table();
}

/// Into fresh memory.
void Read_Plain(benchmark::State& state) {
    for (auto _ : state) {
        malloc_trim(0);
        const std::string path = Own_File(Airports_File);
        std::string native = path;
        for (char& c : native)
            c = c == '\\' ? '/' : c;
        Time(state, [&state, &native] {
            const std::unique_ptr<char, decltype(&std::free)> bytes(
                static_cast<char*>(std::malloc(file_bytes.size())), &std::free);
            const int file = open(native.c_str(), O_RDONLY | O_CLOEXEC);
            const ssize_t count = read(file, bytes.get(), file_bytes.size());
            if (count != std::ssize(file_bytes) || close(file) != 0) {
                state.SkipWithError("cannot read");
            }
        });
    }
}

}  // namespace

void Register_Database() {
    Register("database/write", Write_Table);
    Register("database/write_same_way", Write_Same_Way);
    Register("database/write_plain", Write_Plain);
    Register("database/compose", Compose_Table);
    Register("database/read", Read_Table);
    Register("database/read_plain", Read_Plain);
}

void Prepare_Database(const Folders&) {
    if (!platform::Read_File(Own_File(Airports_File), file_bytes)) Give_Up("no database");
    Release_Airport_Table();
    const std::size_t before = Memory_In_Use();
    if (!Read_Airport_Table()) Give_Up("the database does not read back");
    table_memory = Memory_In_Use() - before;
    whole_table.swap(airport_table);
}

void Add_Database_Rows(const Results& results, std::vector<Row>& rows) {
    const double file_megabytes = static_cast<double>(file_bytes.size()) / 1e6;
    const double table_megabytes = static_cast<double>(table_memory) / 1e6;
    const double ratio = table_megabytes / file_megabytes;
    rows.push_back(Compared(results,
                            "write the database of " + Number_Text(file_megabytes, 1, " MB") +
                                " (the same bytes the same way)",
                            "database/write", "database/write_same_way", 3));
    rows.push_back(Compared(results, "  against a plain write, not brought to the disk",
                            "database/write", "database/write_plain", 3));
    rows.push_back(Compared(results, "  of this: composing the bytes (a plain write)",
                            "database/compose", "database/write_plain", 0));
    rows.push_back(Compared(results, "read it back (the same bytes in one call)", "database/read",
                            "database/read_plain", 6));
    rows.push_back({.measure = "  memory of the table (size of the file)",
                    .value = Number_Text(table_megabytes, 1, " MB"),
                    .yardstick = Number_Text(file_megabytes, 1, " MB"),
                    .ratio = Number_Text(ratio, 2, ""),
                    .target = "at most 3 times",
                    .met = ratio <= 3});
}

}  // namespace bench
