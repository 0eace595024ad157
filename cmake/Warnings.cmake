# SPDX-License-Identifier: GPL-3.0-or-later
# What every target of the project is compiled with.
add_library(kestrill_options INTERFACE)
target_include_directories(kestrill_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(kestrill_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
target_compile_definitions(kestrill_options INTERFACE QT_NO_KEYWORDS QT_NO_FOREACH)
# Hardening of what users run: checked stacks, jumps and copies, and no table of calls that could be overwritten.
target_compile_options(kestrill_options INTERFACE
  "$<$<NOT:$<CONFIG:Debug>>:-fstack-protector-strong;-fstack-clash-protection;-fcf-protection;-D_FORTIFY_SOURCE=2>")
target_link_options(kestrill_options INTERFACE "$<$<NOT:$<CONFIG:Debug>>:LINKER:-z,relro,-z,now>")
if(KESTRILL_WERROR)
  target_compile_options(kestrill_options INTERFACE -Werror)
endif()
if(KESTRILL_SANITIZE)
  target_compile_options(kestrill_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                    -fno-omit-frame-pointer)
  target_link_options(kestrill_options INTERFACE -fsanitize=address,undefined)
endif()
