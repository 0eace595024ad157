// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/message_box.h"

#include "platform/forms/form.h"
#include "platform/forms/look.h"
#include "platform/forms/stage.h"

#include <QLabel>
#include <QMessageBox>

namespace forms {

namespace {

constexpr int leastCharacters = 34; // of a line, so that a short text doesn't cut off the title

std::function<Answer(const Message&)>& messageDoor()
{
    static std::function<Answer(const Message&)> the;
    return the;
}

QMessageBox::Icon iconOf(int flags)
{
    switch (flags & ~box::YesNo) {
    case box::Stop:
        return QMessageBox::Critical;
    case box::Question:
        return QMessageBox::Question;
    case box::Exclamation:
        return QMessageBox::Warning;
    case box::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

Answer ask(const Message& message, QWidget* parent)
{
    const bool question = message.flags & box::YesNo;
    QMessageBox window(parent);
    window.setObjectName(QStringLiteral("MsgBox"));
    window.setWindowRole(QStringLiteral("MsgBox"));
    window.setIcon(iconOf(message.flags));
    window.setWindowTitle(message.title);
    window.setTextFormat(Qt::PlainText);
    window.setText(message.text);
    window.setStandardButtons(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    window.setDefaultButton(question ? QMessageBox::Yes : QMessageBox::Ok);
    // The same order of buttons on every desktop: Yes before No.
    window.setStyleSheet(
        QStringLiteral("QDialogButtonBox { button-layout: 0 } QLabel#qt_msgbox_label { min-width: %1px }")
            .arg(look::fieldWidth(leastCharacters)));
    if (auto* words = window.findChild<QLabel*>(QStringLiteral("qt_msgbox_label")))
        words->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const int answer = window.exec();
    if (!question)
        return Answer::OK;
    return answer == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

} // namespace

void setMessageDoor(std::function<Answer(const Message&)> door)
{
    messageDoor() = std::move(door);
}

Answer MsgBox(const QString& text, int flags, const QString& title)
{
    Stage::instance().interrupted();
    const Message message{text, flags, title};
    if (messageDoor())
        return messageDoor()(message);
    Stage& stage = Stage::instance();
    stage.settle();
    Form* front = stage.active();
    const Answer answer = ask(message, front && front->isVisible() ? front->window() : nullptr);
    if (front && front->isVisible())
        stage.bringForward(*front);
    return answer;
}

} // namespace forms
