// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QModelIndex>

class QKeyEvent;
class QLabel;
class QMouseEvent;
class QPushButton;
class QTableView;

namespace forms {

class DaysModel;
class MonthCalendar;

/// The widget of a month calendar; not for screens. A head with the month's name between buttons that turn months and
/// years, and a table of days below. It shows what its calendar holds and keeps no date of its own. Tab goes from the
/// days through the buttons; the mouse leaves the focus with the days.
class MonthPage : public QFrame {
public:
    MonthPage(QWidget* parent, MonthCalendar& calendar);

    /// Shows the calendar's month and marks its day, and tells assistive tools.
    void refresh();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QPushButton* makeTurner(const QString& sign, const QString& name, int months);
    void makeDays();
    void layOut();
    bool keyPressed(QObject* watched, const QKeyEvent& stroke);
    void pressed(const QKeyEvent& stroke);
    bool moved(const QKeyEvent& stroke);
    bool mouseUsed(const QEvent& event);
    bool wheelTurned(const QWheelEvent& event);
    void released(const QModelIndex& cell);
    QList<QWidget*> stops() const;

    MonthCalendar& calendar_;
    DaysModel* model_;
    QTableView* days_;
    QLabel* month_;
    QList<QPushButton*> turners_; // from left to right
    QModelIndex pressedCell_;
};

} // namespace forms
