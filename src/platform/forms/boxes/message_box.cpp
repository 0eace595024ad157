// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/boxes/message_box.h"

#include "platform/forms/boxes/longest_line.h"
#include "platform/forms/input/keyboard.h"
#include "platform/forms/looks/theme.h"
#include "platform/forms/runtime/boundary.h"
#include "platform/forms/runtime/runtime.h"
#include "platform/forms/screens/form.h"
#include "platform/forms/screens/stage.h"

#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>

#include <algorithm>

namespace forms {

namespace {

constexpr int leastCharacters = 34; // of a line, so that a short text doesn't cut off the title

// The least width in which a text takes no more lines than in the widest: its lines are of about one length, and no
// word is left alone at the end.
int balancedWidth(const QString& text, const QFontMetrics& metrics, int widest)
{
    const auto taken = [&](int width) {
        return metrics.boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap, text).size();
    };
    const int height = taken(widest).height();
    int tooNarrow = 0;
    int enough = taken(widest).width() + 1;
    while (enough - tooNarrow > 1) {
        const int middle = (tooNarrow + enough) / 2;
        const QSize size = taken(middle);
        (size.height() > height || size.width() > middle ? tooNarrow : enough) = middle;
    }
    return enough;
}

/// A box that grows with its text and then breaks it into lines; the toolkit measures it before it knows the font. F1
/// opens the help of what the user was at when the box came.
class Box : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    bool event(QEvent* event) override
    {
        // Past the toolkit's message box, which would measure again, by its own rule.
        // NOLINTNEXTLINE(bugprone-parent-virtual-call)
        return event->type() == QEvent::LayoutRequest ? QDialog::event(event) : QMessageBox::event(event);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() != Qt::Key_F1)
            QMessageBox::keyPressEvent(event);
        else
            fromToolkit([this] { openHelpBehind(); });
    }

    void showEvent(QShowEvent* event) override
    {
        QMessageBox::showEvent(event);
        fitWords(*findChild<QLabel*>(QStringLiteral("qt_msgbox_label")));
        layout()->activate();
        setFixedSize(layout()->totalMinimumSize());
        adjustPosition(parentWidget());
    }

private:
    void openHelpBehind() const
    {
        if (const Form* form = Stage::instance().active())
            Keyboard::openHelpFor(*form, form->activeControl());
        else
            openHelp(0, objectName());
    }

    void fitWords(QLabel& words) const
    {
        const QFontMetrics metrics = words.fontMetrics();
        const int needed = balancedWidth(words.text(), metrics, longestLine(metrics, *screen()));
        QMargins margins = words.contentsMargins();
        const int around = margins.left() + margins.right() + std::max(0, words.indent());
        const int width = std::max(needed + around, look::fieldWidth(leastCharacters));
        margins.setRight(margins.right() + width - needed - around); // the lines break where they would in a narrow box
        words.setContentsMargins(margins);
        words.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        words.setWordWrap(true);
        words.setFixedSize(width, words.heightForWidth(width));
    }
};

std::function<Answer(const Message&)>& messageHandler()
{
    static std::function<Answer(const Message&)> instance;
    return instance;
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

// What a screen reader says of the box's picture.
void nameIcon(const QMessageBox& window)
{
    constexpr const char* names[] = {"None", "Information", "Warning", "Error", "Question"};
    if (auto* icon = window.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label")))
        icon->setAccessibleName(names[window.icon()]);
}

Answer ask(const Message& message, QWidget* parent)
{
    const bool question = message.flags & box::YesNo;
    Box window(parent);
    window.setObjectName(QStringLiteral("MsgBox"));
    window.setWindowRole(QStringLiteral("MsgBox"));
    window.setIcon(iconOf(message.flags));
    nameIcon(window);
    window.setWindowTitle(message.title);
    window.setTextFormat(Qt::PlainText);
    window.setText(message.text);
    window.setStandardButtons(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    window.setDefaultButton(question ? QMessageBox::Yes : QMessageBox::Ok);
    const int answer = window.exec();
    if (!question)
        return Answer::OK;
    return answer == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

} // namespace

void setMessageHandler(std::function<Answer(const Message&)> handler)
{
    messageHandler() = std::move(handler);
}

namespace {

// While the user is asked nobody waits for the program.
struct PlainPointer {
    PlainPointer() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
    PlainPointer(const PlainPointer&) = delete;
    PlainPointer& operator=(const PlainPointer&) = delete;
    ~PlainPointer() { QGuiApplication::restoreOverrideCursor(); }
};

} // namespace

Answer MsgBox(const QString& text, int flags, const QString& title)
{
    Stage::instance().interrupted();
    const Message message{text, flags, title};
    if (messageHandler())
        return messageHandler()(message);
    const PlainPointer pointer;
    Stage& stage = Stage::instance();
    stage.settle();
    QWidget* at = QApplication::activeWindow();
    if (at && !at->isModal() && !stage.isScreen(*at))
        return ask(message, at); // a window beside the screens keeps its box, and the front
    Form* front = stage.active();
    const Answer answer = ask(message, front && front->isVisible() ? front->window() : nullptr);
    if (front && front->isVisible())
        stage.bringForward(*front);
    return answer;
}

} // namespace forms
