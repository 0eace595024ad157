// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/preview.h"

#include "platform/forms/runtime/boundary.h"
#include "platform/forms/runtime/runtime.h"
#include "platform/forms/screens/active_window.h"
#include "platform/report/csv.h"
#include "platform/report/pdf.h"
#include "platform/report/preview_choices.h"
#include "platform/report/printing.h"
#include "platform/report/save_dialog.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardPaths>

#include <utility>

namespace report {

namespace {

// There is nothing that outlives the program: what the user chose holds while it runs.
struct Remembered {
    Zoom zoom;
    std::optional<Paper> paper;
    QString folder;
};

Remembered& remembered()
{
    static Remembered instance;
    return instance;
}

Paper rememberedPaper()
{
    return remembered().paper.value_or(localPaper());
}

QString startFolder()
{
    const QString& last = remembered().folder;
    if (!last.isEmpty() && QDir(last).exists()) // or it lies on a disk that was taken out
        return last;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents).exists() ? documents : QDir::homePath();
}

QString savedAs(const QString& path)
{
    return QStringLiteral("The report has been saved as %1.").arg(QDir::toNativeSeparators(path));
}

QString notSavedAs(const QString& path)
{
    return QStringLiteral("The report could not be saved as %1. Choose another name or folder.")
        .arg(QDir::toNativeSeparators(path));
}

} // namespace

Preview::Preview(const QString& name, std::shared_ptr<const Document> document, std::function<void()> error)
    : QWidget(nullptr, Qt::Window)
    , document_(std::move(document))
    , pages_(std::make_shared<Pages>(document_, rememberedPaper()))
    , error_(std::move(error))
{
    setObjectName(name);
    setWindowRole(name);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(document_->names.title);
    look();
    paper_->setCurrentIndex(indexOf(pages_->paper()));
    view_->setPages(*pages_);
    view_->setZoom(remembered().zoom);
    showState();
}

void Preview::open()
{
    const forms::ToolkitCall call;
    show();
    raise();
    activateWindow();
    view_->setFocus();
}

// Whatever asks the window to close: not under what it has asked the user.
void Preview::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!QApplication::activeModalWidget());
}

// ---- pages, zoom and paper

void Preview::showState()
{
    const bool canGoBack = page() > 1;
    const bool canGoOn = page() < pageCount();
    first_->setEnabled(canGoBack);
    previous_->setEnabled(canGoBack);
    next_->setEnabled(canGoOn);
    last_->setEnabled(canGoOn);
    page_->setMaximum(pageCount());
    page_->setValue(page());
    count_->setText(QStringLiteral("of %1").arg(pageCount()));
    zoom_->setCurrentIndex(indexOf(view_->zoom()));
    zoomIn_->setEnabled(nextZoom(view_->factor(), +1).has_value());
    zoomOut_->setEnabled(nextZoom(view_->factor(), -1).has_value());
    speak();
}

// The page is a picture to assistive tools: its words stand beside it.
void Preview::speak()
{
    const QString name = QStringLiteral("Page %1 of %2").arg(page()).arg(pageCount());
    if (name == view_->accessibleName() && spoken_ == pages_)
        return;
    spoken_ = pages_;
    view_->setAccessibleName(name);
    view_->setAccessibleDescription(pages_->text(view_->page()));
}

void Preview::setPaper(int index)
{
    remembered().paper = papers()[static_cast<std::size_t>(index)];
    const auto before = std::exchange(pages_, std::make_shared<Pages>(document_, *remembered().paper));
    view_->setPages(*pages_); // which still has the others
}

void Preview::pickZoom(int index, std::optional<QPoint> about)
{
    remembered().zoom = zooms()[static_cast<std::size_t>(index)].zoom;
    view_->setZoom(remembered().zoom, about);
}

void Preview::zoomBy(int direction, std::optional<QPoint> about)
{
    const std::optional<Zoom> zoom = nextZoom(view_->factor(), direction);
    if (zoom)
        pickZoom(indexOf(*zoom), about);
}

// ---- keys that are left over by the part that has the focus

void Preview::keyPressEvent(QKeyEvent* event)
{
    const bool isBare = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && !event->isAutoRepeat();
    if (isBare)
        answerKey(event->key());
}

void Preview::answerKey(int key)
{
    auto* focused = qobject_cast<QPushButton*>(focusWidget());
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (page_->hasFocus() && (isEnter || key == Qt::Key_Escape))
        backToPage();
    else if (isEnter && focused)
        focused->click();
    else if (key == Qt::Key_Escape)
        close();
}

// A number that is only half typed is given up.
void Preview::backToPage()
{
    page_->setValue(page());
    view_->setFocus();
}

// ---- printing and saving

void Preview::print()
{
    finish([this] {
        const Printing printing = report::print(*pages_, view_->page(), this);
        if (!printing.file.isEmpty())
            return Ending{printing.outcome, savedAs(printing.file), notSavedAs(printing.file)};
        return Ending{printing.outcome, QStringLiteral("The report has been handed to the printer.")};
    });
}

void Preview::saveAs()
{
    const std::optional<QString> path = askForFile({startFolder(), document_->names.file, hasTable(*document_)}, this);
    if (!path)
        return;
    remembered().folder = QFileInfo(*path).path();
    finish([this, path] { return Ending{save(*path), savedAs(*path), notSavedAs(*path)}; });
}

Outcome Preview::save(const QString& path)
{
    if (isTable(path) && hasTable(*document_))
        return saveCsv(*document_, path) ? Outcome::Done : Outcome::Failed;
    const std::shared_ptr<const Pages> saved = pages_;
    ProgressWindow progress(QStringLiteral("Saving..."), saved->count(), this);
    return savePdf(*saved, path, progress.progress());
}

void Preview::finish(const std::function<Ending()>& run)
{
    status_->clear();
    const QPointer<Preview> here(this); // what is asked meanwhile has an event loop, in which the window may be deleted
    Ending ending;
    try {
        ending = run();
    } catch (const std::exception&) {
        // A value that can't be printed: told as any other failure.
    }
    if (here)
        tell(ending);
}

void Preview::tell(const Ending& ending)
{
    if (ending.outcome == Outcome::Failed) {
        status_->setText(ending.failed); // the box behind it speaks of printers alone
        forms::takeForActive(this); // not a dialogue that has just gone
        error_();
    }
    if (ending.outcome == Outcome::Done)
        status_->setText(ending.done);
    if (ending.outcome == Outcome::NothingChosen)
        status_->setText(QStringLiteral("Nothing was printed: the report has no such page."));
    if (ending.outcome == Outcome::Unanswered)
        status_->setText(QStringLiteral("The printer has not answered: check whether the report is being printed."));
}

} // namespace report
