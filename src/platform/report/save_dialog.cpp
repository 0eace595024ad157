// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/save_dialog.h"

#include "platform/forms/boxes/file_dialog_room.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>

#include <algorithm>

namespace report {

namespace {

/// The kinds of file: how one is offered, and its ending.
struct Kind {
    const char* words;
    const char* ending;
};
constexpr Kind kinds[] = {{"PDF Document (*.pdf)", ".pdf"}, {"Spreadsheet (*.csv)", ".csv"}};
constexpr const Kind& pdf = kinds[0];
constexpr const Kind& table = kinds[1];

bool isOfKind(const QString& path, const Kind& kind)
{
    return path.endsWith(QLatin1StringView(kind.ending), Qt::CaseInsensitive);
}

QStringList filtersFor(const SaveQuestion& question)
{
    QStringList filters{QLatin1StringView(pdf.words)};
    if (question.hasTable)
        filters.append(QLatin1StringView(table.words));
    return filters;
}

// A point within a name begins no ending.
QString withEnding(const QString& path, const QString& filter, bool hasTable)
{
    const bool hasOne = isOfKind(path, pdf) || (hasTable && isOfKind(path, table));
    return hasOne ? path
                  : path + QLatin1StringView(filter == QLatin1StringView(table.words) ? table.ending : pdf.ending);
}

QString withoutEnding(const QString& name)
{
    const bool hasOne =
        std::any_of(std::begin(kinds), std::end(kinds), [&name](const Kind& kind) { return isOfKind(name, kind); });
    return hasOne ? name.chopped(QLatin1StringView(pdf.ending).size()) : name;
}

void prepare(QFileDialog& dialog, const SaveQuestion& question)
{
    dialog.setObjectName(QStringLiteral("reportSaveDialog"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // which would ask about a name that has no ending yet
    dialog.setNameFilters(filtersFor(question));
    forms::giveRoom(dialog);
    dialog.selectFile(question.file + QLatin1StringView(pdf.ending));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
        const QString name = withoutEnding(QFileInfo(dialog.selectedFiles().value(0)).fileName());
        if (!name.isEmpty()) // a desktop's own dialogue tells of its filter before it has a name
            dialog.selectFile(withEnding(name, filter, true));
    });
}

bool mayReplace(const QString& path, QFileDialog& dialog)
{
    if (!QFileInfo::exists(path))
        return true;
    const QPointer<QMessageBox> box(new QMessageBox(QMessageBox::Warning, dialog.windowTitle(),
        QStringLiteral("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(path).fileName()),
        QMessageBox::Yes | QMessageBox::No, dialog.parentWidget()));
    box->setObjectName(QStringLiteral("reportReplaceBox"));
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(QMessageBox::No);
    const bool isYes = box->exec() == QMessageBox::Yes;
    delete box;
    return isYes;
}

} // namespace

bool isTable(const QString& path)
{
    return isOfKind(path, table);
}

std::optional<QString> askForFile(const SaveQuestion& question, QWidget* window)
{
    // The window may take it along.
    const QPointer<QFileDialog> dialog(new QFileDialog(window, QStringLiteral("Save Report As"), question.folder));
    prepare(*dialog, question);
    while (dialog->exec() == QDialog::Accepted && dialog) {
        const QString path =
            withEnding(dialog->selectedFiles().value(0), dialog->selectedNameFilter(), question.hasTable);
        const bool isFree = mayReplace(path, *dialog);
        if (!dialog)
            return {};
        if (isFree) {
            delete dialog;
            return path;
        }
        dialog->selectFile(path);
    }
    delete dialog;
    return {};
}

} // namespace report
