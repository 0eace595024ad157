// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/checking.h"
#include "tools/commands.h"
#include "tools/exit_codes.h"
#include "tools/mending.h"
#include "tools/source.h"
#include "tools/terminal.h"

#include <QCommandLineParser>

#include <algorithm>

using storage::JournalBeside;

namespace commands {

namespace {

QString wordsOf(JournalBeside journal)
{
    switch (journal) {
    case JournalBeside::Own:
        return QStringLiteral("Kestrill was not closed properly the last time. The journal beside the file repairs it "
                              "at the next start; it was read here as it will be then.");
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

QString verdict(int stopping, int odd)
{
    QStringList counts;
    if (stopping > 0)
        counts += counted(
            stopping, QStringLiteral("entry that stops the program"), QStringLiteral("entries that stop the program"));
    if (odd > 0)
        counts += counted(odd, QStringLiteral("odd entry"), QStringLiteral("odd entries"));
    return counts.isEmpty() ? QStringLiteral("All is in order.") : counts.join(QStringLiteral(", ")) + u'.';
}

int tellFindings(const Household& household)
{
    const std::vector<checking::Finding> found = checking::findings(household);
    for (const checking::Finding& finding : found)
        terminal::print(finding.words);
    const auto stopping = static_cast<int>(std::ranges::count(found, true, &checking::Finding::stops));
    const int odd = static_cast<int>(found.size()) - stopping;
    terminal::print(verdict(stopping, odd));
    return stopping > 0 ? exit_code::Stopping : odd > 0 ? exit_code::Odd : exit_code::Done;
}

int checkFile(const QString& file)
{
    const Household household(file);
    terminal::print(QStringLiteral("%1 can be read to its last page.").arg(file));
    printCounts(household);
    return tellFindings(household);
}

// One by one, unless all are confirmed beforehand.
std::vector<mending::Mend> confirmed(std::vector<mending::Mend> mends, bool isSaid)
{
    if (isSaid)
        return mends;
    if (!terminal::isAttended())
        throw Refusal(exit_code::Declined, QStringLiteral("Nothing was changed. --yes confirms what can be mended."));
    std::erase_if(mends, [](const mending::Mend& mend) { return !terminal::isConfirmed(mend.words + u'?'); });
    if (mends.empty())
        throw Refusal(exit_code::Declined, QStringLiteral("Nothing was changed."));
    return mends;
}

int mend(const QString& file, bool isSaid)
{
    const Household household(file);
    const int found = tellFindings(household);
    const std::vector<mending::Mend> possible = mending::possible(household);
    if (possible.empty()) {
        terminal::print(QStringLiteral("There is nothing to mend without a guess."));
        return found;
    }
    const std::vector<mending::Mend> mends = confirmed(possible, isSaid);
    const QString aside = mending::carry_Out(mends);
    for (const mending::Mend& each : mends)
        terminal::print(QStringLiteral("Done: %1.").arg(each.words));
    terminal::print(QStringLiteral("To go back: kestrill-restore --restore %1").arg(aside));
    return tellFindings(Household(file));
}

} // namespace

int check(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Reads a household's file through and tells what is odd in it, and what stops the program. Changes "
        "nothing, unless it is to mend."));
    parser.addPositionalArgument(QStringLiteral("BACKUP"),
        QStringLiteral("A backup, named as for kestrill-restore, or a file; today's file if left out."),
        QStringLiteral("[BACKUP]"));
    const QCommandLineOption mending(QStringLiteral("mend"),
        QStringLiteral("Mends in today's file what needs no guess, each when it is confirmed. The file is put aside "
                       "before, and can be restored."));
    const QCommandLineOption yes(QStringLiteral("yes"), QStringLiteral("Doesn't ask what to mend."));
    parser.addOptions({mending, yes});
    return terminal::run(parser, arguments, [&] {
        const QStringList named = parser.positionalArguments();
        if (named.size() > 1)
            throw Refusal(exit_code::Usage, QStringLiteral("Give one backup or file at most; see --help."));
        if (parser.isSet(yes) && !parser.isSet(mending))
            throw Refusal(exit_code::Usage, QStringLiteral("--yes confirms a --mend; see --help."));
        if (parser.isSet(mending) && !named.isEmpty())
            throw Refusal(exit_code::Usage, QStringLiteral("Only today's file is mended; see --help."));
        const QString file = sourceFile(named.value(0));
        return parser.isSet(mending) ? mend(file, parser.isSet(yes)) : checkFile(file);
    });
}

} // namespace commands
