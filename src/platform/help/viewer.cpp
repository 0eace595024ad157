// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/viewer.h"

#include "platform/forms/look.h"
#include "platform/forms/runtime/boundary.h"
#include "platform/forms/runtime/runtime.h"
#include "platform/help/find_bar.h"
#include "platform/help/modal_companion.h"
#include "platform/help/page_browser.h"
#include "platform/help/parts.h"
#include "platform/help/printing.h"
#include "platform/help/side_panel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace help {

namespace {

constexpr double shareOfDesktop = 0.9;

constexpr parts::ButtonLook buttons[] = {
    {"back", "&Back", "back", "Back To The Topic Before (Alt+Left)"},
    {"forward", "&Forward", "next", "Forward Again (Alt+Right)"},
    {"toContents", "&Contents", "list", "Contents (F6)"},
    {"find", "F&ind", "magnifier", "Find On This Page (Ctrl+F)"},
    {"smaller", "&Smaller", "minus", "Smaller Type (Ctrl+-)"},
    {"larger", "&Larger", "plus", "Larger Type (Ctrl++)"},
    {"print", "&Print...", "printer", "Print This Page (Ctrl+P)"},
    {"close", "Cl&ose", "cancel", "Close Help (Esc)"},
};

QString statusText(const report::Printing& printing)
{
    if (printing.outcome == report::Outcome::Failed)
        return QStringLiteral("The page could not be printed. Check that there is a printer and that it is turned on.");
    if (printing.outcome == report::Outcome::Unanswered)
        return QStringLiteral("The printer has not answered: check whether the page is being printed.");
    if (printing.outcome == report::Outcome::Done && !printing.file.isEmpty())
        return QStringLiteral("The page has been saved as %1.").arg(printing.file);
    if (printing.outcome == report::Outcome::Done)
        return QStringLiteral("The page has been handed to the printer.");
    return {};
}

} // namespace

Viewer::Viewer(const Book& book, const QString& title)
    : QWidget(nullptr, Qt::Window)
    , book_(book)
    , title_(title)
    , page_(new PageBrowser(this))
    , panel_(new SidePanel(book_, this))
    , find_(new FindBar(*page_, this))
    , status_(new QLabel(this))
{
    setWindowRole(QStringLiteral("help"));
    status_->setObjectName(QStringLiteral("status"));
    for (const parts::ButtonLook& look : buttons)
        parts::button(*this, look);
    react();
    layOut();
    placeBesideScreens();
    new ModalCompanion(*this);
}

void Viewer::open(const QString& topic)
{
    const forms::ToolkitCall call; // what comes of it is no event of a screen
    go(book_.placeOf(topic));
    show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    page_->setFocus();
}

void Viewer::go(const QString& place)
{
    page_->setSource(book_.url(place));
}

void Viewer::showState()
{
    const QString title = page_->documentTitle();
    setWindowTitle(title.isEmpty() ? title_ : title + QStringLiteral(" - ") + title_);
    page_->setAccessibleName(title);
    panel_->mark(page_->page() + (page_->source().hasFragment() ? u'#' + page_->source().fragment() : QString()));
    const struct {
        const char* button;
        const char* counterpart;
        bool leadsOn;
    } ways[] = {
        {"back", "forward", page_->isBackwardAvailable()},
        {"forward", "back", page_->isForwardAvailable()},
        {"smaller", "larger", page_->canChangeType(-1)},
        {"larger", "smaller", page_->canChangeType(+1)},
    };
    for (const auto& way : ways)
        if (way.leadsOn)
            button(way.button)->setEnabled(true);
    for (const auto& way : ways)
        if (!way.leadsOn)
            switchOff(*button(way.button), *button(way.counterpart));
}

// The focus goes to the counterpart, lest the next Space presses whatever stands beside the button. Of a pair that has
// had the focus one always leads on.
void Viewer::switchOff(QWidget& button, QWidget& counterpart)
{
    if (focusWidget() == &button)
        counterpart.setFocus();
    button.setEnabled(false);
}

// What was opened last is closed first.
void Viewer::escape()
{
    if (!find_->isVisible()) {
        close();
        return;
    }
    find_->hide();
    page_->setFocus();
}

void Viewer::print()
{
    parts::tell(*status_, statusText(help::print(*page_, this)));
}

// ---- look

QPushButton* Viewer::button(const char* name)
{
    return findChild<QPushButton*>(QString::fromLatin1(name), Qt::FindDirectChildrenOnly);
}

