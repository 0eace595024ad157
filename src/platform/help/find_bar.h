// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QTextBrowser;

namespace help {

/// Finds words on the page that is shown: on and back, around its end, and tells where there is none.
class FindBar : public QWidget {
public:
    FindBar(QTextBrowser& page, QWidget* parent);

    /// Shows the bar and waits for words; those of the last time are there to be sought again.
    void open();

    void find(bool forward);

    /// Takes words that are shown already, to be sought on from there.
    void seekOn(const QString& words);

private:
    void typed();
    bool seek(bool forward);
    void tell(const QString& words, bool isFailure);

    QTextBrowser& page_;
    QLineEdit* words_;
    QLabel* state_;
};

} // namespace help
