// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/values/failure.h"

#include <cerrno>
#include <system_error>

namespace sys {

/// The failure of `kind` that tells what was attempted and the system's reason, by default that of the last call.
inline values::RuntimeFailure refusal(values::FailureKind kind, const QString& attempt, int reason = errno)
{
    const std::string words = std::generic_category().message(reason);
    return values::RuntimeFailure(kind, attempt + QStringLiteral(": ") + QString::fromLocal8Bit(words.c_str()));
}

} // namespace sys
