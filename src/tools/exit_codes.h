// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <exception>
#include <string>

/// How a command ends. The man pages tell them.
namespace exit_code {
inline constexpr int Done = 0;
inline constexpr int Odd = 1; ///< the check has found entries to look at; all can be read
inline constexpr int Usage = 2; ///< arguments that the command doesn't take
inline constexpr int Unreadable = 3; ///< a file that is missing, damaged, foreign or of another layout
inline constexpr int InUse = 4; ///< the program runs, or another restore
inline constexpr int Failed = 5; ///< refused by the system: no room, no rights; whatever nobody has thought of
inline constexpr int Declined = 6; ///< not confirmed, or cancelled
inline constexpr int Stopping = 7; ///< the check has found entries that end the program; all can be read
// 8 is NoDisplay, of a window, as at the program itself.
} // namespace exit_code

/// Ends what a command does, with its exit code and the words for its user.
class Refusal : public std::exception {
public:
    Refusal(int code, const QString& words)
        : code_(code)
        , words_(words)
        , utf8_(words.toStdString())
    {
    }

    int code() const { return code_; }
    const QString& words() const { return words_; }
    const char* what() const noexcept override { return utf8_.c_str(); }

private:
    int code_;
    QString words_;
    std::string utf8_;
};
