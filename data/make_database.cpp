// SPDX-License-Identifier: GPL-3.0-or-later
// make_database FOLDER FILE: checks the CSV files of a folder and makes of them the database as it is shipped.
#include "data/fixed_random.h"
#include "data/shipped_database.h"
#include "platform/values/failure.h"

#include <QFile>

#include <cstdio>

namespace {

struct Area {
    const char* file;
    LeastNames least;
    NameTriples StandardNames::*names;
};

const Area areas[] = {
    {"indoor_items.csv", {20, 18, 220}, &StandardNames::indoor},
    {"outdoor_items.csv", {12, 12, 110}, &StandardNames::outdoor},
    {"mobile_items.csv", {10, 10, 90}, &StandardNames::mobile},
};

void complain(const QString& text)
{
    std::fprintf(stderr, "make_database: %s\n", qUtf8Printable(text));
}

// Gives false where an area's names can't be shipped.
bool readArea(const QString& folder, const Area& area, StandardNames& names)
{
    names.*area.names = readNames(folder + '/' + area.file);
    const QStringList faults = faultsOf(names.*area.names, area.least);
    for (const QString& fault : faults)
        complain(QStringLiteral("%1: %2").arg(area.file, fault));
    return faults.isEmpty();
}

bool makeDatabase(const QString& folder, const QString& path)
{
    StandardNames names;
    bool sound = true;
    for (const Area& area : areas)
        sound = readArea(folder, area, names) && sound;
    if (!sound)
        return false;
    QFile::remove(path);
    drawFromFixedSequence();
    createShippedDatabase(path, names);
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: make_database FOLDER FILE\n");
        return 2;
    }
    const QString path = QFile::decodeName(argv[2]);
    try {
        return makeDatabase(QFile::decodeName(argv[1]), path) ? 0 : 1;
    } catch (const values::RuntimeFailure& failure) {
        QFile::remove(path);
        complain(failure.text());
        return 1;
    }
}
