// Runs a scenario: a text that tells what to say to the program and what it has to answer.
//
//     run_scenario SKERRAND_HEADLESS FILE.scenario
//
// Each scenario gets a fresh folder of its own, with a working folder for the program in it.
//
//     # a remark
//     ! make_world ${world}         a shell command, with the build's programs and steps.sh at hand
//     > get Form2.caption           a command to the program
//     Settings                      the lines of its answer
//     ok                            may be left out: an answer that tells no end ends with ok
//     ! again 40                    gives the last command so many times more, each with its answer
//     ! play setup.steps            does what is in that file beside the scenario
//     ! restart                     ends the program; the next command starts a new one
//
// In an answer "..." stands for any number of lines, a line that ends with "..." for every line
// that starts so, two quotation marks for an empty line, and an empty line for one or none, since
// it also parts the exchanges. ${work} is the program's working folder, ${world} a folder beside it
// that does not exist yet. The program has to end with status 0, also at the end of the scenario.

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <span>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string>;

struct Scenario {
    std::string program;
    fs::path folder;     ///< of the scenario
    fs::path scratch;    ///< its own
    pid_t process = -1;  ///< the program, if it runs
    FILE* talk = nullptr;
    std::string place = {};  ///< file and line of what is done
    std::string command = {};
    Lines expected = {};  ///< its answer
    bool failed = false;
};

void Report(Scenario& scenario, const std::string& what) {
    scenario.failed = true;
    std::cout << scenario.place << ": " << what << "\n";
}

void Start_Program(Scenario& scenario) {
    int ends[2] = {-1, -1};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return;
    scenario.process = fork();
    if (scenario.process == 0) {
        dup2(ends[1], STDIN_FILENO);
        dup2(ends[1], STDOUT_FILENO);
        execl(scenario.program.c_str(), scenario.program.c_str(), nullptr);
        std::_Exit(127);
    }
    close(ends[1]);
    scenario.talk = fdopen(ends[0], "r");
}

void End_Program(Scenario& scenario) {
    if (scenario.process < 0) return;
    std::fclose(scenario.talk);
    int status = 0;
    waitpid(std::exchange(scenario.process, -1), &status, 0);
    if (status != 0) Report(scenario, "the program failed");
}

bool Is_End(const std::string& line) {
    return line == "ok" || line.starts_with("error ");
}

/// Reads an answer up to its last line; false if the program is gone before that.
bool Read_Answer(FILE* from, Lines& answer) {
    std::string line;
    for (int c = std::fgetc(from); c != EOF; c = std::fgetc(from)) {
        if (c != '\n') {
            line.push_back(static_cast<char>(c));
            continue;
        }
        answer.push_back(std::exchange(line, {}));
        if (Is_End(answer.back())) return true;
    }
    return false;
}

bool Line_Matches(std::string_view expected, std::string_view line) {
    if (expected == line || (expected == "\"\"" && line.empty())) return true;
    return expected.ends_with("...") && line.starts_with(expected.substr(0, expected.size() - 3));
}

bool Matches(std::span<const std::string> expected, std::span<const std::string> answer) {
    if (expected.empty()) return answer.empty();
    const std::string& first = expected.front();
    const bool any_lines = first == "...";
    if ((any_lines || first.empty()) && Matches(expected.subspan(1), answer)) return true;
    if (answer.empty() || (!any_lines && !Line_Matches(first, answer.front()))) return false;
    return Matches(any_lines ? expected : expected.subspan(1), answer.subspan(1));
}

/// The first line of both that differs.
std::string Difference(const Lines& expected, const Lines& answer) {
    std::size_t at = 0;
    while (at < std::min(expected.size(), answer.size()) && Line_Matches(expected[at], answer[at]))
        ++at;
    const auto line = [at](const Lines& lines) { return at < lines.size() ? lines[at] : "(none)"; };
    return "  - " + line(expected) + "\n  + " + line(answer);
}

void Give_Command(Scenario& scenario) {
    const std::string line = scenario.command + "\n";
    if (scenario.process < 0) Start_Program(scenario);
    send(fileno(scenario.talk), line.data(), line.size(), MSG_NOSIGNAL);
    Lines answer;
    const bool answered = Read_Answer(scenario.talk, answer);
    if (!answered || !Matches(scenario.expected, answer)) {
        Report(scenario, "> " + line + Difference(scenario.expected, answer) +
                             (answered ? "" : "\n  the program is gone"));
    }
    if (!answered || scenario.command == "quit") End_Program(scenario);
}

void Play(Scenario& scenario, const std::string& file);

void Do_Step(Scenario& scenario, const std::string& step) {
    if (step == "restart") return End_Program(scenario);
    if (step.starts_with("play ")) return Play(scenario, step.substr(5));
    if (step.starts_with("again ")) {
        for (int times = std::stoi(step.substr(6)); times > 0; --times)
            Give_Command(scenario);
        return;
    }
    const std::string prelude = ". '" + (scenario.folder / "steps.sh").string() + "'\n";
    if (std::system((prelude + step).c_str()) != 0) Report(scenario, "it is not so: " + step);
}

/// A command or a step, and the lines behind it.
void Do(Scenario& scenario, const std::string& first, const Lines& others) {
    if (first.starts_with("> ")) {
        scenario.command = first.substr(2);
        scenario.expected = others;
        if (std::ranges::none_of(others, Is_End)) scenario.expected.emplace_back("ok");
        Give_Command(scenario);
    } else if (std::ranges::any_of(others, [](const auto& line) { return !line.empty(); })) {
        Report(scenario, "lines that belong to no command");
    } else if (!first.empty()) {
        Do_Step(scenario, first.substr(2));
    }
}

/// The text with the variables replaced.
std::string Filled_In(const Scenario& scenario, std::string text) {
    for (const std::string name : {"work", "world"}) {
        const std::string variable = "${" + name + "}";
        for (auto at = text.find(variable); at != std::string::npos; at = text.find(variable))
            text.replace(at, variable.size(), scenario.scratch / name);
    }
    return text;
}

void Play(Scenario& scenario, const std::string& file) {
    std::ifstream stream(scenario.folder / file);
    if (!stream) Report(scenario, "cannot read " + file);
    std::string first;
    Lines others;
    int number = 0;
    for (std::string line; std::getline(stream, line);) {
        ++number;
        if (line.starts_with("#")) continue;
        line = Filled_In(scenario, line);
        if (!line.starts_with("> ") && !line.starts_with("! ")) {
            others.push_back(line);
            continue;
        }
        Do(scenario, std::exchange(first, line), std::exchange(others, {}));
        scenario.place = file + ":" + std::to_string(number);
    }
    Do(scenario, first, others);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    const fs::path program = fs::absolute(argv[1]);
    const fs::path file = fs::absolute(argv[2]);
    // In lower case, as the program's list of files is.
    Scenario scenario{.program = program,
                      .folder = file.parent_path(),
                      .scratch = fs::canonical(fs::temp_directory_path()) /
                                 ("skerrand_" + std::to_string(getpid()))};
    setenv("PATH", (program.parent_path().string() + ":" + std::getenv("PATH")).c_str(), 1);
    fs::create_directories(scenario.scratch / "work");
    fs::current_path(scenario.scratch / "work");
    Play(scenario, file.filename());
    End_Program(scenario);
    fs::current_path("/");
    fs::remove_all(scenario.scratch);
    return scenario.failed ? 1 : 0;
}
