// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/preview.h"

#include "platform/forms/input/wheel.h"
#include "platform/forms/look.h"
#include "platform/forms/runtime/runtime.h"
#include "platform/report/preview_bar.h"
#include "platform/report/preview_choices.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSpinBox>
#include <QStyleOptionComboBox>
#include <QVBoxLayout>

namespace report {

namespace {

constexpr double shareOfDesktop = 0.9;

void name(QWidget& widget, const char* objectName, const QString& accessibleName, const QString& toolTip)
{
    widget.setObjectName(QLatin1String(objectName));
    forms::look::nameForTools(widget, accessibleName);
    widget.setToolTip(toolTip);
}

// As wide as its longest item, which the toolkit reckons for a frame and an arrow of its own.
void showWholeItems(QComboBox& list)
{
    QStyleOptionComboBox option;
    option.initFrom(&list);
    option.rect = QRect(QPoint(), list.sizeHint());
    const QRect words = list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list);
    int longest = 0;
    for (int item = 0; item < list.count(); ++item)
        longest = std::max(longest, list.fontMetrics().horizontalAdvance(list.itemText(item)));
    list.setFixedWidth(option.rect.width() - words.width() + longest + forms::look::grid(1) / 2);
}

} // namespace

// Not behind a question that has come meanwhile, nor under an open list: a button that an assistive tool has pressed
// tells so a moment later.
std::function<void()> Preview::handler(const std::function<void()>& action)
{
    const auto unlessAsked = [action] {
        if (!QApplication::activeModalWidget() && !QApplication::activePopupWidget())
            action();
    };
    return [unlessAsked] { forms::runAsHandler(QStringLiteral("Preview"), unlessAsked); };
}

QPushButton* Preview::button(const char* objectName, const QString& caption, const char* icon, const QString& toolTip)
{
    auto* made = new BarButton(forms::look::buttonIcon(icon), caption, bar_);
    name(*made, objectName, toolTip.section(QStringLiteral(" ("), 0, 0), toolTip);
    return made;
}

void Preview::shortcut(const QKeySequence& keys, const std::function<void()>& action)
{
    connect(new QShortcut(keys, this), &QShortcut::activated, this, handler(action));
}

// In the order of the Tab key.
void Preview::look()
{
    view_ = new PageView(this);
    bar_ = new PreviewBar(this);
    view_->Changed = [this] { showState(); };
    view_->WheelZoomed = [this](int direction, QPoint about) { zoomBy(direction, about); };
    view_->Failed = [this] { forms::runAsHandler(QStringLiteral("Preview"), [this] { error_(); }); };
    first_ = button("first", {}, "first", QStringLiteral("First Page (Ctrl+Home)"));
    previous_ = button("previous", {}, "previous", QStringLiteral("Previous Page (Ctrl+Page Up)"));
    page_ = new QSpinBox(bar_);
    name(*page_, "page", QStringLiteral("Page Number"), QStringLiteral("Page Number (Ctrl+G)"));
    page_->setMinimum(1);
    page_->setKeyboardTracking(false);
    page_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    page_->setAlignment(Qt::AlignRight);
    page_->setFixedWidth(forms::look::fieldWidth(4));
    count_ = new QLabel(bar_);
    count_->setObjectName(QStringLiteral("count"));
    next_ = button("next", {}, "next", QStringLiteral("Next Page (Ctrl+Page Down)"));
    last_ = button("last", {}, "last", QStringLiteral("Last Page (Ctrl+End)"));
    zoomOut_ = button("zoomOut", {}, "minus", QStringLiteral("Zoom Out (Ctrl+-)"));
    zoom_ = new QComboBox(bar_);
    name(*zoom_, "zoom", QStringLiteral("Zoom"), QStringLiteral("Zoom (Ctrl+0: Whole Page, Ctrl+1: Page Width)"));
    for (const ZoomChoice& choice : zooms())
        zoom_->addItem(QLatin1String(choice.words));
    zoomIn_ = button("zoomIn", {}, "plus", QStringLiteral("Zoom In (Ctrl++)"));
    paper_ = new QComboBox(bar_);
    name(*paper_, "paper", QStringLiteral("Paper"), QStringLiteral("Paper"));
    for (const Paper& paper : papers())
        paper_->addItem(paper.page.id() == QPageSize::A4 ? QStringLiteral("A4") : QStringLiteral("Letter"));
    print_ = button("print", QStringLiteral("&Print..."), "printer", QStringLiteral("Print (Ctrl+P)"));
    save_ = button("save", QStringLiteral("&Save As..."), "save", QStringLiteral("Save As A File (Ctrl+S)"));
    close_ = button("close", QStringLiteral("&Close"), "cancel", QStringLiteral("Close (Esc)"));
    status_ = new QLabel(this);
    status_->setObjectName(QStringLiteral("status"));
    status_->setTextFormat(Qt::PlainText);
    status_->setWordWrap(true);
    status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long path doesn't widen the window
    react();
    layOut();
}

