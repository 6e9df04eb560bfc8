// Runs a scenario: a text that tells what to say to the program and what it has to answer.
//
//     run_scenario SKERRAND_HEADLESS MAKE_WORLD FILE.scenario
//
// Each scenario gets a fresh folder of its own, with a working folder for the program in it.
//
//     # a remark
//     ! make_world ${world}         a step with files, see world_steps.h
//     > get Form2.caption           a command to the program
//     Settings                      the lines of its answer; see answers.h for "..." and empty ones
//     ok                            may be left out: an answer that tells no end ends with ok
//     ! again 40                    gives the last command so many times more, each with its answer
//     ! restart                     ends the program; the next command starts a new one
//
// ${work} is the program's working folder, ${world} a folder beside it that does not exist yet. The
// program has to end with status 0, also at the end of the scenario.

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "tests/scenarios/answers.h"
#include "tests/scenarios/child.h"
#include "tests/scenarios/world_steps.h"

namespace fs = std::filesystem;

namespace {

struct Scenario {
    std::string program;
    std::string make_world;
    std::string file;
    fs::path scratch = {};
    Child child = {};
    std::string command = {};                ///< the last one
    std::vector<std::string> expected = {};  ///< its answer
    int line_number = 0;
    int failures = 0;
};

void Report(Scenario& scenario, int line_number, const std::string& what) {
    ++scenario.failures;
    std::cout << scenario.file << ":" << line_number << ": " << what << "\n";
}

/// The text with the variables replaced.
std::string Filled_In(const Scenario& scenario, std::string text) {
    const std::pair<std::string, std::string> variables[] = {
        {"${work}", (scenario.scratch / "work").string()},
        {"${world}", (scenario.scratch / "world").string()}};
    for (const auto& [name, value] : variables) {
        for (auto at = text.find(name); at != std::string::npos; at = text.find(name, at)) {
            text.replace(at, name.size(), value);
        }
    }
    return text;
}

/// The next line that is no remark, its variables filled in; false at the end.
bool Next_Line(Scenario& scenario, std::istream& stream, std::string& line) {
    while (std::getline(stream, line)) {
        ++scenario.line_number;
        if (line.starts_with("#")) continue;
        line = Filled_In(scenario, line);
        return true;
    }
    return false;
}

void End_Program(Scenario& scenario) {
    if (scenario.child.process < 0) return;
    const int status = Finish(scenario.child);
    if (status != 0) {
        Report(scenario, scenario.line_number, "exit status " + std::to_string(status));
    }
}

void Give_Command(Scenario& scenario, int at) {
    const std::string& command = scenario.command;
    const std::vector<std::string>& expected = scenario.expected;
    if (scenario.child.process < 0) scenario.child = Start_Child({scenario.program});
    std::vector<std::string> answer;
    const bool answered = Ask(scenario.child, command, answer);
    if (!answered) Report(scenario, at, "> " + command + "\n  the program is gone");
    if (answered && !Matches(expected, answer)) {
        Report(scenario, at, "> " + command + "\n" + Difference(expected, answer));
    }
    if (!answered || command == "quit") End_Program(scenario);
}

void Do_Command(Scenario& scenario, int at, const std::string& command,
                std::vector<std::string> expected) {
    const bool tells_end = std::any_of(
        expected.begin(), expected.end(),
        [](const std::string& line) { return line == "ok" || line.starts_with("error "); });
    if (!tells_end) expected.emplace_back("ok");
    scenario.command = command;
    scenario.expected = std::move(expected);
    Give_Command(scenario, at);
}

void Do_File_Step(Scenario& scenario, int at, const std::string& step) {
    if (step == "restart") return End_Program(scenario);
    std::istringstream stream(step);
    std::vector<std::string> words;
    for (std::string word; std::getline(stream, word, ' ');)
        words.push_back(word);
    if (words[0] == "again" && words.size() == 2) {
        for (int times = std::atoi(words[1].c_str()); times > 0; --times)
            Give_Command(scenario, at);
        return;
    }
    const std::string problem = Do_Step(words, scenario.make_world);
    if (!problem.empty()) Report(scenario, at, "! " + step + ": " + problem);
}

void Run(Scenario& scenario, std::istream& stream) {
    std::string line;
    bool more = Next_Line(scenario, stream, line);
    while (more) {
        const int at = scenario.line_number;
        const std::string first = line;
        std::vector<std::string> others;
        while ((more = Next_Line(scenario, stream, line)) && !line.starts_with("> ") &&
               !line.starts_with("! ")) {
            others.push_back(line);
        }
        const bool says_nothing = others == std::vector<std::string>(others.size());
        if (first.starts_with("> ")) {
            Do_Command(scenario, at, first.substr(2), others);
        } else if (first.starts_with("! ") && says_nothing) {
            Do_File_Step(scenario, at, first.substr(2));
        } else if (!first.empty() || !says_nothing) {
            Report(scenario, at, "lines that belong to no command");
        }
    }
    End_Program(scenario);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "run_scenario SKERRAND_HEADLESS MAKE_WORLD FILE.scenario\n";
        return 2;
    }
    Scenario scenario{.program = fs::absolute(argv[1]).string(),
                      .make_world = fs::absolute(argv[2]).string(),
                      .file = argv[3]};
    std::ifstream stream(scenario.file);
    std::string pattern = (fs::temp_directory_path() / "skerrand_XXXXXX").string();
    if (!stream || mkdtemp(pattern.data()) == nullptr) {
        std::perror(stream ? pattern.c_str() : scenario.file.c_str());
        return 2;
    }
    scenario.scratch = fs::canonical(pattern);
    fs::create_directory(scenario.scratch / "work");
    fs::current_path(scenario.scratch / "work");
    Run(scenario, stream);
    fs::current_path("/");
    fs::remove_all(scenario.scratch);
    return scenario.failures == 0 ? 0 : 1;
}
