#include <filesystem>
#include <string>

#include "app/form1.h"
#include "bench/groups.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"

namespace bench {

namespace {

/// The answer to a command without its last line, which has to be `ok`.
std::string Ask(const std::string& command) {
    std::string answer = platform::headless::Execute(command);
    if (!answer.ends_with("ok\n")) Give_Up(command + ": " + answer);
    answer.resize(answer.size() - 3);
    return answer;
}

}  // namespace

void First_Run(const Folders& folders) {
    std::filesystem::current_path(folders.work);
    platform::headless::Begin([] { platform::Show(skerrand::form1::window); });
    Ask("advance 3000");
    Ask("folder Form2.Dir1 " + folders.world);
    Ask("click Form2.Command1");
    for (int seconds = 0; Ask("get Form3.Text1.text") != "Done\n"; ++seconds) {
        if (seconds > 600) Give_Up("the first run does not end:\n" + Ask("messages"));
        Ask("advance 1000");
    }
}

}  // namespace bench