void Preview::react()
{
    const struct {
        QPushButton* button;
        std::vector<QKeySequence> keys;
        std::function<void()> action;
    } actions[] = {
        {first_, {QKeySequence("Ctrl+Home")}, [this] { goTo(1); }},
        {previous_, {QKeySequence("Ctrl+PgUp")}, [this] { goTo(page() - 1); }},
        {next_, {QKeySequence("Ctrl+PgDown")}, [this] { goTo(page() + 1); }},
        {last_, {QKeySequence("Ctrl+End")}, [this] { goTo(pageCount()); }},
        {zoomOut_, {QKeySequence("Ctrl+-")}, [this] { zoomBy(-1); }},
        {zoomIn_, {QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")}, [this] { zoomBy(+1); }},
        {print_, {QKeySequence("Ctrl+P")}, [this] { print(); }},
        {save_, {QKeySequence("Ctrl+S")}, [this] { saveAs(); }},
        {close_, {QKeySequence("Ctrl+W")}, [this] { close(); }},
    };
    for (const auto& each : actions) {
        connect(each.button, &QPushButton::clicked, this, handler(each.action));
        for (const QKeySequence& keys : each.keys)
            shortcut(keys, each.action);
    }
    shortcut(QKeySequence("Ctrl+G"), [this] {
        page_->setFocus();
        page_->selectAll();
    });
    shortcut(QKeySequence("F1"), [this] { forms::openHelp(0, objectName()); });
    shortcut(QKeySequence("Ctrl+0"), [this] { pickZoom(indexOf(Zoom{Zoom::Kind::Page})); });
    shortcut(QKeySequence("Ctrl+1"), [this] { pickZoom(indexOf(Zoom{Zoom::Kind::Width})); });
    for (QWidget* turned : std::initializer_list<QWidget*>{page_, zoom_, paper_})
        forms::turnByNotches(*turned);
    connect(page_, &QSpinBox::valueChanged, this, [this](int page) { goTo(page); });
    connect(zoom_, &QComboBox::activated, this, [this](int index) { pickZoom(index); });
    connect(paper_, &QComboBox::activated, this, [this](int index) { setPaper(index); });
}

void Preview::layOut()
{
    showWholeItems(*zoom_);
    showWholeItems(*paper_);
    auto* word = new QLabel(QStringLiteral("Page"), bar_);
    bar_->setGroups({{first_, previous_, word, page_, count_, next_, last_}, {zoomOut_, zoom_, zoomIn_}, {paper_},
        {print_, save_, close_}});

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(bar_);
    column->addWidget(view_, 1);
    status_->setContentsMargins(
        forms::look::grid(1), forms::look::grid(1) / 2, forms::look::grid(1), forms::look::grid(1) / 2);
    column->addWidget(status_);
    openLarge();
}

// As high as the desktop has room for, and as wide as a page or the whole bar.
void Preview::openLarge()
{
    const QSize desktop = screen()->availableSize();
    const double height = desktop.height() * shareOfDesktop;
    const int width = std::max(static_cast<int>(height * shareOfDesktop), bar_->sizeHint().width());
    resize(std::min(width, desktop.width()), static_cast<int>(height));
}

} // namespace report
