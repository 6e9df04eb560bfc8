#include <filesystem>

#include "app/form1.h"
#include "app/settings.h"
#include "bench/measure.h"
#include "platform/files.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"

// skerrand_bench_scan WORLD: a first run, from the choice of that folder to lists that are filled,
// beside reading all its files. Leaves the databases in the working folder.

namespace {

/// The answer to a command without its last line, which has to be `ok`.
std::string Ask(const std::string& command) {
    std::string answer = platform::headless::Execute(command);
    if (!answer.ends_with("ok\n")) bench::Give_Up(command + ": " + answer);
    answer.resize(answer.size() - 3);
    return answer;
}

}  // namespace

int main(int, char** argv) {
    const std::string world = argv[1];
    std::vector<std::string> scenery;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(world))
        if (entry.is_regular_file()) scenery.push_back(entry.path().string());
    bench::Measure(
        "scan", 9, bench::Processor, 0.5,
        [&world] {
            std::filesystem::remove(skerrand::Settings_File);
            platform::headless::Begin([] { platform::Show(skerrand::form1::window); });
            Ask("advance 3000");
            Ask("folder Form2.Dir1 " + world);
        },
        [] {
            Ask("click Form2.Command1");
            while (Ask("get Form3.Text1.text") != "Done\n")
                Ask("advance 1000");
        },
        [&scenery] {
            platform::Bytes bytes;
            for (const std::string& file : scenery)
                if (!platform::Read_File(file, bytes)) bench::Give_Up("cannot read " + file);
        });
}
