// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/calendar/month_page.h"

#include "platform/forms/calendar/month_calendar.h"
#include "platform/forms/input/keyboard.h"
#include "platform/forms/input/wheel.h"
#include "platform/forms/looks/style_painting.h"
#include "platform/forms/looks/theme.h"
#include "platform/forms/runtime/boundary.h"

#include <QAbstractTableModel>
#include <QDate>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableView>

#include <algorithm>
#include <iterator>
#include <utility>

namespace forms {

namespace {

constexpr int daysOfWeek = 7;
constexpr int weeks = 6; // as many as a month can touch
constexpr int monthsOfYear = 12;

QLocale english()
{
    return {QLocale::English, QLocale::UnitedStates};
}

// Weeks begin with Sunday, which the toolkit counts as the seventh day.
int weekDay(int column)
{
    return column == 0 ? Qt::Sunday : column;
}

QString spoken(const QDate& date)
{
    return english().toString(date, QStringLiteral("dddd, MMMM d, yyyy"));
}

} // namespace

/// The days of the weeks that a month touches. Cells read as whole dates, for those who hear and don't see them.
class DaysModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : weeks; }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : daysOfWeek; }

    QVariant data(const QModelIndex& cell, int role) const override
    {
        if (!hasIndex(cell.row(), cell.column()))
            return {};
        if (role == Qt::DisplayRole)
            return dateAt(cell).day();
        return role == Qt::AccessibleTextRole ? spoken(dateAt(cell)) : QVariant();
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        const bool isText = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
        if (orientation != Qt::Horizontal || !isText || section < 0 || section >= daysOfWeek)
            return {};
        const auto form = role == Qt::DisplayRole ? QLocale::ShortFormat : QLocale::LongFormat;
        return english().standaloneDayName(weekDay(section), form);
    }

    /// The month of a day that is its first.
    void setMonth(const QDate& month)
    {
        month_ = month;
        dataChanged(index(0, 0), index(weeks - 1, daysOfWeek - 1));
    }

    bool isInMonth(const QModelIndex& cell) const { return dateAt(cell).month() == month_.month(); }
    QDate dateAt(const QModelIndex& cell) const { return firstCell().addDays(cell.row() * daysOfWeek + cell.column()); }

    QModelIndex cellOf(const QDate& date) const
    {
        const auto place = static_cast<int>(firstCell().daysTo(date));
        return index(place / daysOfWeek, place % daysOfWeek);
    }

private:
    QDate firstCell() const { return month_.addDays(-(month_.dayOfWeek() % daysOfWeek)); }

    QDate month_;
};

/// Paints a day: the chosen one on a patch, today in a ring, those of the neighbour months in the quiet colour.
class DayPainter : public QStyledItemDelegate {
public:
    DayPainter(QObject* parent, const DaysModel& model, const MonthCalendar& calendar)
        : QStyledItemDelegate(parent)
        , model_(model)
        , calendar_(calendar)
    {
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& cell) const override
    {
        const look::Colours& colours = look::colours();
        const QDate date = model_.dateAt(cell);
        const bool chosen = date == calendar_.chosen();
        const QRectF mark = QRectF(option.rect).adjusted(3, 3, -3, -3);
        painter->save();
        painter->fillRect(option.rect, colours.field); // over the table's own mark of the selected cell
        painter->setRenderHint(QPainter::Antialiasing);
        if (chosen)
            drawMark(*painter, mark, colours.accent, Qt::NoPen);
        if (date == MonthCalendar::today())
            drawMark(*painter, mark, Qt::NoBrush, QPen(chosen ? colours.ground : colours.accent, 1.6));
        painter->setPen(chosen ? colours.field : model_.isInMonth(cell) ? colours.text : colours.quiet);
        painter->drawText(option.rect, Qt::AlignCenter, QString::number(date.day()));
        painter->restore();
        if (option.state & QStyle::State_HasFocus)
            look::paint::focusFrame(*painter, option.rect);
    }

private:
    static void drawMark(QPainter& painter, const QRectF& mark, const QBrush& brush, const QPen& pen)
    {
        painter.setBrush(brush);
        painter.setPen(pen);
        painter.drawRoundedRect(mark, 5, 5);
    }

    const DaysModel& model_;
    const MonthCalendar& calendar_;
};

