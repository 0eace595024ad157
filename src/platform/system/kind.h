// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sys {

/// What an entry of a folder can be.
enum class Kind {
    Nothing,
    File, ///< a regular one
    Folder,
    Link,
    Other, ///< a pipe, a device, a socket
};

} // namespace sys
