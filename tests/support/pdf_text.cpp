// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/pdf_text.h"

#include <QProcess>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace pdf {

namespace {

constexpr double twipsPerPoint = 20;

double attribute(const QXmlStreamReader& xml, const char* name)
{
    return xml.attributes().value(QLatin1String(name)).toDouble() * twipsPerPoint;
}

} // namespace

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
        if (!xml.readNextStartElement() && !xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("page"))
            pages.emplace_back();
        if (xml.name() != QLatin1String("word"))
            continue;
        const QRectF place(QPointF(attribute(xml, "xMin"), attribute(xml, "yMin")),
            QPointF(attribute(xml, "xMax"), attribute(xml, "yMax")));
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
    const QStringList sought = text.split(u' ', Qt::SkipEmptyParts);
    const auto isSame = [](const Word& word, const QString& other) { return word.text == other; };
    std::vector<QRectF> places;
    for (auto at = page.words.begin();; ++at) {
        at = std::search(at, page.words.end(), sought.begin(), sought.end(), isSame);
        if (at == page.words.end())
            return places;
        const QRectF last = at[sought.size() - 1].place;
        if (std::abs(last.top() - at->place.top()) <= twipsPerPoint)
            places.push_back(at->place.united(last));
    }
}

} // namespace pdf
