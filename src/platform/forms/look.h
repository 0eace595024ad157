// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/displays.h"

#include <QColor>
#include <QFont>

#include <initializer_list>

class QApplication;
class QGridLayout;
class QLayout;
class QVBoxLayout;

/// The program's own light look, the same whatever the desktop's theme: colours, type scale, one grid. All sizes come
/// from the font.
namespace forms {
class CommandButton;
}

namespace forms::look {

/// The colours of the program.
struct Colours {
    QColor ground{248, 226, 211};
    QColor text{43, 38, 34};
    QColor quiet{108, 92, 82}; ///< hints and footers
    QColor accent{38, 84, 94}; ///< headings, focus, selection
    QColor field{255, 255, 255};
    QColor line{190, 164, 146}; ///< frames
    QColor buttonFace{251, 247, 244};
    QColor pressed{204, 210, 255};
    QColor error{255, 192, 192};
};

const Colours& colours();

/// The font of a step of the type scale, in proportion to the desktop's own font.
QFont fontOf(TextRole role);

/// Multiples of the grid, which is half the height of the body font.
int grid(int steps);

/// The width of a field of so many average characters, the same for boxes of all kinds, so that fields align.
int fieldWidth(int characters);

/// Puts style, palette and font in place.
void apply(QApplication& application);

/// The frame of a screen: margins, a column from top to bottom, and a footer at the foot.
class Page {
public:
    explicit Page(Form& form);

    /// A title line, centred.
    void title(Label& label);

    /// A line that tells the user what to do next.
    void instruction(Label& label);

    /// Any other layout, or a control, in the column; `stretch` as in box layouts.
    void add(QLayout* layout, int stretch = 0);
    void add(Control& control);
    void space(int steps);

    /// A row of buttons of equal width, centred.
    void buttons(std::initializer_list<CommandButton*> row);

    /// The foot: the help hint on the left, the footer line on the right. Either may be null.
    void foot(Label* helpHint, Label* footer);

    QVBoxLayout* column() const { return column_; }

private:
    QVBoxLayout* column_;
};

/// Rows of a label and one or more controls beside it. Labels stand in one column and name the first control of their
/// row.
class FieldRows {
public:
    FieldRows();

    /// A row; the controls stand side by side from the left.
    void row(Label& label, std::initializer_list<Control*> controls);

    QGridLayout* layout() const { return grid_; }

private:
    QGridLayout* grid_;
};

/// Whether the mouse gives a button the pressed colour and takes it away again.
enum class PressedLook { Shown, None };

/// A line of a screen's table of buttons.
struct ButtonLook {
    CommandButton& button;
    int tabIndex;
    const char* caption;
    const char* toolTip;
    const char* icon; ///< a picture of the resource folder of icons, by its name without ending
    PressedLook pressed = PressedLook::Shown;
};

/// Gives each button what its line says, and all of them the help number unless it is 0.
void dress(std::initializer_list<ButtonLook> buttons, int helpNumber = 0);

/// A line of a screen's table of entries, options and pictures.
struct FieldLook {
    Control& control;
    int tabIndex; ///< negative: the Tab key does not stop here
    const char* toolTip;
    int maxLength = 0; ///< of a box: the most characters that the user can get in; 0 sets no limit
};

/// Gives each control what its line says, and all of them the help number unless it is 0.
void dress(std::initializer_list<FieldLook> fields, int helpNumber = 0);

/// Makes buttons as wide as the widest of them.
void equalWidths(std::initializer_list<CommandButton*> buttons);

/// Controls side by side, from the left.
QLayout* sideBySide(std::initializer_list<Control*> controls);

} // namespace forms::look
