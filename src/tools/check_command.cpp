// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/checking.h"
#include "tools/commands.h"
#include "tools/exit_codes.h"
#include "tools/source.h"
#include "tools/terminal.h"

#include <QCommandLineParser>

using storage::JournalBeside;

namespace commands {

namespace {

QString wordsOf(JournalBeside journal)
{
    switch (journal) {
    case JournalBeside::Own:
        return QStringLiteral("The last run broke off. The journal beside the file mends it at the next start; it was "
                              "read as it will be then.");
    case JournalBeside::Foreign:
        return QStringLiteral("The journal beside the file belongs to another one. The next start puts it aside.");
    case JournalBeside::None:
        break;
    }
    return {};
}

void printCounts(const Household& household)
{
    for (const storage::Snapshot& table : household.tables())
        terminal::print(QStringLiteral("%1: %2").arg(QString::fromUtf8(table.definition().name)).arg(table.rowCount()));
    terminal::print(checking::sums(household));
    if (const QString words = wordsOf(household.journal()); !words.isEmpty())
        terminal::print(words);
}

int checkFile(const QString& named)
{
    const QString file = sourceFile(named);
    const Household household(file);
    terminal::print(QStringLiteral("%1 can be read to its last page.").arg(file));
    printCounts(household);
    const QStringList odd = checking::odd_Entries(household);
    for (const QString& line : odd)
        terminal::print(line);
    terminal::print(odd.isEmpty()
            ? QStringLiteral("All is in order.")
            : counted(static_cast<int>(odd.size()), QStringLiteral("odd entry."), QStringLiteral("odd entries.")));
    return odd.isEmpty() ? exit_code::Done : exit_code::Odd;
}

} // namespace

int check(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Reads a household's file through and tells what is odd in it. Changes nothing."));
    parser.addPositionalArgument(QStringLiteral("BACKUP"),
        QStringLiteral("A backup, named as for kestrill-restore, or a file; today's file if left out."),
        QStringLiteral("[BACKUP]"));
    return terminal::run(parser, arguments, [&] {
        const QStringList named = parser.positionalArguments();
        if (named.size() > 1)
            throw Refusal(exit_code::Usage, QStringLiteral("Give one backup or file at most; see --help."));
        return checkFile(named.value(0));
    });
}

} // namespace commands
