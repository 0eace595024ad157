// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/format.h"
#include "platform/report/typeface.h"

#include <QImage>
#include <QString>

#include <optional>
#include <vector>

/// Reports: pages laid out from a table of what stands where. All lengths are twips, 1,440 to the inch.
namespace report {

/// A rectangle within its section.
struct Place {
    double left;
    double top;
    double width;
    double height;
};

enum class Align { Left, Centre, Right };

/// A fixed text. The codes %p and %P stand for the number of the page and the count of all pages, %d and %T for the
/// date and the time at which the report was opened.
struct Label {
    QString text;
    Place place;
    Type type;
    Align align = Align::Left;
};

/// The value of a column.
struct Field {
    int column;
    QString heading; ///< of its column in a spreadsheet
    Place place;
    Type type;
    Align align = Align::Left;
    Format format = Format::Text;
};

/// A picture, as large as fits its place without being stretched, in the middle of it.
struct Picture {
    QImage image;
    Place place;
};

/// A horizontal line at the top of its place.
struct Rule {
    Place place;
};

/// An empty frame.
struct Box {
    Place place;
};

/// A band of a page. `growing`, where there is one, takes as many lines as its text needs, and the rules below it move
/// down; nothing else stands below it.
struct Section {
    double height = 0;
    std::vector<Label> labels;
    std::vector<Field> fields;
    std::vector<Picture> pictures;
    std::vector<Rule> rules;
    std::vector<Box> boxes;
    std::optional<Field> growing;
};

/// A report's layout. The header and the footer stand on every page; the detail is repeated for each row.
struct Layout {
    double axis; ///< what stands in the middle of the paper, from the left of the sections
    double margin; ///< what stays free above and below
    Section pageHeader;
    Section detail;
    Section pageFooter;
};

/// What a layout covers from left to right, in all its sections.
struct Extent {
    double left;
    double right;
};
Extent extentOf(const Layout& layout);

/// All fields of the detail as they stand in the layout, the growing one last.
std::vector<const Field*> fieldsOf(const Section& section);

} // namespace report
