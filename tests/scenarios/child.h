#pragma once

#include <cstdio>
#include <string>
#include <sys/types.h>
#include <vector>

/// A program that is talked to through its standard input and output.
struct Child {
    pid_t process = -1;
    FILE* to = nullptr;
    FILE* from = nullptr;
};

/// Starts a program in this process's working folder. The first word is its path.
Child Start_Child(const std::vector<std::string>& words);

/// Sends a line and reads the answer up to its last line. False if the program is gone before that.
bool Ask(Child& child, const std::string& line, std::vector<std::string>& answer);

/// Ends the program's input, waits for it, and gives its exit status; -1 if a signal ended it.
int Finish(Child& child);
