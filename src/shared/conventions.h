// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"

#include <QString>

#include <functional>
#include <initializer_list>

/// What all screens of Kestrill share.
namespace conventions {

inline const QString Title = QStringLiteral(" Kestrill by Brindlewick Software");
inline const QString HelpHint = QStringLiteral("Press F1 For Help");
inline const QString Footer = QStringLiteral("Kestrill by Brindlewick Software");

/// A message box with the product's title.
forms::Answer MsgBox(const QString& text, int flags);

/// Asks a Yes/No question; true for Yes.
bool confirmed(const QString& question, int flags);

/// What closing a top-level screen does, by its close box or its Exit button: asks, and on Yes runs `saveFirst`, shows
/// frmProgress, which runs the closing sequence, and hides the screen. The screen itself always stays loaded.
void confirm_Close(forms::Form& form, const std::function<void()>& saveFirst = {});

/// What an entry left empty is stored as.
inline const QString None = QStringLiteral("None");

/// A text as an entry stores it, and a stored one as an entry shows it.
QString orNone(const QString& text);
QString withoutNone(const QString& stored);

/// Gives many controls one help number.
void setHelpNumbers(int number, std::initializer_list<forms::Control*> controls);

/// The order in which the Tab key goes through the controls, from the first one on.
void setTabOrder(std::initializer_list<forms::Control*> controls);

/// The colour of a field in error, and the normal one again.
void showError(forms::Control& field);
void showNormal(forms::Control& field);

} // namespace conventions
