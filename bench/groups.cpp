#include "bench/groups.h"

#include <cstdlib>
#include <iostream>

namespace bench {

void Give_Up(const std::string& message) {
    std::cerr << "bench: " << message << std::endl;
    std::_Exit(1);
}

void Run_Group(const char* name, Results& results) {
    std::cout << name << " ..." << std::endl;
    benchmark::RunSpecifiedBenchmarks(&results, std::string("^") + name + "/");
    if (!results.Error().empty()) Give_Up(results.Error());
}

void Take_Options(std::vector<std::string>& arguments) {
    // The library keeps pointers to what it is given.
    static std::vector<std::string> options = {
        "bench", "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.05"};
    std::vector<std::string> others;
    for (const std::string& argument : arguments) {
        (argument.starts_with("--") ? options : others).push_back(argument);
    }
    arguments = others;
    static std::vector<char*> pointers;
    for (std::string& option : options)
        pointers.push_back(option.data());
    int count = static_cast<int>(pointers.size());
    pointers.push_back(nullptr);
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) std::_Exit(2);
}

}  // namespace bench
