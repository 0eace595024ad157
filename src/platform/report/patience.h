// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

class QProgressDialog;
class QWidget;

namespace report {

/// How long a window stays away that tells of a run or a wait, in milliseconds.
inline constexpr int patienceMilliseconds = 500;

/// What a wait tells the user, and when it ends by itself, in seconds; never where that is 0.
struct Wait {
    QString words;
    int seconds = 0;
};

/// How a wait has ended: with a number, by the user, or by the time.
struct Answer {
    enum class Kind { There, GivenUp, TooLate };

    Kind kind;
    int number = 0;
};

/// Has a call that may never return run on a thread of its own. Once it takes longer than a moment a window tells so,
/// with a button to go on without it. A call that isn't waited for any more is left to itself, so it must own all that
/// it uses.
Answer answerOf(std::function<int()> call, const Wait& wait, QWidget* window);

/// A dialogue with the words of a run or a wait and a button to cancel it, under the window's own title, which it has
/// room for. It belongs to the window, and no other window of the program takes input while it is shown.
QProgressDialog* makeProgressDialog(const QString& words, int steps, QWidget* window);

} // namespace report
