// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/help/book.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace help {

class FindBar;
class PageBrowser;
class SidePanel;

/// The window of the help: pages to read, with what leads to them. It is a window beside the screens and no screen:
/// opening, using and closing it moves no focus of a screen, and it can be used while a modal screen or a message box
/// is up. Closed, it keeps place, size and size of type for the next time.
///
/// The toolkit's own help engine would bring a second SQLite into the program, in three packages of 1.3 MB, and wants
/// pages that are compiled beforehand; without it a search has made its index of all 40 pages in 60 ms.
class Viewer : public QWidget {
public:
    /// `title` follows the title of the page in the title bar.
    Viewer(const Book& book, const QString& title);

    /// Shows the page of a topic, in front of the screens; the first chapter where the book doesn't know the topic.
    void open(const QString& topic);

private:
    QPushButton* button(const char* name);
    void react();
    void layOut();
    void showContentsWhole();
    void fitIntoLittleRoom();
    void placeBesideScreens();

    void go(const QString& place);
    void showState();
    void switchOff(QWidget& button, QWidget& counterpart);
    void escape();
    void print();

    Book book_;
    QString title_;
    PageBrowser* page_;
    SidePanel* panel_;
    FindBar* find_;
    QLabel* status_;
};

} // namespace help
