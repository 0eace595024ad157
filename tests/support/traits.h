// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets>

#include <map>
#include <memory>

/// What the layer and the screens have made of the toolkit's widgets: each property that a widget of its kind doesn't
/// have by itself, with those that have it. Places and sizes, which come of the font, and what a user changes are left
/// out. "QLabel wordWrap=true: frmExit lblTrouble; frmAuto lblSelOut(0 1 2)"
class Traits {
public:
    Traits();
    ~Traits();

    /// Of a window as it is now; what it has more at another time is added.
    void add(const QWidget& window, const QString& name);

    QString told();

private:
    std::map<QString, std::unique_ptr<QWidget>> usual_; // as the toolkit makes them, by their kind
    QMap<QString, QMap<QString, QStringList>> owners_; // of a trait, by their screen
    QMap<QString, int> having_, widgets_; // how many have a trait, and how many are of a kind
};