void Viewer::react()
{
    const struct {
        const char* button;
        std::vector<const char*> keys;
        std::function<void()> action;
    } actions[] = {
        {"back", {"Alt+Left", "Back"}, [this] { page_->backward(); }},
        {"forward", {"Alt+Right", "Forward"}, [this] { page_->forward(); }},
        {"toContents", {"F6"}, [this] { panel_->toContents(); }},
        {"find", {"Ctrl+F"}, [this] { find_->open(); }},
        {"smaller", {"Ctrl+-"}, [this] { page_->changeType(-1); }},
        {"larger", {"Ctrl++", "Ctrl+="}, [this] { page_->changeType(+1); }},
        {"print", {"Ctrl+P"}, [this] { print(); }},
        {"close", {"Ctrl+W"}, [this] { close(); }},
        {nullptr, {"Esc"}, [this] { escape(); }},
        {nullptr, {"Ctrl+0"}, [this] { page_->changeType(0); }},
        {nullptr, {"Ctrl+K"}, [this] { panel_->toSearch(); }},
        {nullptr, {"F3"}, [this] { find_->find(true); }},
        {nullptr, {"Shift+F3"}, [this] { find_->find(false); }},
        {nullptr, {"F1"}, [this] { go(book_.contents().front().place); }},
    };
    for (const auto& each : actions) {
        const auto handler = [action = each.action] { forms::runAsHandler(QStringLiteral("Help"), action); };
        if (each.button)
            connect(button(each.button), &QPushButton::clicked, this, handler);
        for (const char* keys : each.keys)
            connect(new QShortcut(QKeySequence(keys), this), &QShortcut::activated, this, handler);
    }
    panel_->Chosen = [this](const QString& place) { go(place); };
    panel_->Found = [this](const Hit& hit) {
        go(hit.page);
        page_->select(hit.at, hit.length);
        find_->seekOn(page_->textCursor().selectedText());
    };
    connect(page_, &QTextBrowser::sourceChanged, this, [this] {
        parts::tell(*status_, {}); // what it says is of the page before
        showState();
    });
    connect(page_, &QTextBrowser::historyChanged, this, [this] { showState(); });
}

void Viewer::layOut()
{
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(parts::margins());
    bar->setSpacing(forms::look::grid(1) / 2);
    for (const parts::ButtonLook& look : buttons) {
        if (QByteArray(look.name) == "print")
            bar->addStretch();
        bar->addWidget(button(look.name));
    }

    auto* right = new QWidget(this);
    auto* reading = new QVBoxLayout(right);
    reading->setContentsMargins({});
    reading->setSpacing(0);
    reading->addWidget(page_);
    reading->addWidget(find_);

    auto* halves = new QSplitter(this);
    parts::name(*halves, "halves", "Contents And Page", "");
    halves->setChildrenCollapsible(false);
    halves->addWidget(panel_);
    halves->addWidget(right);
    for (int index = 0; index < halves->count(); ++index)
        halves->handle(index)->setAccessibleName(QStringLiteral("Divider"));

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addLayout(bar);
    column->addWidget(halves, 1);
    status_->setContentsMargins(parts::margins());
    column->addWidget(status_);
}

// The contents have their share of a window of any width, but at first as much as they need, up to half of it.
void Viewer::showContentsWhole()
{
    constexpr int ofContents = 2;
    constexpr int ofPage = 5;
    auto* halves = findChild<QSplitter*>(QStringLiteral("halves"));
    halves->setStretchFactor(0, ofContents);
    halves->setStretchFactor(1, ofPage);
    const int needed = std::min(panel_->widthOfContents(), width() / 2);
    if (needed > width() * ofContents / (ofContents + ofPage))
        halves->setSizes({needed, width() - needed - halves->handleWidth()});
}

// The pictures and the tool tips say what the captions do, and the access keys stay.
void Viewer::fitIntoLittleRoom()
{
    for (QPushButton* button : findChildren<QPushButton*>()) {
        const QKeySequence accessKey = QKeySequence::mnemonic(button->text());
        button->setText({});
        button->setShortcut(accessKey);
    }
}

// At the right edge of the desktop, so that something of the screen in its middle stays in sight.
void Viewer::placeBesideScreens()
{
    const QRect desktop = screen()->availableGeometry();
    const QSize room = desktop.size() * shareOfDesktop;
    if (minimumSizeHint().width() > room.width())
        fitIntoLittleRoom();
    resize(QSize(forms::look::grid(116), forms::look::grid(88)).boundedTo(room));
    showContentsWhole();
    move(desktop.right() - width() - forms::look::grid(1), desktop.top() + (desktop.height() - height()) / 2);
}

} // namespace help
