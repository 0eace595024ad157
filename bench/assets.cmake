# SPDX-License-Identifier: GPL-3.0-or-later
add_executable(bench_assets main.cpp assets_bench.cpp sample_database.cpp)
target_compile_definitions(bench_assets PRIVATE KESTRILL_SHIPPED_DATABASE="${CMAKE_BINARY_DIR}/data/KTL.db")
target_link_libraries(bench_assets PRIVATE kestrill_screens benchmark::benchmark)
add_dependencies(bench_assets shipped_database)
