#include "bench/chart_bench.h"
#include "bench/measure.h"
#include "bench/world_bench.h"
#include "platform/headless/program.h"

// skerrand_bench [WORLD] [--benchmark_...]: measures the scenery of that folder and what is made of
// it; or, without one, the chart, with databases in the working folder.

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (argc > 1) {
        bench::Add_World_Benchmarks(argv[1]);
    } else {
        platform::headless::Begin(bench::Show_Chart);
        bench::Add_Chart_Benchmarks();
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
