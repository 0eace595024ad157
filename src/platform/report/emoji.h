// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <vector>

namespace report {

/// A part of a text.
struct Span {
    qsizetype start;
    qsizetype length;
};

/// What is presented as an emoji, each with all that belongs to it: a skin tone, what joins it to others, its tags. So
/// are the two letters of a flag and a digit in a key cap, and no character that is followed by the selector of a text.
std::vector<Span> emojiIn(QStringView text);

/// True when there is any; soon told where there is none.
bool hasEmoji(QStringView text);

} // namespace report
