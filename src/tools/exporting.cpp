// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/exporting.h"

#include "data/data_store.h"
#include "platform/system/files.h"
#include "platform/system/paths.h"
#include "tools/exit_codes.h"
#include "tools/export_readme.h"
#include "tools/report_files.h"
#include "tools/table_texts.h"
#include "tools/text_file.h"

#include <QDateTime>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

using storage::Snapshot;

namespace exporting {

namespace {

const QString DataFile = QStringLiteral("kestrill.json");
const QString SchemaFile = QStringLiteral("kestrill.schema.json");
const QString ReadmeFile = QStringLiteral("README.txt");
constexpr int RowsBetweenTellings = 256;

// One export under way: what is written so far, of what all there is.
class Export {
public:
    Export(const Household& household, const sys::Folder& folder, const Progress& progress)
        : household_(household)
        , folder_(folder)
        , progress_(progress)
        , reports_(reportsOf(household))
    {
        for (const Snapshot& table : household.tables())
            all_ += 2 * table.rowCount();
        for (const ReportFile& report : reports_)
            all_ += report.pages->count();
    }

    void run()
    {
        for (const Snapshot& table : household_.tables())
            writeTable(table);
        writeData();
        writeText(SchemaFile, table_texts::jsonSchema(household_.tables()));
        writeText(ReadmeFile, ExportReadme);
        for (const ReportFile& report : reports_)
            writeReport(report);
        folder_.sync();
    }

private:
    QString file(const QString& name) const { return folder_.wayTo(name); }

    bool tell(int more) const { return !progress_ || progress_(done_ + more, all_); }

    static void refuseCancelled()
    {
        throw Refusal(exit_code::Declined, QStringLiteral("Cancelled. Nothing was written."));
    }

    void count()
    {
        if (++done_ % RowsBetweenTellings == 0 && !tell(0))
            refuseCancelled();
    }

    void writeTable(const Snapshot& table)
    {
        TextFile out(file(csvFileOf(table.definition())));
        out.write(table_texts::csvHeadings(table.definition()));
        for (int row = 0; row < table.rowCount(); ++row, count())
            out.write(table_texts::csvRow(table, row));
        out.finish();
    }

    void writeData()
    {
        TextFile out(file(DataFile));
        out.write("{\n\"$schema\": " + table_texts::jsonText(SchemaFile.toStdString()));
        out.write(",\n\"program\": \"Kestrill\",\n\"version\": \"" KESTRILL_VERSION "\",\n\"made\": \"");
        out.write(QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toStdString() + "\",\n\"tables\": {");
        const char* separator = "\n";
        for (const Snapshot& table : household_.tables()) {
            out.write(separator + table_texts::jsonText(table.definition().name) + ": [");
            writeRows(out, table);
            out.write("]");
            separator = ",\n";
        }
        out.write("\n}\n}\n");
        out.finish();
    }

    void writeRows(TextFile& out, const Snapshot& table)
    {
        for (int row = 0; row < table.rowCount(); ++row, count()) {
            out.write(row == 0 ? "\n" : ",\n");
            out.write(table_texts::jsonRow(table, row));
        }
    }

    void writeText(const QString& name, std::string_view text) const
    {
        TextFile out(file(name));
        out.write(text);
        out.finish();
    }

    void writeReport(const ReportFile& report)
    {
        const QString path = file(report.name);
        QString reason;
        const report::Outcome outcome = report::savePdf(
            *report.pages, path, [this](int page) { return tell(page); }, &reason);
        if (outcome == report::Outcome::Cancelled)
            refuseCancelled();
        if (outcome == report::Outcome::Failed)
            throw Refusal(exit_code::Failed,
                QStringLiteral("%1 could not be written: %2.").arg(folder_.pathOf(report.name), reason));
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        done_ += report.pages->count();
    }

    const Household& household_;
    const sys::Folder& folder_;
    const Progress& progress_;
    std::vector<ReportFile> reports_;
    int done_ = 0;
    int all_ = 0;
};

// A folder beside the one that is to be written, for as long as it lives. What is in it at the end goes.
class BesideIt {
public:
    explicit BesideIt(const sys::Folder& above)
        : above_(above)
        , folder_(above.madeNew(QStringLiteral(".kestrill-export-")))
        , isUnderWay_(folder_)
    {
    }
    BesideIt(const BesideIt&) = delete;
    BesideIt& operator=(const BesideIt&) = delete;
    ~BesideIt();

