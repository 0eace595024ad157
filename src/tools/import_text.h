// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace importing {

/// How the bytes of a file make a text.
enum class Encoding { Utf8, Utf16, Windows1252 };

QString nameOf(Encoding encoding);

/// The largest file that is read: many times what the largest household needs.
inline constexpr qint64 LargestFile = qint64{128} << 20;

/// The bytes of a file. Nothing but a regular one is opened, and none that is larger. Failures: Refusal.
std::string bytesOfFile(const QString& path);

/// A text as UTF-8, without a mark of the byte order, and what it was before.
struct Text {
    std::string utf8;
    Encoding encoding = Encoding::Utf8;
};

/// Refuses (Refusal) the files of other programs from which a list has to be saved as CSV.
void refuseOtherPrograms(std::string_view bytes, const QString& path);

/// What follows the mark of UTF-8, where there is one.
std::string_view withoutMark(std::string_view bytes);

/// Makes text of bytes. Failures: Refusal, where they are none, as those of a picture, or are damaged.
Text textOf(std::string_view bytes, const QString& path);

/// Whether bytes are UTF-8 throughout.
bool isUtf8(std::string_view bytes);

} // namespace importing
