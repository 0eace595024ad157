# SPDX-License-Identifier: GPL-3.0-or-later
add_executable(bench_tools main.cpp tools_bench.cpp sample_database.cpp)
target_link_libraries(bench_tools PRIVATE kestrill_tools SQLCipher::SQLCipher benchmark::benchmark)
