// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QString>
#include <QStringView>

#include <vector>

class QTextLayout;

namespace report {

inline constexpr double TwipsPerPoint = 20;

/// A size of type, in points, and its weight.
struct Type {
    double points = 9;
    bool bold = false;

    bool operator==(const Type&) const = default;
};

/// The font of a type, for a painter whose unit is the twip. It is measured without regard to any device, so that a
/// line breaks at the same place on the screen, on paper and in a file.
const QFont& fontOf(Type type);

/// From the top of a line to its base line, and to the next one.
double ascentOf(Type type);
double lineHeightOf(Type type);

/// A text in the type in which it fits a width: in smaller type where it has to be, down to 6 points, and what is
/// longer still with an ellipsis for its end.
struct Fitted {
    QString text;
    Type type;
};
Fitted fit(const QString& text, Type type, double width);

/// The text's width.
double widthOf(const QString& text, Type type);

/// A text of plain letters on one line, which is laid out at its first use and kept; null for any other.
const QTextLayout* laidOutOnce(const QString& text, Type type);

/// The lines into which a text of several lines falls; they are views of it. Each is at most `width` wide, blanks at
/// its end aside. There is always one.
std::vector<QStringView> linesOf(const QString& text, Type type, double width);

} // namespace report
