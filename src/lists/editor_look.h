// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/look.h"

/// How the three editors of a list look alike.
namespace editing {

inline constexpr int FieldWidth = 40; // characters

/// What each of them has.
struct EditorParts {
    forms::Form& editor;
    forms::Label& heading;
    forms::CommandButton& cmdUpdate;
    forms::CommandButton& cmdCancel;
    forms::Label& lblSelIn;
    forms::Label& lblCopyright;
};

/// Gives title, footer and the two buttons what they say, and the buttons their places in the order of the Tab key.
void lookOf(const EditorParts& parts, const forms::look::ButtonLook& update);

/// The fields between heading and buttons; where one field is enough, with what the user is to do first and second.
void layOut(const EditorParts& parts, const forms::look::FieldRows& rows);
void layOut(
    const EditorParts& parts, forms::Label& first, forms::Label& choice, forms::Control& field, forms::Label& second);

} // namespace editing