namespace {

/// The names of the week's days, without the bevels of a table's head.
class WeekDays : public QHeaderView {
public:
    explicit WeekDays(QWidget* parent)
        : QHeaderView(Qt::Horizontal, parent)
    {
    }

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override
    {
        painter->fillRect(rect, look::colours().field);
        painter->setPen(look::colours().quiet);
        painter->drawText(rect, Qt::AlignCenter, model()->headerData(section, orientation()).toString());
    }
};

} // namespace

MonthPage::MonthPage(QWidget* parent, MonthCalendar& calendar)
    : QFrame(parent)
    , calendar_(calendar)
    , model_(new DaysModel(this))
    , days_(new QTableView(this))
    , month_(new QLabel(this))
{
    turners_ = {makeTurner(QStringLiteral("«"), QStringLiteral("Previous year"), -monthsOfYear),
        makeTurner(QStringLiteral("‹"), QStringLiteral("Previous month"), -1),
        makeTurner(QStringLiteral("›"), QStringLiteral("Next month"), 1),
        makeTurner(QStringLiteral("»"), QStringLiteral("Next year"), monthsOfYear)};
    month_->setFont(look::fontOf(TextRole::Heading));
    month_->setAlignment(Qt::AlignCenter);
    makeDays();
    layOut();
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(days_);
    setAccessibleName(QStringLiteral("Calendar"));
}

QPushButton* MonthPage::makeTurner(const QString& sign, const QString& name, int months)
{
    auto* turner = new QPushButton(sign, this);
    turner->setFont(look::fontOf(TextRole::Heading));
    turner->setFixedSize(look::grid(4), look::grid(3));
    turner->setFocusPolicy(Qt::TabFocus);
    turner->setAccessibleName(name);
    turner->setToolTip(name);
    turner->installEventFilter(this);
    QObject::connect(turner, &QPushButton::clicked, this, [this, months] {
        if (!insideToolkitCall())
            fromToolkit([this, months] { calendar_.turn(months); });
    });
    return turner;
}

void MonthPage::makeDays()
{
    days_->setObjectName(QStringLiteral("days"));
    days_->setModel(model_);
    days_->setItemDelegate(new DayPainter(days_, *model_, calendar_));
    days_->setHorizontalHeader(new WeekDays(days_));
    for (QHeaderView* header : {days_->horizontalHeader(), days_->verticalHeader()}) {
        header->setMinimumSectionSize(1);
        header->setSectionResizeMode(QHeaderView::Stretch);
    }
    days_->verticalHeader()->hide();
    days_->setShowGrid(false);
    days_->setFrameShape(QFrame::NoFrame);
    days_->setSelectionMode(QAbstractItemView::SingleSelection);
    days_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    days_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    days_->setTabKeyNavigation(false);
    days_->installEventFilter(this);
    days_->viewport()->installEventFilter(this);
}

void MonthPage::layOut()
{
    auto* head = new QHBoxLayout;
    head->setSpacing(look::grid(1) / 2);
    head->addWidget(turners_[0]);
    head->addWidget(turners_[1]);
    head->addWidget(month_, 1);
    head->addWidget(turners_[2]);
    head->addWidget(turners_[3]);
    auto* column = new QVBoxLayout(this);
    const int margin = look::grid(1);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(margin);
    column->addLayout(head);
    column->addWidget(days_, 1);
}

void MonthPage::refresh()
{
    const ToolkitCall call;
    const QDate page = calendar_.page();
    const QDate chosen = calendar_.chosen();
    model_->setMonth(page);
    month_->setText(english().toString(page, QStringLiteral("MMMM yyyy")));
    days_->setAccessibleName(QStringLiteral("Days of ") + month_->text());
    // From no cell, since the same cell may now be another date: assistive tools hear of a cell that is new.
    days_->selectionModel()->clear();
    if (chosen.isValid())
        days_->setCurrentIndex(model_->cellOf(chosen));
    for (QPushButton* turner : turners_)
        turner->setAccessibleDescription(chosen.isValid() ? spoken(chosen) : month_->text());
}

// ---- keys

bool MonthPage::eventFilter(QObject* watched, QEvent* event)
{
    bool used = false;
    fromToolkit([this, watched, event, &used] {
        if (event->type() == QEvent::Wheel)
            used = wheelTurned(*static_cast<QWheelEvent*>(event));
        else if (watched == days_->viewport())
            used = mouseUsed(*event);
        else if (event->type() == QEvent::KeyPress)
            used = keyPressed(watched, *static_cast<QKeyEvent*>(event));
        else if (event->type() == QEvent::KeyRelease)
            Keyboard::up(calendar_, *static_cast<QKeyEvent*>(event));
    });
    return used || QFrame::eventFilter(watched, event);
}

