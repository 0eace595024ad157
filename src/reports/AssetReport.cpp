// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/data_store.h"
#include "reports/layouts.h"
#include "reports/report_style.h"

using report::Format;

namespace {

constexpr double axis = 5445;
constexpr double headerHeight = 1725;
constexpr double detailHeight = 2100;

// Closes an asset, below its description.
constexpr report::Place ruleShape1{465, 1890, 9750, 0};

struct HeadLabel {
    const char* text;
    report::Place place;
    report::Align align;
};

constexpr HeadLabel headLabels[] = {
    {"%d", {735, 975, 1590, 240}, report::Align::Left},
    {"%T", {735, 1260, 1590, 240}, report::Align::Left},
    {"Page:", {8325, 945, 1215, 300}, report::Align::Right},
    {"%p", {9600, 945, 795, 300}, report::Align::Left},
    {"Total Pages:", {8310, 1275, 1215, 300}, report::Align::Right},
    {"%P", {9600, 1275, 795, 300}, report::Align::Left},
};

// A caption with the field beside it, on the same line.
struct Entry {
    const char* caption;
    double captionLeft;
    double captionWidth;
    double top;
    int column;
    double left;
    double width;
    Format format = Format::Text;
};

constexpr Entry entries[] = {
    {"Area:", 660, 1005, 120, Print::Area, 1770, 2100},
    {"Location:", 660, 1005, 405, Print::Location, 1770, 2100},
    {"Category:", 660, 1005, 690, Print::Category, 1770, 2100},
    {"Item:", 660, 1005, 975, Print::Type, 1770, 2100},
    {"Year:", 3990, 735, 120, Print::Year, 4845, 2100},
    {"Make:", 3990, 735, 405, Print::Make, 4845, 2100},
    {"Model:", 3990, 735, 690, Print::Model, 4845, 2100},
    {"Serial:", 3990, 735, 975, Print::SerialVinId, 4845, 2100},
    {"Receipt:", 7035, 1680, 120, Print::Receipt, 8835, 1365},
    {"Receipt Location:", 6975, 1740, 405, Print::ReceiptLocation, 8835, 1365},
    {"Date Purchased:", 7035, 1680, 690, Print::DatePurchased, 8835, 1365},
    {"Amount:", 7035, 1680, 975, Print::Amount, 8835, 1365, Format::Amount},
};

report::Section pageHeader()
{
    report::Section header;
    header.height = headerHeight;
    header.pictures.push_back(style::logo({4995, 60, 900, 615}));
    header.labels.push_back(style::programName(3570, 750, 3750));
    header.labels.push_back(style::heading("Asset Report", 3570, 1200, 3750));
    for (const HeadLabel& label : headLabels)
        header.labels.push_back({label.text, label.place, style::List, label.align});
    return header;
}

// A caption without its colon.
QString columnHeading(const char* caption)
{
    return QString(caption).chopped(1);
}

report::Section detail()
{
    report::Section section;
    section.height = detailHeight;
    for (const Entry& entry : entries) {
        section.labels.push_back(style::caption(
            entry.caption, {entry.captionLeft, entry.top, entry.captionWidth, style::LineHeight}, style::List));
        section.fields.push_back({entry.column, columnHeading(entry.caption),
            {entry.left, entry.top, entry.width, style::LineHeight}, style::List, report::Align::Left, entry.format});
    }
    section.labels.push_back(style::caption("Description:", {465, 1335, 1200, style::LineHeight}, style::List));
    section.growing =
        report::Field{Print::Description, "Description", {1770, 1380, 8445, style::LineHeight}, style::List};
    section.rules.push_back({ruleShape1});
    return section;
}

} // namespace

report::Layout layouts::AssetReport()
{
    report::Layout layout;
    layout.axis = axis;
    layout.margin = style::PageMargin;
    layout.pageHeader = pageHeader();
    layout.detail = detail();
    return layout;
}
