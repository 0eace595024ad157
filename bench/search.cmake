# SPDX-License-Identifier: GPL-3.0-or-later
add_executable(bench_search search_bench.cpp sample_database.cpp)
target_link_libraries(bench_search PRIVATE kestrill_screens SQLCipher::SQLCipher benchmark::benchmark)
