// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/paths.h"
#include "tools/commands.h"
#include "tools/exit_codes.h"
#include "tools/exporting.h"
#include "tools/source.h"
#include "tools/terminal.h"

#include <QCommandLineParser>

namespace commands {

namespace {

using exporting::Former;

// Whoever sits before the terminal is asked; a script says it beforehand.
Former whatOfFormer(const QString& folder, bool isForced)
{
    if (isForced || !exporting::isFormerExport(folder))
        return isForced ? Former::Replaced : Former::Kept;
    const bool isReplaced = terminal::isAttended()
        && terminal::isConfirmed(QStringLiteral("There is an export in %1 already. Replace it?").arg(folder));
    if (!isReplaced)
        throw Refusal(exit_code::Declined,
            QStringLiteral("Nothing was written: there is an export in %1 already. --force replaces it.").arg(folder));
    return Former::Replaced;
}

int exportTo(const QString& folder, const QString& from, bool isForced)
{
    const Former former = whatOfFormer(folder, isForced);
    const Household household(sourceFile(from));
    {
        terminal::Count count;
        exporting::write(household, folder, former, [&count](int done, int all) { return count.tell(done, all); });
    }
    terminal::print(QStringLiteral("Written to %1: %2").arg(sys::absolutePath(folder), household.summary()));
    return exit_code::Done;
}

} // namespace

int exportAll(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Writes all that Kestrill holds into a folder: each table as CSV, all of them as JSON with a "
                       "schema, the asset report and the cover sheet as PDF. The files are not encrypted. Without "
                       "arguments, and on a display, in a window."));
    parser.addPositionalArgument(QStringLiteral("FOLDER"), QStringLiteral("The folder to write, made if missing."));
    const QCommandLineOption force(QStringLiteral("force"), QStringLiteral("Replaces an export that is there."));
    const QCommandLineOption from(QStringLiteral("from"),
        QStringLiteral("Reads a backup, named as for kestrill-restore, or a file."), QStringLiteral("BACKUP"));
    parser.addOptions({force, from});
    return terminal::run(parser, arguments, [&] {
        const QStringList folders = parser.positionalArguments();
        if (folders.size() != 1)
            throw Refusal(exit_code::Usage, QStringLiteral("Give the folder to write; see --help."));
        return exportTo(folders.first(), parser.value(from), parser.isSet(force));
    });
}

} // namespace commands
