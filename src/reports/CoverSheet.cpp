// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/data_store.h"
#include "reports/layouts.h"
#include "reports/report_style.h"

namespace {

constexpr double axis = 5715;
constexpr double headerHeight = 2400;
constexpr double detailHeight = 10620;
constexpr double footerHeight = 195;
constexpr double centreLeft = 3915;
constexpr double centreWidth = 3600;
constexpr double valueLeft = 5475;

struct Heading {
    double top;
    const char* text;
};

constexpr Heading headings[] = {
    {144, "Personal Information"},
    {4176, "Contact Information"},
    {6912, "Policy Information"},
    {9072, "Total Asset Value"},
};

struct Entry {
    double top;
    const char* caption;
    double captionLeft;
    double captionWidth;
    int column;
    double width = 4245;
};

constexpr Entry entries[] = {
    {864, "First Name =>", 3024, 2310, General::First},
    {1296, "Middle Initial =>", 3024, 2310, General::Middle},
    {1728, "Last Name =>", 3024, 2310, General::Last},
    {2160, "Address =>", 3024, 2310, General::Address},
    {2592, "City =>", 3024, 2310, General::City},
    {3024, "State =>", 3024, 2310, General::State},
    {3456, "ZIP =>", 3024, 2310, General::ZIP},
    {6225, "E-Mail =>", 3030, 2310, General::EMail, 5340},
    {7488, "Insurance Company =>", 2304, 3030, General::PolicyCompany, 4455},
    {7920, "Policy Number =>", 2304, 3030, General::PolicyNumber, 4455},
    {8352, "Policy Expiration =>", 2304, 3030, General::PolicyExpiration, 4455},
};

struct Phone {
    double top;
    const char* caption;
    int firstColumn; // of three
};

constexpr Phone phones[] = {
    {4905, "Home Phone =>", General::HomePhone1},
    {5355, "Work Phone =>", General::WorkPhone1},
    {5790, "Cell Phone =>", General::CellPhone1},
};

// "(", the area code, ")", the prefix, "-", the last four digits.
constexpr double phonePieceLefts[] = {5550, 6090, 6605};
constexpr double phonePieceWidths[] = {390, 390, 515};
struct PhoneSign {
    const char* text;
    double left;
};
constexpr PhoneSign phoneSigns[] = {{"(", 5475}, {")", 5935}, {"-", 6500}};
constexpr double phoneSignWidth = 90;

report::Section pageHeader()
{
    report::Section header;
    header.height = headerHeight;
    header.pictures.push_back(style::logo({5280, 432, 870, 570}));
    header.labels.push_back(style::programName(centreLeft, 1008, centreWidth));
    header.labels.push_back(style::heading("Asset Report", centreLeft, 1440, centreWidth));
    return header;
}

// A caption without its arrow.
QString columnHeading(const char* caption)
{
    return QString(caption).section(" =>", 0, 0);
}

void add(report::Section& section, const Entry& entry)
{
    section.labels.push_back(style::caption(
        entry.caption, {entry.captionLeft, entry.top, entry.captionWidth, style::LineHeight}, style::Body));
    section.fields.push_back({entry.column, columnHeading(entry.caption),
        {valueLeft, entry.top, entry.width, style::LineHeight}, style::Body});
}

void add(report::Section& section, const Phone& phone)
{
    section.labels.push_back(style::caption(phone.caption, {3030, phone.top, 2310, style::LineHeight}, style::Body));
    for (const PhoneSign& sign : phoneSigns)
        section.labels.push_back({sign.text, {sign.left, phone.top, phoneSignWidth, style::LineHeight}, style::Body});
    for (int piece = 0; piece < 3; ++piece)
        section.fields.push_back(
            {phone.firstColumn + piece, columnHeading(phone.caption) + QStringLiteral(" %1").arg(piece + 1),
                {phonePieceLefts[piece], phone.top, phonePieceWidths[piece], style::LineHeight}, style::Body});
}

report::Section detail()
{
    report::Section section;
    section.height = detailHeight;
    for (const Heading& heading : headings)
        section.labels.push_back(style::heading(heading.text, centreLeft, heading.top, centreWidth));
    for (const Entry& entry : entries)
        add(section, entry);
    for (const Phone& phone : phones)
        add(section, phone);
    section.fields.push_back({General::AssetValue, "Total Asset Value", {3456, 9792, 4455, style::HeadingHeight},
        style::Total, report::Align::Centre, report::Format::Amount});
    return section;
}

} // namespace

report::Layout layouts::CoverSheet()
{
    report::Layout layout;
    layout.axis = axis;
    layout.margin = style::PageMargin;
    layout.pageHeader = pageHeader();
    layout.detail = detail();
    layout.pageFooter.height = footerHeight;
    return layout;
}
