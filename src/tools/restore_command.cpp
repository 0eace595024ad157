// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/earlier_backups.h"
#include "data/places.h"
#include "tools/commands.h"
#include "tools/comparison.h"
#include "tools/exit_codes.h"
#include "tools/restoring.h"
#include "tools/terminal.h"

#include <QCommandLineParser>

#include <algorithm>
#include <functional>

namespace commands {

namespace {

void printLine(const Backup& backup)
{
    const QStringList columns = backups::columnsOf(backup);
    terminal::print(QStringList{backup.name, backup.kind, columns[2], columns[3], backup.state}.join(u'\t'));
}

// Each line comes as soon as it is known, and what was read counts the next time, even where the user ends it here.
void printEach(std::vector<Backup>& list)
{
    const auto unread = static_cast<int>(std::ranges::count_if(list, std::not_fn(&Backup::isRead)));
    terminal::Count count;
    int read = 0;
    for (Backup& backup : list) {
        if (!backup.isRead()) {
            if (!count.tell(read, unread))
                break;
            backups::read(backup);
            ++read;
            count.clear();
        }
        printLine(backup);
    }
    backups::remember(list);
    if (read < unread)
        throw Refusal(exit_code::Declined, QStringLiteral("Ended before all were read."));
}

int listBackups()
{
    restoring::part_From_Today();
    std::vector<Backup> list = backups::all();
    printEach(list);
    if (list.empty())
        terminal::complain(QStringLiteral("There is no backup yet: the program makes one each time it is closed."));
    if (const QString trouble = earlier::lastTrouble(); !trouble.isEmpty())
        terminal::complain(trouble);
    return exit_code::Done;
}

// What is known of it; not much where today's file can't be read, which is no reason against a restore.
void tellWhatIsLost(const Backup& backup)
{
    const Household chosen(backup.file);
    terminal::complain(QStringLiteral("The backup of %1: %2").arg(backups::spoken(backup.made), chosen.summary()));
    try {
        const Household today(places::databaseFile());
        terminal::complain(QStringLiteral("Today's file: %1").arg(today.summary()));
        for (const QString& line : what_Is_Lost(today, chosen))
            terminal::complain(u' ' + line);
    } catch (const UnreadableHousehold& failure) {
        terminal::complain(QStringLiteral("Today's file can't be read: %1").arg(failure.reason()));
    }
}

void refuseUnconfirmed(bool isSaid)
{
    if (isSaid)
        return;
    if (!terminal::isAttended())
        throw Refusal(exit_code::Declined, QStringLiteral("Nothing was changed. --yes confirms the restore."));
    if (!terminal::isConfirmed(QStringLiteral("Go back to this backup?")))
        throw Refusal(exit_code::Declined, QStringLiteral("Nothing was changed."));
}

int restoreBackup(const QString& name, bool isConfirmed)
{
    restoring::refuse_While_Running();
    const Backup chosen = backups::find(backups::all(), name);
    tellWhatIsLost(chosen);
    refuseUnconfirmed(isConfirmed);
    const restoring::Result result = restoring::lay_Down(chosen);
    terminal::print(QStringLiteral("Restored: %1").arg(result.summary));
    if (!result.putAside.isEmpty())
        terminal::print(QStringLiteral("To go back: kestrill-restore --restore %1").arg(result.putAside));
    if (!result.doubt.isEmpty())
        terminal::complain(restoring::doubtText(result));
    return exit_code::Done;
}

} // namespace

int restore(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Brings a backup back in place of today's file, which is put "
                                                    "aside. Without options, and on a display, in a window."));
    const QCommandLineOption list(
        QStringLiteral("list"), QStringLiteral("Lists all backups; what has changed is read through."));
    const QCommandLineOption restore(QStringLiteral("restore"),
        QStringLiteral("Restores the backup of that name, as --list tells it, or of its beginning, or \"last\"."),
        QStringLiteral("DATE"));
    const QCommandLineOption yes(QStringLiteral("yes"), QStringLiteral("Doesn't ask."));
    parser.addOptions({list, restore, yes});
    return terminal::run(parser, arguments, [&] {
        if (!parser.positionalArguments().isEmpty() || parser.isSet(list) == parser.isSet(restore))
            throw Refusal(exit_code::Usage, QStringLiteral("Give either --list or --restore DATE; see --help."));
        return parser.isSet(list) ? listBackups() : restoreBackup(parser.value(restore), parser.isSet(yes));
    });
}

} // namespace commands
