// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QSize>

class QLayout;

namespace forms {

/// Where a label stands in the type scale.
enum class TextRole { Title, Heading, Instruction, Body, Hint };

} // namespace forms

/// A light look, the same whatever the desktop's theme: colours, type scale, one grid. All sizes come from the font.
namespace forms::look {

/// The colours of a program.
struct Colours {
    QColor ground;
    QColor text;
    QColor quiet; ///< hints and footers
    QColor accent; ///< headings, focus, selection
    QColor field;
    QColor line; ///< frames, handles of scroll bars
    QColor faded; ///< frames of what is disabled
    QColor buttonFace;
    QColor pressed;
    QColor error;
    QColor warning; ///< signs of message boxes
    QColor danger;
    QColor link; ///< letters that stand out from those of other boxes
};

/// What a program gives to its look at the start.
struct Theme {
    Colours colours;
    QString icons; ///< the folder of its resources with the pictures of buttons
};

void setTheme(const Theme& theme);
const Colours& colours();

/// A picture of a button by its name, "plus".
QIcon buttonIcon(const QString& name);

/// The least size of the body font, in points: hints have 10 then.
inline constexpr double LeastPoints = 11;

/// The font of a step of the type scale, in proportion to the desktop's own font.
QFont fontOf(TextRole role);

/// Multiples of the grid, which is half the height of the body font.
int grid(int steps);

/// The width of a field of so many average characters, the same for boxes of all kinds, so that fields align.
int fieldWidth(int characters);

/// A picture of the resources in all sizes in which it is there: "x.png", "x@2x.png" and so on. It stays sharp whatever
/// size it is shown in.
QIcon icon(const QString& resource);

/// How much larger than in their files pictures are shown: they grow with the font.
double pictureScale();

/// How far the entry of a box stands from the box's edge, and the text in a box of any kind.
int entryInset();
int textInset();

/// What an entry of one line keeps free beside its text, in pixels.
inline constexpr int entryTextMargin = 3;

/// The gap between two rows of fields.
int rowGap();

/// The height of so many rows of fields, with the gaps between them.
int rowsHeight(int rows);

/// The least size of a screen's window, one for all, so that the window doesn't jump from screen to screen.
QSize leastWindow();

/// Halves the gaps of a layout, where the desktop has no room for them.
void tighten(QLayout& layout);

/// The name of the property of a layout of two parts, side by side, that may stand below each other.
inline constexpr char pairProperty[] = "pair";

/// Puts the second part of the last such pair below the first, in a layout and those within. False where no pair is
/// left.
bool stackLastPair(QLayout& layout);

} // namespace forms::look
