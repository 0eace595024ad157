# SPDX-License-Identifier: GPL-3.0-or-later
# The static archive, its symbols kept inside the executable: libsqlcipher exports the names of libsqlite3, which other
# libraries load into the same process, and the shared library would take over their calls.
find_library(SQLCIPHER_ARCHIVE NAMES libsqlcipher.a)
find_path(SQLCIPHER_INCLUDE_DIR sqlcipher/sqlite3.h)
find_package(OpenSSL REQUIRED COMPONENTS Crypto)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(SQLCipher REQUIRED_VARS SQLCIPHER_ARCHIVE SQLCIPHER_INCLUDE_DIR)

if(SQLCipher_FOUND AND NOT TARGET SQLCipher::SQLCipher)
  add_library(SQLCipher::SQLCipher STATIC IMPORTED)
  set_target_properties(SQLCipher::SQLCipher PROPERTIES
    IMPORTED_LOCATION ${SQLCIPHER_ARCHIVE}
    INTERFACE_INCLUDE_DIRECTORIES ${SQLCIPHER_INCLUDE_DIR}
    INTERFACE_COMPILE_DEFINITIONS SQLITE_HAS_CODEC
    INTERFACE_LINK_LIBRARIES "OpenSSL::Crypto;dl;pthread"
    INTERFACE_LINK_OPTIONS "LINKER:--exclude-libs,ALL")
endif()
