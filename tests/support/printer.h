// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/pdf_text.h"

#include <QStringList>

#include <optional>
#include <vector>

/// The print service of this process, in place of the system's: it has one queue and keeps what it is handed.
namespace printer {

struct Job {
    QString queue, title;
    std::vector<pdf::Page> pages;
    QStringList options; ///< other than those of most jobs
};

/// What was handed over last; asking takes it away.
std::optional<Job> job();

enum class State { Ready, Missing, Refusing };
void be(State state);

/// Keeps the service silent until it is to answer. As soon as the user is told to wait, he has enough of it and gives
/// up, or it answers.
enum class User { GivesUp, Waits };
void hang(User user);
void answer();

/// What the user was told to wait for since the last question.
QStringList waits();

} // namespace printer
