// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cerrno>
#include <system_error>

/// The system's reason for a refusal, in words for a user.
inline QString system_Words(int reason)
{
    if (reason == ENOSPC)
        return QStringLiteral("the disk is full");
    return QString::fromStdString(std::generic_category().message(reason));
}
