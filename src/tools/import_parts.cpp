// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/import_parts.h"

namespace importing {

namespace {

QString lineOf(qint64 line)
{
    return QStringLiteral("Line %1").arg(line);
}

Part named(const char* words, std::size_t count)
{
    return {QStringLiteral("%1 (%2)").arg(QString::fromLatin1(words)).arg(count), {}};
}

// A line for each reason, so that none is too long to be seen.
Part wrongOf(const Plan& plan)
{
    Part part = named("Rows That Can't Go In", plan.wrong.size());
    for (const WrongRow& row : plan.wrong)
        for (const QString& reason : row.reasons)
            part.lines.push_back({lineOf(row.line), reason});
    return part;
}

Part knownOf(const Plan& plan)
{
    Part part = named("Assets That Are There Already", plan.known.size());
    for (const KnownRow& row : plan.known)
        part.lines.push_back({lineOf(row.line), row.item});
    return part;
}

Part comingOf(const Plan& plan)
{
    Part part = named("Assets To Come", plan.assets.size());
    for (const Asset& asset : plan.assets)
        part.lines.push_back({asset[Inventory::Area],
            QStringList{asset[Inventory::Type], asset[Inventory::Location], asset[Inventory::Category],
                asset[Inventory::DatePurchased], asset[Inventory::Amount]}
                .join(QStringLiteral(", "))});
    return part;
}

Part newNamesOf(const Plan& plan)
{
    static const char* const kinds[] = {"Location", "Category", "Item"};
    Part part = named("New Names For The Lists", plan.newNames.size());
    for (const NewName& name : plan.newNames)
        part.lines.push_back({name.area + u' ' + QString::fromLatin1(kinds[name.kind]), name.name});
    return part;
}

Part notesOf(const Plan& plan)
{
    const QStringList notes = besidesAssetsOf(plan) + plan.notes;
    Part part = named("Worth Knowing", static_cast<std::size_t>(notes.size()));
    for (const QString& note : notes)
        part.lines.push_back({QString(), note});
    return part;
}

} // namespace

std::vector<Part> partsOf(const Plan& plan)
{
    std::vector<Part> parts;
    for (Part (*make)(const Plan&) : {wrongOf, comingOf, knownOf, newNamesOf, notesOf})
        if (Part part = make(plan); !part.lines.empty())
            parts.push_back(std::move(part));
    return parts;
}

} // namespace importing
