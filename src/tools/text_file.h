// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string>
#include <string_view>

/// A new file that its user alone can read, written in large pieces. What the system refuses is a failure (File).
class TextFile {
public:
    explicit TextFile(const QString& path);
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;
    ~TextFile();

    void write(std::string_view bytes);

    /// The file is on the disk when the call returns.
    void finish();

private:
    void flush();
    [[noreturn]] void refuse() const;

    QString path_;
    int file_;
    std::string pending_;
};
