#include "tests/scenarios/child.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

[[noreturn]] void Become(const std::vector<std::string>& words, int input, int output) {
    dup2(input, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    std::vector<char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    std::perror(arguments[0]);
    std::_Exit(127);
}

bool Read_Line(FILE* file, std::string& line) {
    line.clear();
    int c = 0;
    while ((c = std::fgetc(file)) != EOF && c != '\n')
        line.push_back(static_cast<char>(c));
    return c == '\n';
}

}  // namespace

Child Start_Child(const std::vector<std::string>& words) {
    std::signal(SIGPIPE, SIG_IGN);
    int input[2] = {-1, -1};
    int output[2] = {-1, -1};
    if (pipe2(input, O_CLOEXEC) != 0 || pipe2(output, O_CLOEXEC) != 0) return {};
    Child child;
    child.process = fork();
    if (child.process == 0) Become(words, input[0], output[1]);
    close(input[0]);
    close(output[1]);
    child.to = fdopen(input[1], "w");
    child.from = fdopen(output[0], "r");
    return child;
}

bool Ask(Child& child, const std::string& line, std::vector<std::string>& answer) {
    std::fprintf(child.to, "%s\n", line.c_str());
    std::fflush(child.to);
    std::string got;
    while (Read_Line(child.from, got)) {
        answer.push_back(got);
        if (got == "ok" || got.starts_with("error ")) return true;
    }
    return false;
}

int Finish(Child& child) {
    std::fclose(child.to);
    std::fclose(child.from);
    int status = 0;
    waitpid(child.process, &status, 0);
    child = {};
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
