// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/find_bar.h"

#include "platform/forms/look.h"
#include "platform/help/parts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace help {

FindBar::FindBar(QTextBrowser& page, QWidget* parent)
    : QWidget(parent)
    , page_(page)
    , words_(new QLineEdit(this))
    , state_(new QLabel(this))
{
    parts::name(*words_, "findWords", "Words To Find On This Page", "Words To Find On This Page (Ctrl+F)");
    words_->setMinimumWidth(forms::look::fieldWidth(8));
    words_->setMaximumWidth(forms::look::fieldWidth(30));
    state_->setObjectName(QStringLiteral("findState"));
    auto* words = new QLabel(QStringLiteral("Find On This Page:"), this);
    words->setBuddy(words_);
    QPushButton* next = parts::button(*this, {"findNext", "&Next", "next", "Find Next (F3)"});
    QPushButton* previous = parts::button(*this, {"findPrevious", "Pre&vious", "previous", "Find Previous (Shift+F3)"});
    connect(words_, &QLineEdit::textEdited, this, [this] { typed(); });
    connect(words_, &QLineEdit::returnPressed, this, [this] { find(true); });
    connect(next, &QPushButton::clicked, this, [this] { find(true); });
    connect(previous, &QPushButton::clicked, this, [this] { find(false); });

    auto* line = new QHBoxLayout;
    line->addWidget(words);
    line->addWidget(words_, 1);
    line->addWidget(next);
    line->addWidget(previous);
    line->addStretch(1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(parts::margins());
    column->addLayout(line);
    column->addWidget(state_); // beside the buttons it would push the window apart
    hide();
}

void FindBar::open()
{
    show();
    tell({}, false);
    words_->setFocus();
    words_->selectAll();
}

// What is typed on top of words that were found stays at their place while it fits.
void FindBar::typed()
{
    QTextCursor cursor = page_.textCursor();
    cursor.setPosition(cursor.selectionStart());
    page_.setTextCursor(cursor);
    find(true);
}

void FindBar::find(bool forward)
{
    if (words_->text().isEmpty())
        return open();
    show();
    tell({}, false);
    if (seek(forward))
        return;
    const QTextCursor before = page_.textCursor();
    page_.moveCursor(forward ? QTextCursor::Start : QTextCursor::End);
    if (seek(forward))
        return tell(forward ? "From the top again." : "From the bottom again.", false);
    page_.setTextCursor(before);
    tell("Not found on this page.", true);
}

bool FindBar::seek(bool forward)
{
    return page_.find(words_->text(), forward ? QTextDocument::FindFlags() : QTextDocument::FindBackward);
}

void FindBar::seekOn(const QString& words)
{
    words_->setText(words);
}

void FindBar::tell(const QString& words, bool isFailure)
{
    parts::colour(*words_, isFailure ? forms::look::colours().error : forms::look::colours().field);
    parts::tell(*state_, words);
}

} // namespace help
