// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The engine's own header, for the source files of this folder alone. SQLITE_HAS_CODEC, which brings its keys, comes
// from the build.
#include <sqlcipher/sqlite3.h>
