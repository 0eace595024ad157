// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <exception>
#include <string>

namespace values {

/// What kind of run-time failure it is. The kind gives the failure its first words.
enum class FailureKind {
    TypeMismatch, ///< a text or value that can't be read as what is wanted
    Overflow, ///< a number that doesn't fit its type
    InvalidCall, ///< an argument or state in which an operation has no meaning
    NoCurrentRecord, ///< a row is wanted and a view stands on none
    Database, ///< the database refused an operation
    File, ///< a file or folder operation was refused
    System, ///< the operating system refused anything else
};

/// A failure of an operation at run time. A handler with a failure path of its own catches it; anywhere else it ends
/// the program with the run-time report.
class RuntimeFailure : public std::exception {
public:
    /// `detail` tells what failed, for the report: a value, a column, a path and the reason.
    explicit RuntimeFailure(FailureKind kind, const QString& detail = {});

    FailureKind kind() const { return kind_; }

    /// The words of the kind, then the detail: "Type mismatch: \"abc\" is not an amount of money".
    const QString& text() const { return text_; }

    /// The same text as UTF-8.
    const char* what() const noexcept override { return utf8_.c_str(); }

private:
    FailureKind kind_;
    QString text_;
    std::string utf8_;
};

/// The type mismatch of a text that doesn't read as what is `wanted`: `mismatch(text, "an amount of money")`.
RuntimeFailure mismatch(const QString& text, const QString& wanted);

} // namespace values
