// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/pdf_text.h"

#include <QProcess>
#include <QXmlStreamReader>

#include <stdexcept>

namespace pdf {

static constexpr double twipsPerPoint = 20;

QString output(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        throw std::runtime_error((program + " failed: " + process.readAllStandardError()).toStdString());
    return QString::fromUtf8(process.readAllStandardOutput());
}

std::vector<Page> read(const QString& path)
{
    QXmlStreamReader xml(output(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), path, QStringLiteral("-")}));
    std::vector<Page> pages;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("page"))
            pages.emplace_back();
        if (!xml.isStartElement() || xml.name() != QLatin1String("word"))
            continue;
        const auto at = [&xml](const char* edge) { return xml.attributes().value(edge).toDouble() * twipsPerPoint; };
        const QRectF place(QPointF(at("xMin"), at("yMin")), QPointF(at("xMax"), at("yMax")));
        pages.back().words.push_back({xml.readElementText(), place});
    }
    return pages;
}

QString Page::text() const
{
    QStringList texts;
    for (const Word& word : words)
        texts.append(word.text);
    return texts.join(u' ');
}

std::vector<QRectF> placesOf(const Page& page, const QString& text)
{
    std::vector<QRectF> places;
    for (const Word& word : page.words)
        if (word.text == text)
            places.push_back(word.place);
    return places;
}

} // namespace pdf
