# SPDX-License-Identifier: GPL-3.0-or-later
add_executable(bench_help main.cpp help_bench.cpp)
target_link_libraries(bench_help PRIVATE kestrill_screens kestrill_help benchmark::benchmark)
