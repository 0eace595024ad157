// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/print_dialog.h"

#include <QChildEvent>
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QRadioButton>
#include <QSpinBox>

#include <algorithm>

namespace report {

namespace {

// ---- what the user says of the pages, which the dialogue hands on to a print service in part: read from its boxes, so
// that what names no page isn't all of them

bool isOn(const QPrintDialog& dialog, const char* button)
{
    const auto* found = dialog.findChild<QRadioButton*>(QLatin1StringView(button));
    return found && found->isChecked();
}

int numberIn(const QPrintDialog& dialog, const char* box)
{
    const auto* found = dialog.findChild<QSpinBox*>(QLatin1StringView(box));
    return found ? found->value() : 1;
}

std::optional<QPageRanges> rangesIn(const QPrintDialog& dialog)
{
    if (isOn(dialog, "pagesRadioButton"))
        return pagesNamed(dialog.findChild<QLineEdit*>(QStringLiteral("pagesLineEdit"))->text());
    if (!isOn(dialog, "printRange"))
        return {};
    const auto [first, last] = std::minmax({numberIn(dialog, "from"), numberIn(dialog, "to")});
    QPageRanges ranges;
    ranges.addRange(first, last);
    return ranges;
}

PageSet setIn(const QPrintDialog& dialog)
{
    const auto* sets = dialog.findChild<QComboBox*>(QStringLiteral("pageSetCombo"));
    return sets && sets->isEnabled() ? static_cast<PageSet>(sets->currentIndex()) : PageSet::All;
}

/// The toolkit's, but for what it says of the pages: a later one of its versions refuses "3-1" by a box of its own.
class PrintDialog : public QPrintDialog {
public:
    using QPrintDialog::QPrintDialog;

    std::optional<QPageRanges> ranges() const { return ranges_; }

private:
    void accept() override
    {
        ranges_ = rangesIn(*this);
        const QPointer<QLineEdit> pages = findChild<QLineEdit*>(QStringLiteral("pagesLineEdit"));
        const QString typed = pages ? pages->text() : QString();
        if (pages)
            pages->setText(QStringLiteral("1"));
        QPrintDialog::accept();
        if (pages)
            pages->setText(typed);
    }

    std::optional<QPageRanges> ranges_;
};

PageChoice choiceIn(const PrintDialog& dialog, const QPrinter& printer)
{
    PageChoice choice;
    choice.currentOnly = printer.printRange() == QPrinter::CurrentPage;
    choice.ranges = dialog.ranges();
    choice.set = setIn(dialog);
    choice.lastFirst = printer.pageOrder() == QPrinter::LastPageFirst;
    return choice;
}

// ---- what is offered

/// Takes what a fixed layout doesn't obey out of the properties of a printer, which the dialogue makes when it is asked
/// for them.
class FixedLayout : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::ChildPolished)
            reduce(*static_cast<QChildEvent*>(event)->child());
        return false;
    }

private:
    static void reduce(const QObject& properties)
    {
        for (const char* inGroup : {"landscape", "topMargin"})
            if (const auto* part = properties.findChild<QWidget*>(QLatin1StringView(inGroup)))
                part->parentWidget()->hide();
        if (auto* sketch = properties.findChild<QWidget*>(QStringLiteral("preview")))
            sketch->hide();
    }
};

} // namespace

std::optional<PageChoice> askForPrinter(QPrinter& printer, const PrintQuestion& question, QWidget* window)
{
    const QPointer<PrintDialog> dialog(new PrintDialog(&printer, window)); // which the window may take along
    dialog->setObjectName(question.name);
    dialog->setOptions(question.choices);
    dialog->setMinMax(1, question.pages);
    dialog->setFromTo(1, question.pages);
    dialog->setPrintRange(QAbstractPrintDialog::AllPages);
    if (question.hasFixedLayout)
        dialog->installEventFilter(new FixedLayout(dialog));
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    std::optional<PageChoice> choice;
    if (dialog && isAccepted)
        choice = choiceIn(*dialog, printer);
    delete dialog;
    return choice;
}

} // namespace report
