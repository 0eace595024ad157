// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace forms {

/// Flags of a message box: one icon, plus YesNo for a question with two buttons. The first button is the default.
namespace box {
inline constexpr int Stop = 16;
inline constexpr int Question = 32;
inline constexpr int Exclamation = 48;
inline constexpr int Information = 64;
inline constexpr int YesNo = 4;
} // namespace box

enum class Answer { OK, Yes, No };

/// What a message box says.
struct Message {
    QString text;
    int flags = 0;
    QString title;
};

/// Shows a message box in front of the active screen and returns the user's answer. Esc and the close box answer No, or
/// OK where there is no No.
Answer MsgBox(const QString& text, int flags, const QString& title);

/// Takes the place of the box on the screen, for tests. An empty function gives the box back.
void setMessageHandler(std::function<Answer(const Message&)> handler);

} // namespace forms
