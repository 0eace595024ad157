// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string_view>

namespace values {

/// The text in upper case: all of Unicode, by the same rules under every locale ("i" becomes "I" in Turkish too), where
/// a character has no single capital by its capitals ("ß" becomes "SS").
QString upper(const QString& text);

/// The same of a text of ASCII characters, into as many bytes at `upper`. False where others are among them; what
/// stands at `upper` then means nothing. Without a branch at a letter, which can't be foretold.
bool upperAscii(std::string_view text, char* upper);

/// True where `upper(a) == upper(b)`, without making the two where the texts are ASCII.
bool equalUpper(const QString& a, const QString& b);

} // namespace values
