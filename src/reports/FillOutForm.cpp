// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/layouts.h"
#include "reports/report_style.h"

#include <optional>

namespace {

constexpr double axis = 5505;
constexpr double height = 15825;
constexpr double captionEnd = 3588;
constexpr double captionWidth = 2700;
constexpr double boxLeft = 3744;
constexpr double boxWidth = 2880;
constexpr double boxHeight = 285;
constexpr double hintLeft = 6768;
constexpr double hintWidth = 3200;
constexpr double choiceWidth = 800;
constexpr report::Place descriptionBox{boxLeft, 9216, 6195, 1440};

struct Caption {
    double top;
    const char* text;
    std::optional<double> boxLeft = ::boxLeft;
};

constexpr Caption captions[] = {
    {2448, "Area =>", std::nullopt},
    {2880, "Location =>", 3790},
    {3312, "Category =>"},
    {3744, "Asset Name =>"},
    {4464, "Year Asset Was Made =>"},
    {4896, "Make =>"},
    {5328, "Model =>"},
    {5760, "Serial =>"},
    {6480, "Purchased =>", std::nullopt},
    {6912, "Purchase Date =>"},
    {7344, "Purchase Price =>"},
    {8064, "Asset Receipt On File =>", std::nullopt},
    {8496, "Asset Receipt Location =>"},
    {9216, "Description =>", std::nullopt},
};

struct Words {
    double top;
    double left;
    const char* text;
    double width = choiceWidth;
};

constexpr Words words[] = {
    {2448, 3744, "Indoor"},
    {2448, 4752, "Outdoor"},
    {2448, 5760, "Mobile"},
    {2448, hintLeft, "(Select One)", hintWidth},
    {2880, hintLeft, "(i.e. Bedroom or Porch)", hintWidth},
    {3312, hintLeft, "(i.e. Furniture or Electronics)", hintWidth},
    {3744, hintLeft, "(i.e. Stereo or Dishwasher)", hintWidth},
    {6480, 3744, "New"},
    {6480, 4608, "Used"},
    {6480, 5472, "(Select One)", hintWidth},
    {6912, hintLeft, "(Format: mm/dd/yyyy)", hintWidth},
    {8064, 3744, "Yes"},
    {8064, 4608, "No"},
    {8064, 5472, "(Select One)", hintWidth},
    {8496, hintLeft, "(i.e. File Cabinet)", hintWidth},
};

report::Section page()
{
    report::Section section;
    section.height = height;
    section.pictures.push_back(style::logo({5040, 288, 930, 720}));
    section.labels.push_back(style::programName(4032, 1152, 2 * (axis - 4032)));
    section.labels.push_back(style::heading("Asset Information Form", 3674, 1584, 2 * (axis - 3674)));
    for (const Caption& caption : captions) {
        section.labels.push_back(style::caption(
            caption.text, {captionEnd - captionWidth, caption.top, captionWidth, style::LineHeight}, style::Form));
        if (caption.boxLeft)
            section.boxes.push_back({{*caption.boxLeft, caption.top, boxWidth, boxHeight}});
    }
    for (const Words& each : words)
        section.labels.push_back({each.text, {each.left, each.top, each.width, style::LineHeight}, style::Form});
    section.boxes.push_back({descriptionBox});
    return section;
}

} // namespace

report::Layout layouts::FillOutForm()
{
    report::Layout layout;
    layout.axis = axis;
    layout.margin = style::FormMargin;
    layout.detail = page();
    return layout;
}
