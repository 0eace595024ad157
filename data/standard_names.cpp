// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/standard_names.h"

#include "platform/values/failure.h"
#include "platform/values/text.h"

#include <QFile>
#include <QMap>
#include <QSet>

#include <algorithm>

using values::FailureKind;
using values::RuntimeFailure;

namespace {

// What a name's box takes at most.
constexpr qsizetype longestName = 254;

NameTriple parseLine(const QString& line, const QString& path)
{
    const QStringList parts = line.split(u',');
    if (parts.size() != 3)
        throw RuntimeFailure(FailureKind::File, QStringLiteral("%1: not three names: \"%2\"").arg(path, line));
    return {parts[0], parts[1], parts[2]};
}

bool beginsAsTitle(const QString& word)
{
    return !word.isEmpty() && (word[0].isUpper() || word[0].isDigit());
}

bool isTitleCase(const QString& name)
{
    return std::ranges::all_of(name.split(u' '), beginsAsTitle);
}

QStringList faultsOfName(const QString& name)
{
    if (name.isEmpty() || name == "0")
        return {QStringLiteral("\"%1\" stands for no name").arg(name)};
    QStringList faults;
    if (name != name.trimmed())
        faults += QStringLiteral("\"%1\" begins or ends with a blank").arg(name);
    else if (!isTitleCase(name))
        faults += QStringLiteral("\"%1\" has a word without a capital, or two blanks").arg(name);
    if (name.size() > longestName)
        faults += QStringLiteral("\"%1\" is too long").arg(name);
    return faults;
}

QStringList faultsOfColumn(const NameTriples& names, QString NameTriple::*column, std::size_t least)
{
    QStringList faults;
    QMap<QString, QString> spellings;
    for (const NameTriple& triple : names) {
        const QString& name = triple.*column;
        const QString upper = values::upper(name);
        if (!spellings.contains(upper))
            faults += faultsOfName(name);
        else if (spellings[upper] != name)
            faults += QStringLiteral("\"%1\" and \"%2\" are one name in two spellings").arg(spellings[upper], name);
        spellings.insert(upper, name);
    }
    if (static_cast<std::size_t>(spellings.size()) < least)
        faults += QStringLiteral("%1 different names where there must be %2").arg(spellings.size()).arg(least);
    return faults;
}

QStringList repeatedTriples(const NameTriples& names)
{
    QStringList faults;
    QSet<QString> seen;
    for (const NameTriple& triple : names) {
        const QString line = QStringList({triple.location, triple.category, triple.type}).join(u',');
        if (seen.contains(line))
            faults += QStringLiteral("\"%1\" comes twice").arg(line);
        seen.insert(line);
    }
    return faults;
}

} // namespace

NameTriples readNames(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeFailure(FailureKind::File, path + QStringLiteral(": ") + file.errorString());
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    if (lines.takeFirst() != "Location,Category,Type")
        throw RuntimeFailure(FailureKind::File, path + QStringLiteral(": not a file of names"));
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    NameTriples names;
    for (const QString& line : lines)
        names.push_back(parseLine(line, path));
    return names;
}

QStringList faultsOf(const NameTriples& names, const LeastNames& least)
{
    return faultsOfColumn(names, &NameTriple::location, least.locations)
        + faultsOfColumn(names, &NameTriple::category, least.categories)
        + faultsOfColumn(names, &NameTriple::type, least.types) + repeatedTriples(names);
}
