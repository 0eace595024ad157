// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// A row of names that the program comes with: a place, a kind of thing kept there, and the thing.
struct NameTriple {
    QString location;
    QString category;
    QString type;
};

using NameTriples = std::vector<NameTriple>;

/// How many different names an area must offer, at least.
struct LeastNames {
    std::size_t locations;
    std::size_t categories;
    std::size_t types;
};

/// Reads a CSV file with the head "Location,Category,Type" and one triple a line, without quotes. Failures: File.
NameTriples readNames(const QString& path);

/// What is wrong with the names of an area, a text for each fault; nothing where they can be shipped.
QStringList faultsOf(const NameTriples& names, const LeastNames& least);
