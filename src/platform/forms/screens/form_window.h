// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMargins>
#include <QPoint>
#include <QSize>
#include <QWidget>

class QScrollArea;

namespace forms {

class Form;

/// The window of a screen. The canvas scrolls where the desktop is smaller than the screen.
class FormWindow : public QWidget {
public:
    explicit FormWindow(Form& form);

    QWidget* makeCanvas();

    const Form& form() const { return form_; }

    void reveal(QWidget* widget);

    void setLeastSize(const QSize& size) { leastSize_ = leastSize_.expandedTo(size); }

    /// Takes the canvas's own size, or what of it the desktop has room for, and the place of the screen before; the
    /// first one takes the middle of the desktop.
    void fitAndPlace();

    /// From its next showing on the window is one that belongs to another. The toolkit tells the window system of no
    /// other kind whose it is, and minimised by itself it would leave its owner there, which answers nothing.
    void becomeDialog();

    /// Gives the native window up; the next showing makes another.
    void giveUp() { destroy(); }

protected:
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void place(const QRect& room, const QPoint& centre);
    void learnFrame();
    void makeFit(const QSize& room);
    bool isTooWide(const QSize& room) const;
    bool isTooHigh(const QSize& room) const;
    void showPictures(double share);

    Form& form_;
    QScrollArea* scroller_;
    QSize leastSize_;
    QSize lastSize_; // at the visit before
    bool tight_ = false;
    inline static QMargins frameMargins_; // known once a first window has been shown
    inline static QPoint centre_; // of the screen shown or moved last, without its frame
};

} // namespace forms