bool MonthPage::keyPressed(QObject* watched, const QKeyEvent& stroke)
{
    if (stroke.key() == Qt::Key_Tab || stroke.key() == Qt::Key_Backtab)
        return false;
    auto* turner = qobject_cast<QPushButton*>(watched);
    if (turner && stroke.key() == Qt::Key_Space)
        return false;
    if (turner && Keyboard::isEnter(stroke))
        turner->click();
    else
        pressed(stroke);
    return true;
}

// A key that is held down moves on and on; it gives its character once.
void MonthPage::pressed(const QKeyEvent& stroke)
{
    if (!Keyboard::down(calendar_, stroke) && !moved(stroke) && !stroke.isAutoRepeat())
        Keyboard::pressText(calendar_, stroke);
}

bool MonthPage::moved(const QKeyEvent& stroke)
{
    struct Move {
        int key;
        bool control;
        int days;
        int months;
    };
    static constexpr Move moves[] = {
        {Qt::Key_Left, false, -1, 0},
        {Qt::Key_Right, false, 1, 0},
        {Qt::Key_Up, false, -daysOfWeek, 0},
        {Qt::Key_Down, false, daysOfWeek, 0},
        {Qt::Key_PageUp, false, 0, -1},
        {Qt::Key_PageDown, false, 0, 1},
        {Qt::Key_PageUp, true, 0, -monthsOfYear},
        {Qt::Key_PageDown, true, 0, monthsOfYear},
    };
    if (stroke.key() == Qt::Key_Home || stroke.key() == Qt::Key_End) {
        const QDate first = calendar_.page();
        calendar_.moveTo(stroke.key() == Qt::Key_Home ? first : first.addDays(first.daysInMonth() - 1));
        return true;
    }
    const bool control = stroke.modifiers() & Qt::ControlModifier;
    const auto* move = std::find_if(std::begin(moves), std::end(moves),
        [&stroke, control](const Move& each) { return each.key == stroke.key() && each.control == control; });
    if (move == std::end(moves))
        return false;
    if (move->months != 0)
        calendar_.turn(move->months);
    else
        calendar_.step(move->days);
    return true;
}

QList<QWidget*> MonthPage::stops() const
{
    QList<QWidget*> stops{days_};
    for (QPushButton* turner : turners_)
        stops.append(turner);
    return stops;
}

// Past the last stop the next control of the screen has its turn; where there is no other, it goes round.
bool MonthPage::focusNextPrevChild(bool next)
{
    const auto all = stops();
    const qsizetype to = all.indexOf(focusWidget()) + (next ? 1 : -1);
    if (to >= 0 && to < all.size()) {
        all[to]->setFocus(Qt::OtherFocusReason);
        return true;
    }
    QFrame::focusNextPrevChild(next);
    if (calendar_.hasFocus())
        (next ? all.first() : all.last())->setFocus(Qt::OtherFocusReason);
    return true;
}

// ---- the mouse

bool MonthPage::mouseUsed(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        break;
    default:
        return event.type() == QEvent::MouseMove;
    }
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    if (mouse.button() != Qt::LeftButton)
        return true;
    const QModelIndex cell = days_->indexAt(mouse.position().toPoint());
    if (event.type() == QEvent::MouseButtonRelease)
        released(cell);
    else
        pressedCell_ = cell;
    return true;
}

// A day is picked where the button goes down and up again on it.
void MonthPage::released(const QModelIndex& cell)
{
    const QModelIndex pressed = std::exchange(pressedCell_, {});
    if (pressed.isValid() && pressed == cell)
        calendar_.pick(model_->dateAt(cell));
}

void MonthPage::wheelEvent(QWheelEvent* event)
{
    fromToolkit([this, event] { wheelTurned(*event); });
    event->accept();
}

bool MonthPage::wheelTurned(const QWheelEvent& event)
{
    calendar_.turn(-wheelNotches(*this, event));
    return true;
}

void MonthPage::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(look::colours().line);
    painter.setBrush(look::colours().field);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

} // namespace forms
