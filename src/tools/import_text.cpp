// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/import_text.h"

#include "platform/system/paths.h"
#include "platform/values/csv.h"
#include "platform/values/file_name.h"
#include "tools/exit_codes.h"
#include "tools/system_words.h"

#include <QStringDecoder>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using values::csv::ByteOrderMark;

namespace importing {

namespace {

[[noreturn]] void refuse(const QString& words)
{
    throw Refusal(exit_code::Unreadable, words);
}

[[noreturn]] void refuseBySystem(const QString& path)
{
    refuse(QStringLiteral("%1 can't be read: %2.").arg(path, system_Words(errno)));
}

struct Descriptor {
    int number;
    explicit Descriptor(int opened)
        : number(opened)
    {
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { ::close(number); }
};

// What is no file is not even opened: a pipe or a device may answer to that.
void refuseOthers(const QString& path)
{
    const sys::Kind kind = sys::kindOf(path);
    if (kind == sys::Kind::Nothing)
        refuse(QStringLiteral("%1 does not exist.").arg(path));
    if (kind != sys::Kind::File)
        refuse(QStringLiteral("%1 is no regular file.").arg(path));
}

void refuseUnfit(const struct ::stat& found, const QString& path)
{
    if (!S_ISREG(found.st_mode))
        refuse(QStringLiteral("%1 is no regular file.").arg(path));
    if (found.st_size == 0)
        refuse(QStringLiteral("%1 is empty.").arg(path));
    if (found.st_size > LargestFile)
        refuse(QStringLiteral("%1 is larger than %2 MB. No list of a household is.").arg(path).arg(LargestFile >> 20));
}

// Bytes 0x80 to 0x9F. Five are no character.
constexpr char16_t windows1252[] = {0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0, 0x017D, 0, 0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161,
    0x203A, 0x0153, 0, 0x017E, 0x0178};

[[noreturn]] void refuseNoText(const QString& path)
{
    refuse(QStringLiteral("%1 holds no text: it is a picture, a program or damaged.").arg(path));
}

std::string fromWindows1252(std::string_view bytes, const QString& path)
{
    std::string utf8;
    utf8.reserve(bytes.size() + bytes.size() / 8);
    const auto add = [&utf8](char16_t unit) {
        if (unit >= 0x800) {
            utf8 += static_cast<char>(0xE0 | (unit >> 12));
            utf8 += static_cast<char>(0x80 | ((unit >> 6) & 0x3F));
        } else {
            utf8 += static_cast<char>(0xC0 | (unit >> 6));
        }
        utf8 += static_cast<char>(0x80 | (unit & 0x3F));
    };
    for (const char byte : bytes) {
        const auto number = static_cast<unsigned char>(byte);
        if (number < 0x80) {
            utf8 += byte;
            continue;
        }
        const char16_t unit = number < 0xA0 ? windows1252[number - 0x80] : number;
        if (unit == 0)
            refuseNoText(path);
        add(unit);
    }
    return utf8;
}

std::string fromUtf16(std::string_view bytes, QStringConverter::Encoding encoding, const QString& path)
{
    QStringDecoder decoder(encoding);
    const QString text = decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    if (decoder.hasError() || bytes.size() % 2 != 0)
        refuseNoText(path);
    return text.toStdString();
}

// Without a mark, every second byte of most texts is zero.
QStringConverter::Encoding utf16Of(std::string_view bytes)
{
    const std::string_view first = bytes.substr(0, 4096);
    std::size_t zeros[] = {0, 0};
    for (std::size_t i = 0; i < first.size(); ++i)
        zeros[i % 2] += first[i] == '\0' ? 1 : 0;
    if (zeros[1] > first.size() / 4 && zeros[0] < first.size() / 40 + 1)
        return QStringConverter::Utf16LE;
    if (zeros[0] > first.size() / 4 && zeros[1] < first.size() / 40 + 1)
        return QStringConverter::Utf16BE;
    return QStringConverter::Utf8;
}

// The length of the character in UTF-8 that begins there; 0 where none does.
std::size_t lengthAt(std::string_view bytes, std::size_t at)
{
    const auto lead = static_cast<unsigned char>(bytes[at]);
    if (lead < 0x80)
        return 1;
    const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    return isUtf8(bytes.substr(at, length)) ? length : 0;
}

// A text in UTF-8 with some bytes that are none must not be taken for Windows-1252: every letter with an accent would
// become two others.
void refuseDamagedUtf8(std::string_view bytes, const QString& path)
{
    int whole = 0, broken = 0;
    qint64 line = 1, firstBroken = 0;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t length = lengthAt(bytes, at);
        whole += length > 1 ? 1 : 0;
        if (length == 0 && broken++ == 0)
            firstBroken = line;
        line += bytes[at] == '\n' ? 1 : 0;
        at += std::max<std::size_t>(length, 1);
    }
    if (broken > 0 && (whole >= broken || bytes.starts_with(ByteOrderMark)))
        refuse(
            QStringLiteral("%1 is UTF-8 but for line %2, where it is damaged. Mend that line, or save the list anew.")
                .arg(path)
                .arg(firstBroken));
}

// A byte or two may have got into a text that is one.
void refuseNoise(std::string_view utf8, const QString& path)
{
    const auto isControl = [](char byte) {
        return static_cast<unsigned char>(byte) < ' '
            && std::string_view("\t\r\n\v\f").find(byte) == std::string_view::npos;
    };
    const auto controls = static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), isControl));
    if (utf8.find('\0') != std::string_view::npos || controls * 50 > utf8.size())
        refuseNoText(path);
}

} // namespace

