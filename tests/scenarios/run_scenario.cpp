// Runs a scenario: a text that tells what to say to the program and what it has to answer.
//
//     run_scenario SKERRAND_HEADLESS MAKE_WORLD FILE.scenario
//
// Each scenario gets a fresh folder of its own, with a working folder for the program in it.
//
//     # a remark
//     ! make_world ${world}         a step with files, see world_steps.h
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
#include <fcntl.h>
#include <fstream>
#include <iostream>
#include <span>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "tests/scenarios/world_steps.h"

namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string>;

struct Scenario {
    std::string program;
    fs::path make_world, folder;
    fs::path scratch = {};
    pid_t process = -1;  ///< the program, if it runs
    FILE* to = nullptr;
    FILE* from = nullptr;
    std::string place = {};  ///< file and line of what is done
    std::string command = {};
    Lines expected = {};  ///< its answer
    int failures = 0;
};

void Report(Scenario& scenario, const std::string& what) {
    ++scenario.failures;
    std::cout << scenario.place << ": " << what << "\n";
}

void Start_Program(Scenario& scenario) {
    int input[2] = {-1, -1};
    int output[2] = {-1, -1};
    if (pipe2(input, O_CLOEXEC) != 0 || pipe2(output, O_CLOEXEC) != 0) return;
    scenario.process = fork();
    if (scenario.process == 0) {
        dup2(input[0], STDIN_FILENO);
        dup2(output[1], STDOUT_FILENO);
        execl(scenario.program.c_str(), scenario.program.c_str(), nullptr);
        std::_Exit(127);
    }
    close(input[0]);
    close(output[1]);
    scenario.to = fdopen(input[1], "w");
    scenario.from = fdopen(output[0], "r");
}

void End_Program(Scenario& scenario) {
    if (scenario.process < 0) return;
    std::fclose(scenario.to);
    std::fclose(scenario.from);
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

bool Line_Matches(const std::string& expected, const std::string& line) {
    if (expected == line || (expected == "\"\"" && line.empty())) return true;
    const std::string_view start = expected;
    return start.ends_with("...") && line.starts_with(start.substr(0, start.size() - 3));
}

bool Matches(std::span<const std::string> expected, std::span<const std::string> answer) {
    if (expected.empty()) return answer.empty();
    const std::string& first = expected.front();
    const bool any_lines = first == "...";
    if ((any_lines || first.empty()) && Matches(expected.subspan(1), answer)) return true;
    if (answer.empty() || (!any_lines && !Line_Matches(first, answer.front()))) return false;
    return Matches(any_lines ? expected : expected.subspan(1), answer.subspan(1));
}

/// The first lines of both from where they differ.
std::string Difference(const Lines& expected, const Lines& answer) {
    constexpr std::size_t most = 12;
    std::size_t same = 0;
    while (same < std::min(expected.size(), answer.size()) &&
           Line_Matches(expected[same], answer[same])) {
        ++same;
    }
    std::string text;
    for (const auto& [mark, lines] : {std::pair("\n  - ", &expected), {"\n  + ", &answer}}) {
        for (std::size_t i = same; i < std::min(lines->size(), same + most); ++i)
            text += mark + (*lines)[i];
    }
    return text;
}

void Give_Command(Scenario& scenario) {
    const std::string& command = scenario.command;
    if (scenario.process < 0) Start_Program(scenario);
    std::fprintf(scenario.to, "%s\n", command.c_str());
    std::fflush(scenario.to);
    Lines answer;
    const bool answered = Read_Answer(scenario.from, answer);
    if (!answered) Report(scenario, "> " + command + "\n  the program is gone");
    if (answered && !Matches(scenario.expected, answer)) {
        Report(scenario, "> " + command + Difference(scenario.expected, answer));
    }
    if (!answered || command == "quit") End_Program(scenario);
}

void Play(Scenario& scenario, const std::string& file);

void Do_Step(Scenario& scenario, const std::string& step) {
    std::istringstream stream(step);
    Lines words;
    for (std::string word; std::getline(stream, word, ' ');)
        words.push_back(word);
    if (words[0] == "restart") return End_Program(scenario);
    if (words[0] == "play" && words.size() == 2) return Play(scenario, words[1]);
    if (words[0] == "again" && words.size() == 2) {
        for (int times = std::atoi(words[1].c_str()); times > 0; --times)
            Give_Command(scenario);
        return;
    }
    const std::string problem = Do_File_Step(words, scenario.make_world);
    if (!problem.empty()) Report(scenario, "! " + step + ": " + problem);
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
    if (argc != 4) {
        std::cerr << "run_scenario SKERRAND_HEADLESS MAKE_WORLD FILE.scenario\n";
        return 2;
    }
    std::signal(SIGPIPE, SIG_IGN);
    const fs::path file = fs::absolute(argv[3]);
    Scenario scenario{.program = fs::absolute(argv[1]),
                      .make_world = fs::absolute(argv[2]),
                      .folder = file.parent_path(),
                      .scratch = fs::canonical(fs::temp_directory_path()) /
                                 ("skerrand_" + std::to_string(getpid()))};
    fs::create_directories(scenario.scratch / "work");
    fs::current_path(scenario.scratch / "work");
    Play(scenario, file.filename());
    End_Program(scenario);
    fs::current_path("/");
    fs::remove_all(scenario.scratch);
    return scenario.failures == 0 ? 0 : 1;
}
