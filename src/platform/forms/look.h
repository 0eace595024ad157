// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/controls/displays.h"
#include "platform/forms/looks/theme.h"

#include <QGridLayout>

#include <initializer_list>

class QAbstractButton;
class QBoxLayout;
class QLayout;
class QVBoxLayout;

namespace forms {
class CommandButton;
class OptionButton;
} // namespace forms

/// The pieces that screens are laid out with.
namespace forms::look {

/// Whether a window has the least size of all screens or its own.
enum class PageSize { Screen, Own };

/// The frame of a screen: margins, a column from top to bottom in the middle, as wide as its widest part, and a footer
/// at the foot. Room that is left stands above and below the column's parts.
class Page {
public:
    explicit Page(Form& form, PageSize size = PageSize::Screen);

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

    /// The same across the whole column.
    void wideButtons(std::initializer_list<CommandButton*> row);

    /// The foot: the help hint on the left, the footer line on the right. Either may be null.
    void foot(Label* helpHint, Label* footer);

    QVBoxLayout* column() const { return column_; }

private:
    QVBoxLayout* page_;
    QVBoxLayout* column_;
};

/// Rows of a label and one or more controls beside it. Labels stand in one column and name the first control of their
/// row.
class FieldRows {
public:
    FieldRows();

    /// A row; the controls stand side by side from the left.
    void row(Label& label, std::initializer_list<Control*> controls);

    /// A row whose controls go to the right edge: a box without a width of its own takes what the others leave.
    void wideRow(Label& label, std::initializer_list<Control*> controls);

    /// Buttons of equal width across the boxes, words across the whole row, and a heading above the boxes.
    void buttons(std::initializer_list<CommandButton*> row);
    void words(Label& label);
    void heading(Label& label);

    /// A control that stands at the edge of the boxes without a label beside it.
    void below(Control& control);

    /// How wide the boxes are together, in characters, where the desktop has room for them.
    void setWidthInCharacters(int characters);

    /// Half a row of room before the next one.
    void gap();

    QGridLayout* layout() const { return grid_; }

private:
    void add(Label& label, std::initializer_list<Control*> controls, QLayout* line);

    QGridLayout* grid_;
};

/// Large buttons below each other, each with what it is for beside it, or large options: the choices of a menu.
class Choices {
public:
    Choices();

    void add(CommandButton& button, Label& purpose, const QString& words);
    void add(OptionButton& option, const QString& icon);

    QGridLayout* layout() const { return grid_; }

private:
    QGridLayout* grid_;
};

/// Two parts side by side or, where the desktop is too narrow for that, the second below the first.
QBoxLayout* besideOrBelow(int gap);

/// Whether the mouse gives a button the pressed colour and takes it away again.
enum class PressedLook { Shown, None };

/// A line of a screen's table of buttons.
struct ButtonLook {
    CommandButton& button;
    int tabIndex;
    const char* caption;
    const char* toolTip;
    const char* icon; ///< a picture of the resource folder of icons, by its name without ending; null for none
    PressedLook pressed = PressedLook::Shown;
};

/// Gives each button what its line says, and all of them the help number unless it is 0.
void configure(std::initializer_list<ButtonLook> buttons, int helpNumber = 0);

/// A line of a screen's table of entries, options and pictures.
struct FieldLook {
    Control& control;
    int tabIndex; ///< negative: the Tab key does not stop here
    const char* toolTip;
    int maxLength = 0; ///< of a box: the most characters that the user can get in; 0 sets no limit
};

/// Gives each control what its line says, and all of them the help number unless it is 0.
void configure(std::initializer_list<FieldLook> fields, int helpNumber = 0);

/// Gives a button a picture of the resource folder of icons, which stands on the side to which it points.
void giveIcon(QAbstractButton& button, const QString& name);

/// Names a box for assistive tools where no label stands before it.
void nameForTools(QWidget& box, const QString& name);

/// Keeps the room of a control free while it is hidden, so that nothing on the screen moves.
void keepPlace(const Control& control);

/// Makes buttons as wide as the widest of them.
void equalWidths(std::initializer_list<CommandButton*> buttons);

/// Controls side by side, from the left.
QLayout* sideBySide(std::initializer_list<Control*> controls);

} // namespace forms::look