QString nameOf(Encoding encoding)
{
    switch (encoding) {
    case Encoding::Utf8:
        return QStringLiteral("UTF-8");
    case Encoding::Utf16:
        return QStringLiteral("UTF-16");
    case Encoding::Windows1252:
        break;
    }
    return QStringLiteral("Windows-1252");
}

std::string_view withoutMark(std::string_view bytes)
{
    return bytes.substr(bytes.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0);
}

void refuseOtherPrograms(std::string_view bytes, const QString& path)
{
    const auto begins = [&bytes](const char* beginning) { return bytes.starts_with(beginning); };
    if (begins("PK\x03\x04") || begins("\xD0\xCF\x11\xE0"))
        refuse(QStringLiteral("%1 is a spreadsheet program's own file. Open it there, save the sheet as CSV, and "
                              "give that file.")
                   .arg(path));
    if (begins("%PDF") || begins("{\\rtf") || begins("<?xml") || begins("<html") || begins("<!DOCTYPE"))
        refuse(QStringLiteral("%1 is a document or a web page. Copy its table into a spreadsheet program, save the "
                              "sheet as CSV, and give that file.")
                   .arg(path));
}

std::string bytesOfFile(const QString& path)
{
    refuseOthers(path);
    const Descriptor file(::open(values::bytesOfName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    struct ::stat found { };
    if (file.number < 0 || ::fstat(file.number, &found) != 0)
        refuseBySystem(path);
    refuseUnfit(found, path);
    std::string bytes(static_cast<std::size_t>(found.st_size), '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t got = TEMP_FAILURE_RETRY(::read(file.number, bytes.data() + filled, bytes.size() - filled));
        if (got < 0)
            refuseBySystem(path);
        if (got == 0)
            break;
        filled += static_cast<std::size_t>(got);
    }
    bytes.resize(filled);
    return bytes;
}

Text textOf(std::string_view bytes, const QString& path)
{
    Text text;
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
        const bool isLittle = bytes.starts_with('\xFF');
        text = {fromUtf16(bytes.substr(2), isLittle ? QStringConverter::Utf16LE : QStringConverter::Utf16BE, path),
            Encoding::Utf16};
    } else if (const auto utf16 = utf16Of(bytes); utf16 != QStringConverter::Utf8) {
        text = {fromUtf16(bytes, utf16, path), Encoding::Utf16};
    } else if (isUtf8(bytes)) {
        text = {std::string(withoutMark(bytes)), Encoding::Utf8};
    } else {
        refuseDamagedUtf8(bytes, path);
        text = {fromWindows1252(bytes, path), Encoding::Windows1252};
    }
    refuseNoise(text.utf8, path);
    return text;
}

bool isUtf8(std::string_view bytes)
{
    return QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())).isValidUtf8();
}

} // namespace importing
