# SPDX-License-Identifier: GPL-3.0-or-later
add_executable(bench_report main.cpp report_bench.cpp sample_database.cpp)
target_link_libraries(bench_report PRIVATE kestrill_screens benchmark::benchmark)