    const sys::Folder& folder() const { return folder_; }
    void putInPlace(const QString& name);

private:
    const sys::Folder& above_;
    sys::Folder folder_;
    sys::RunLock isUnderWay_;
    bool isInPlace_ = false;
};

// Files of an export alone: whoever else may write there could have given the name to another folder.
void clearAway(const sys::Folder& above, const sys::Folder& folder)
{
    for (const QString& file : fileNames())
        folder.remove(file);
    above.removeEmpty(folder.name());
}

BesideIt::~BesideIt()
{
    try {
        if (!isInPlace_)
            clearAway(above_, above_.entered(folder_.name()));
    } catch (const values::RuntimeFailure&) {
        // The next export there clears it away.
    }
}

// An empty folder gives way by itself. A former export goes in the same step as the new one comes.
void BesideIt::putInPlace(const QString& name)
{
    if (above_.look(name) && !above_.entered(name).names().isEmpty()) {
        above_.exchange(folder_.name(), name);
        return;
    }
    above_.rename(folder_.name(), name);
    isInPlace_ = true;
}

// What an export that was killed has left. The folder of a living one is locked.
void clearLeftovers(const sys::Folder& above)
{
    static const QRegularExpression name(QStringLiteral("^\\.kestrill-export-[A-Za-z0-9]{6}$"));
    for (const QString& leftover : above.names().filter(name)) {
        try {
            const sys::Folder folder = above.entered(leftover);
            const sys::RunLock alone(folder);
            if (alone.isHeld())
                clearAway(above, folder);
        } catch (const values::RuntimeFailure&) {
            // Somebody else's: it is in nobody's way.
        }
    }
}

sys::Folder openedAbove(const QString& path)
{
    try {
        return sys::Folder(path);
    } catch (const values::RuntimeFailure& failure) {
        throw Refusal(exit_code::Failed,
            QStringLiteral("Nothing can be written in %1: %2.").arg(path, failure.text().section(": ", -1)));
    }
}

void writeBelow(const Household& household, const QString& path, const QString& name, const Progress& progress)
{
    const sys::Folder above = openedAbove(path);
    clearLeftovers(above);
    BesideIt written(above);
    try {
        Export(household, written.folder(), progress).run();
    } catch (const values::RuntimeFailure& failure) {
        throw Refusal(
            exit_code::Failed, QString(failure.text()).replace(written.folder().way(), written.folder().path()));
    }
    written.putInPlace(name);
    above.sync();
}

} // namespace

QString csvFileOf(const storage::TableDefinition& table)
{
    return QString::fromUtf8(table.name) + QStringLiteral(".csv");
}

QStringList fileNames()
{
    QStringList names{DataFile, SchemaFile, ReadmeFile};
    for (const storage::TableDefinition* table : databaseTables())
        names.append(csvFileOf(*table));
    return names + reportFileNames();
}

bool isFormerExport(const QString& folder)
{
    const sys::Kind kind = sys::kindOf(folder);
    if (kind == sys::Kind::Nothing)
        return false;
    if (kind != sys::Kind::Folder)
        throw Refusal(exit_code::Failed, QStringLiteral("%1 is no folder.").arg(folder));
    const QStringList entries = sys::Folder(folder).names();
    const QStringList ours = fileNames();
    const auto isOurs = [&ours](const QString& entry) { return ours.contains(entry); };
    if (!std::all_of(entries.begin(), entries.end(), isOurs))
        throw Refusal(exit_code::Failed,
            QStringLiteral("%1 holds other files. An export takes a folder of its own.").arg(folder));
    return !entries.isEmpty();
}

void write(const Household& household, const QString& folder, Former former, const Progress& progress)
{
    const QString target = sys::absolutePath(folder);
    if (isFormerExport(target) && former == Former::Kept)
        throw Refusal(exit_code::Failed, QStringLiteral("There is an export in %1 already.").arg(target));
    try {
        const QString real = sys::realPath(target); // a link keeps leading to its folder
        const QFileInfo place(real.isEmpty() ? target : real);
        writeBelow(household, place.path(), place.fileName(), progress);
    } catch (const values::RuntimeFailure& failure) {
        throw Refusal(exit_code::Failed, failure.text());
    }
}

QString freshFolderIn(const QString& folder)
{
    const QString name = folder + QStringLiteral("/Kestrill ") + QDate::currentDate().toString(Qt::ISODate);
    QString fresh = name;
    for (int number = 2; QFileInfo::exists(fresh); ++number)
        fresh = name + QStringLiteral(" (%1)").arg(number);
    return fresh;
}

} // namespace exporting
