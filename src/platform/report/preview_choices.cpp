// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/preview_choices.h"

#include <algorithm>

namespace report {

namespace {

constexpr ZoomChoice zoomChoices[] = {
    {"Page Width", {Zoom::Kind::Width}},
    {"Whole Page", {Zoom::Kind::Page}},
    {"50 %", {Zoom::Kind::Factor, 0.5}},
    {"75 %", {Zoom::Kind::Factor, 0.75}},
    {"100 %", {Zoom::Kind::Factor, 1}},
    {"125 %", {Zoom::Kind::Factor, 1.25}},
    {"150 %", {Zoom::Kind::Factor, 1.5}},
    {"200 %", {Zoom::Kind::Factor, 2}},
    {"300 %", {Zoom::Kind::Factor, 3}},
};

constexpr double step = 0.01; // below it two factors look the same

} // namespace

std::span<const ZoomChoice> zooms()
{
    return zoomChoices;
}

std::span<const Paper> papers()
{
    static const Paper the[] = {{QPageSize(QPageSize::Letter)}, {QPageSize(QPageSize::A4)}};
    return the;
}

int indexOf(const Zoom& zoom)
{
    const auto found = std::find_if(
        std::begin(zoomChoices), std::end(zoomChoices), [&zoom](const ZoomChoice& each) { return each.zoom == zoom; });
    return static_cast<int>(found - std::begin(zoomChoices));
}

int indexOf(const Paper& paper)
{
    return paper.page.id() == QPageSize::A4 ? 1 : 0;
}

std::optional<Zoom> nextZoom(double factor, int direction)
{
    std::optional<Zoom> next;
    for (const ZoomChoice& choice : zoomChoices) {
        if (choice.zoom.kind != Zoom::Kind::Factor)
            continue;
        if (direction < 0 && choice.zoom.factor < factor - step)
            next = choice.zoom;
        if (direction > 0 && choice.zoom.factor > factor + step)
            return choice.zoom;
    }
    return next;
}

} // namespace report
