// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/looks/apply_look.h"

#include "platform/forms/looks/light_style.h"
#include "platform/forms/looks/theme.h"

#include <QApplication>
#include <QFontInfo>
#include <QPalette>
#include <QProcess>

#include <algorithm>

namespace forms::look {

namespace {

QPalette palette()
{
    const Colours& theme = colours();
    QPalette palette(theme.buttonFace, theme.ground);
    palette.setColor(QPalette::Window, theme.ground);
    palette.setColor(QPalette::Base, theme.field);
    palette.setColor(QPalette::AlternateBase, theme.buttonFace);
    palette.setColor(QPalette::ToolTipBase, theme.buttonFace);
    palette.setColor(QPalette::Highlight, theme.accent);
    palette.setColor(QPalette::HighlightedText, theme.field);
    palette.setColor(QPalette::Mid, theme.line);
    palette.setColor(QPalette::PlaceholderText, theme.quiet);
    for (const auto role :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText, QPalette::BrightText})
        palette.setColor(role, theme.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, theme.quiet);
    palette.setColor(QPalette::Disabled, QPalette::Base, theme.ground.lighter(106));
    palette.setColor(QPalette::Inactive, QPalette::Highlight, theme.pressed);
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, theme.text);
    return palette;
}

// A box of several lines keeps its selection and doesn't show it while the focus is elsewhere.
QPalette memoPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::transparent);
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, colours().text);
    return palette;
}

// How much larger than its font a desktop wants texts. By X11 it tells so in dots an inch, which the toolkit heeds; by
// Wayland it doesn't tell, and its settings have to be read.
double largeText()
{
    if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return 1;
    constexpr int patience = 500; // milliseconds
    constexpr double most = 3;
    QProcess settings;
    settings.start(QStringLiteral("gsettings"),
        {QStringLiteral("get"), QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("text-scaling-factor")});
    if (!settings.waitForFinished(patience))
        return 1; // nor does such a desktop have any
    return std::clamp(settings.readAllStandardOutput().trimmed().toDouble(), 1.0, most);
}

QFont bodyFont()
{
    QFont font = QApplication::font();
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    font.setPointSizeF(std::max(points * largeText(), LeastPoints));
    return font;
}

} // namespace

void apply(QApplication& application)
{
    QApplication::setLayoutDirection(Qt::LeftToRight); // the texts are English, whatever the desktop's language
    QApplication::setFont(bodyFont());
    QApplication::setStyle(new LightStyle);
    QApplication::setPalette(palette());
    QApplication::setPalette(memoPalette(), "QPlainTextEdit");
    application.setStyleSheet({});
}

} // namespace forms::look
