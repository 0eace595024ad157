// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/boxes/failure_box.h"

#include "platform/forms/boxes/longest_line.h"
#include "platform/forms/controls/buttons.h"
#include "platform/forms/looks/theme.h"
#include "platform/forms/screens/form.h"

#include <QAccessible>
#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace forms {

namespace {

/// Where a handler belongs, as far as it is a screen's.
struct Place {
    const Form* form = nullptr;
    const Control* control = nullptr;
    QString event;
};

template <class Named>
const Named* named(const std::vector<Named*>& all, const QString& name)
{
    const auto found = std::find_if(all.begin(), all.end(), [&name](const Named* one) { return one->name() == name; });
    return found == all.end() ? nullptr : *found;
}

// "frmSearch.cmdSearch_Click"
Place placeOf(const QString& handler)
{
    const QString owner = handler.section(u'_', 0, -2);
    Place place;
    place.event = handler.section(u'_', -1);
    place.form = named(madeScreens(), owner.section(u'.', 0, 0));
    if (place.form)
        place.control = named(place.form->controls(), owner.section(u'.', 1));
    return place;
}

// What assistive tools call it is what a user reads at it.
QString shownName(QWidget& widget)
{
    const QAccessibleInterface* described = QAccessible::queryAccessibleInterface(&widget);
    return described ? described->text(QAccessible::Name).simplified() : QString();
}

QString whatFailed(const Place& place)
{
    const QString screen = place.form ? shownName(*place.form->window()) : QString();
    const QString where = screen.isEmpty() ? QString() : QStringLiteral(" on the screen “%1”").arg(screen);
    const QString control = place.control ? shownName(*place.control->widget()) : QString();
    const bool isPressed = dynamic_cast<const Button*>(place.control) && place.event == QLatin1String("Click");
    if (isPressed && !control.isEmpty())
        return QStringLiteral("“%1” could not be carried out%2.").arg(control, where);
    const QString at = control.isEmpty() ? QString() : QStringLiteral(" at “%1”").arg(control);
    return QStringLiteral("Something could not be done") + at + where + u'.';
}

QString reasonOf(const std::optional<values::FailureKind>& kind)
{
    if (!kind)
        return {};
    switch (*kind) {
    case values::FailureKind::TypeMismatch:
        return QStringLiteral("A number or a date was needed, and something else was there.");
    case values::FailureKind::Overflow:
        return QStringLiteral("A number came out larger than the program can hold.");
    case values::FailureKind::NoCurrentRecord:
        return QStringLiteral("An entry was asked for that is not there.");
    case values::FailureKind::Database:
        return QStringLiteral("The file that holds your list could not be read or written.");
    case values::FailureKind::File:
        return QStringLiteral("A file or a folder could not be read or written.");
    case values::FailureKind::System:
        return QStringLiteral("The computer refused something that the program asked of it.");
    case values::FailureKind::InvalidCall:
        break;
    }
    return {};
}

QString detailsOf(const FailureReport& report)
{
    return report.handler.isEmpty() ? report.failure : report.failure + u'\n' + report.handler;
}

QLabel* addWords(QGridLayout& rows, int row, TextRole role, const QString& words)
{
    auto* label = new QLabel(words);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(look::fontOf(role));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setFixedWidth(longestLine(QFontMetrics(look::fontOf(TextRole::Body)), *label->screen()));
    rows.addWidget(label, row, 1);
    return label;
}

QLabel* picture(const QDialog& box)
{
    auto* picture = new QLabel;
    const int size = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
    picture->setPixmap(box.style()->standardIcon(QStyle::SP_MessageBoxCritical, nullptr, &box).pixmap(size));
    picture->setAccessibleName(QStringLiteral("Error"));
    return picture;
}

QDialogButtonBox* buttons(QDialog& box, const QString& details)
{
    auto* buttons = new QDialogButtonBox(&box);
    QPushButton* close = buttons->addButton(QStringLiteral("&Close"), QDialogButtonBox::RejectRole);
    close->setDefault(true);
    QPushButton* copy = buttons->addButton(QStringLiteral("Copy &Details"), QDialogButtonBox::ActionRole);
    copy->setAutoDefault(false);
    // The window system asks this program for what was copied, which it can't give once it has ended.
    copy->setToolTip(QStringLiteral("Paste them before you close this message"));
    QObject::connect(copy, &QPushButton::clicked, &box, [details] { QGuiApplication::clipboard()->setText(details); });
    QObject::connect(close, &QPushButton::clicked, &box, &QDialog::reject);
    close->setFocus();
    return buttons;
}

QWidget* words(const QDialog& box, const FailureReport& report, const QString& closingWords)
{
    auto* words = new QWidget;
    auto* rows = new QGridLayout(words);
    rows->setContentsMargins({});
    rows->setHorizontalSpacing(look::grid(2));
    rows->setVerticalSpacing(look::grid(1));
    rows->addWidget(picture(box), 0, 0, Qt::AlignTop);
    const QString what = whatFailed(placeOf(report.handler)) + QStringLiteral(" The program has to close.");
    const QString reason = reasonOf(report.kind);
    addWords(*rows, 0, TextRole::Heading, what);
    addWords(
        *rows, 1, TextRole::Body, reason.isEmpty() ? closingWords : reason + QStringLiteral("\n\n") + closingWords);
    QLabel* small = addWords(*rows, 2, TextRole::Hint, QStringLiteral("For whoever helps you:\n") + detailsOf(report));
    small->setForegroundRole(QPalette::PlaceholderText);
    return words;
}

// Words for which the desktop is too low scroll, so that the buttons below them stay on it.
QWidget* fitted(QWidget* words, int room)
{
    const QSize size = words->sizeHint();
    if (size.height() <= room)
        return words;
    auto* scroller = new QScrollArea;
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setWidget(words);
    scroller->setFixedSize(size.width() + scroller->verticalScrollBar()->sizeHint().width(), std::max(room, 0));
    return scroller;
}

} // namespace

void showFailure(const FailureReport& report, const QString& title, const QString& closingWords)
{
    QDialog box;
    box.setObjectName(QStringLiteral("FailureBox"));
    box.setWindowRole(box.objectName());
    box.setWindowTitle(title);
    auto* rows = new QVBoxLayout(&box);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->setContentsMargins(look::grid(2), look::grid(2), look::grid(2), look::grid(2));
    rows->setSpacing(look::grid(1));
    QDialogButtonBox* below = buttons(box, detailsOf(report));
    const int withoutWords = below->sizeHint().height() + look::grid(10); // margins and the frame
    const int room = box.screen()->availableGeometry().height() - withoutWords;
    QWidget* above = fitted(words(box, report, closingWords), room);
    rows->addWidget(above);
    rows->addWidget(below);
    above->stackUnder(below); // and before it for assistive tools
    box.exec();
}

} // namespace forms
