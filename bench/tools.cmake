# SPDX-License-Identifier: GPL-3.0-or-later
add_executable(bench_tools main.cpp tools_bench.cpp sample_database.cpp)
target_compile_definitions(bench_tools PRIVATE KESTRILL_SHIPPED_DATABASE="${CMAKE_BINARY_DIR}/data/KTL.db")
target_link_libraries(bench_tools PRIVATE kestrill_tools SQLCipher::SQLCipher benchmark::benchmark)
add_dependencies(bench_tools shipped_database)
