// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/pdf_text.h"

#include <QProcess>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
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

QImage picture(const QString& path)
{
    output("pdftoppm", {"-r", "144", "-gray", "-singlefile", path, path});
    return QImage(path + ".pgm");
}

bool hasInk(const QImage& picture, QPointF place)
{
    const QImage around = picture.copy(QRect((place / 10).toPoint() - QPoint(2, 2), QSize(4, 4)));
    return qGray(around.scaled(1, 1, {}, Qt::SmoothTransformation).pixel(0, 0)) < 240;
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
