// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/looks/theme.h"

/// The colours of the program and the pictures of its buttons.
inline forms::look::Theme programTheme()
{
    forms::look::Colours colours;
    colours.ground = {248, 226, 211};
    colours.text = {43, 38, 34};
    colours.quiet = {108, 92, 82};
    colours.accent = {38, 84, 94};
    colours.field = {255, 255, 255};
    colours.line = {142, 114, 96};
    colours.faded = {190, 164, 146};
    colours.buttonFace = {251, 247, 244};
    colours.pressed = {204, 210, 255};
    colours.error = {255, 192, 192};
    colours.warning = {176, 98, 6};
    colours.danger = {178, 48, 40};
    colours.link = {0, 0, 255};
    return {colours, QStringLiteral(":/pictures/icons")};
}
