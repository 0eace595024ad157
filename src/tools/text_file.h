// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>

#include <string>
#include <string_view>

/// A new file that its user alone can read, written in large pieces. What the system refuses is a failure (File).
class TextFile {
public:
    explicit TextFile(const QString& path);

    void write(std::string_view bytes);

    /// The file is on the disk when the call returns.
    void finish();

private:
    void flush();
    [[noreturn]] void refuse(const QString& reason) const;

    QFile file_;
    std::string pending_;
};
