// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_style.h"

namespace style {

report::Picture logo(const report::Place& place)
{
    static const QImage image(QStringLiteral(":/pictures/logo-512.png"));
    return {image, place};
}

report::Label heading(const char* text, double left, double top, double width)
{
    return {text, {left, top, width, HeadingHeight}, Heading, report::Align::Centre};
}

report::Label programName(double left, double top, double width)
{
    return {"Kestrill", {left, top, width, NameHeight}, Name, report::Align::Centre};
}

report::Label caption(const char* text, const report::Place& place, report::Type type)
{
    return {text, place, type, report::Align::Right};
}

} // namespace style
