// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/pdf_text.h"

#include <QProcess>
#include <QXmlStreamReader>

#include <cmath>
#include <stdexcept>

namespace pdf {

namespace {

constexpr double twipsPerPoint = 20;

double attribute(const QXmlStreamReader& xml, const char* name)
{
    return xml.attributes().value(QLatin1String(name)).toDouble() * twipsPerPoint;
}

bool stand(const Page& page, std::size_t at, const QStringList& words)
{
    const double sameLine = page.words[at].place.top();
    for (qsizetype word = 0; word < words.size(); ++word) {
        const std::size_t here = at + static_cast<std::size_t>(word);
        if (here >= page.words.size() || page.words[here].text != words[word]
            || std::abs(page.words[here].place.top() - sameLine) > twipsPerPoint)
            return false;
    }
    return true;
}

} // namespace

QString output(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        throw std::runtime_error(
            (program + QStringLiteral(" failed: ") + process.readAllStandardError()).toStdString());
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
            pages.push_back({{attribute(xml, "width"), attribute(xml, "height")}, {}});
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
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    std::vector<QRectF> places;
    for (std::size_t at = 0; at < page.words.size(); ++at) {
        if (!stand(page, at, words))
            continue;
        const std::size_t last = at + static_cast<std::size_t>(words.size()) - 1;
        places.push_back(page.words[at].place.united(page.words[last].place));
    }
    return places;
}

QString info(const QString& path, const QString& name)
{
    for (const QString& line : output(QStringLiteral("pdfinfo"), {path}).split(u'\n'))
        if (line.startsWith(name + u':'))
            return line.section(u':', 1).trimmed();
    return {};
}

} // namespace pdf
