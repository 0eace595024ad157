// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/pages.h"

#include "platform/report/brush.h"

#include <QImage>
#include <QPainter>

#include <algorithm>

namespace report {

namespace {

constexpr double sameLine = 100; // how far apart the base lines of texts beside each other may be

QString asLines(std::vector<Spoken> spoken)
{
    const auto isAbove = [](const Spoken& one, const Spoken& other) { return one.place.y() < other.place.y(); };
    const auto isBefore = [](const Spoken& one, const Spoken& other) { return one.place.x() < other.place.x(); };
    std::stable_sort(spoken.begin(), spoken.end(), isAbove);
    QStringList lines;
    for (auto line = spoken.begin(); line != spoken.end();) {
        const double bottom = line->place.y() + sameLine;
        const auto end =
            std::find_if(line, spoken.end(), [bottom](const Spoken& text) { return text.place.y() > bottom; });
        std::stable_sort(line, end, isBefore);
        QStringList words;
        for (; line != end; ++line)
            words.append(line->text);
        lines.append(words.join(u' '));
    }
    return lines.join(u'\n');
}

} // namespace

Pages::Pages(std::shared_ptr<const Document> document, const Paper& paper)
    : document_(std::move(document))
    , paper_(paper)
    , scale_(fittingScale())
{
    if (const auto& growing = document_->layout.detail.growing)
        lineHeight_ = lineHeightOf(growing->type);
    breakIntoPages();
}

double Pages::fittingScale() const
{
    const Layout& layout = document_->layout;
    const Extent extent = extentOf(layout);
    const double halfWidth = std::max(layout.axis - extent.left, extent.right - layout.axis);
    const double height = layout.pageHeader.height + layout.detail.height + layout.pageFooter.height;
    const double byWidth = (paper_.size().width() / 2 - paper_.edge) / halfWidth;
    const double byHeight = (paper_.size().height() - 2 * margin()) / height;
    return std::min({1.0, byWidth, byHeight});
}

double Pages::margin() const
{
    return std::max(document_->layout.margin, paper_.edge);
}

// ---- heights, all in the layout's own measure

double Pages::bodyHeight() const
{
    const Layout& layout = document_->layout;
    return (paper_.size().height() - 2 * margin()) / scale_ - layout.pageHeader.height - layout.pageFooter.height;
}

int Pages::lineCount(int row) const
{
    const auto& growing = document_->layout.detail.growing;
    if (!growing)
        return 1;
    const QString text = formatted(document_->rows->text(row, growing->column), growing->format);
    return static_cast<int>(linesOf(text, growing->type, growing->place.width).size());
}

double Pages::heightOf(const Piece& piece) const
{
    const Section& detail = document_->layout.detail;
    if (!detail.growing)
        return detail.height;
    const Place& grown = detail.growing->place;
    const double lines = piece.lines * lineHeight_;
    if (piece.firstLine > 0)
        return lines + detail.height - grown.top - grown.height;
    return detail.height + std::max(0.0, lines - grown.height);
}

int Pages::linesThatFit(double room, bool beginning) const
{
    const double above = beginning ? document_->layout.detail.growing->place.top : 0;
    return std::max(1, static_cast<int>((room - above) / lineHeight_));
}

// ---- where the pages begin

void Pages::breakIntoPages()
{
    double room = startPage({0, 0});
    const int rows = document_->rows->count();
    for (int row = 0; row < rows; ++row)
        placeRow(row, room);
}

double Pages::startPage(Start start)
{
    starts_.push_back(start);
    return bodyHeight();
}

void Pages::placeRow(int row, double& room)
{
    Piece piece{row, 0, lineCount(row), true};
    const Start& page = starts_.back();
    const bool pageIsEmpty = page.row == row && page.line == 0;
    if (heightOf(piece) > room && !pageIsEmpty)
        room = startPage({row, 0});
    while (document_->layout.detail.growing && piece.lines > 1 && heightOf(piece) > room) {
        const int placed = std::min(linesThatFit(room, piece.firstLine == 0), piece.lines - 1);
        piece.firstLine += placed;
        piece.lines -= placed;
        room = startPage({row, piece.firstLine});
    }
    room -= heightOf(piece);
}

// ---- painting

std::vector<Pages::Piece> Pages::piecesOf(int page) const
{
    const auto number = static_cast<std::size_t>(page);
    const int rows = document_->rows->count();
    const Start begin = starts_[number];
    const Start end = number + 1 < starts_.size() ? starts_[number + 1] : Start{rows, 0};
    std::vector<Piece> pieces;
    for (int row = begin.row; row < end.row || (row == end.row && end.line > 0); ++row) {
        const int first = row == begin.row ? begin.line : 0;
        const bool goesOn = row == end.row;
        pieces.push_back({row, first, (goesOn ? end.line : lineCount(row)) - first, !goesOn});
    }
    return pieces;
}

void Pages::paintDetail(const Brush& brush, const Piece& piece) const
{
    const Section& detail = document_->layout.detail;
    const bool begins = piece.firstLine == 0;
    if (detail.growing)
        brush.paintLines(
            *detail.growing, piece.row, piece.firstLine, piece.lines, begins ? detail.growing->place.top : 0);
    if (begins)
        brush.paint(detail, piece.row);
    if (piece.isLast)
        brush.paintBelow(detail, heightOf(piece) - detail.height);
    brush.moveDown(heightOf(piece));
}

void Pages::paint(QPainter& painter, int page) const
{
    painter.save();
    painter.translate(paper_.size().width() / 2 - document_->layout.axis * scale_, margin());
    painter.scale(scale_, scale_);
    paintAll(Brush(painter, *document_, page, count()), painter, page);
    painter.restore();
}

void Pages::paintAll(const Brush& brush, QPainter& painter, int page) const
{
    const Layout& layout = document_->layout;
    brush.paint(layout.pageHeader, 0);
    painter.save();
    brush.moveDown(layout.pageHeader.height);
    for (const Piece& piece : piecesOf(page))
        paintDetail(brush, piece);
    painter.restore();
    brush.moveDown(layout.pageHeader.height + bodyHeight());
    brush.paint(layout.pageFooter, 0);
}

QString Pages::text(int page) const
{
    QImage nothing(1, 1, QImage::Format_Mono);
    QPainter painter(&nothing);
    std::vector<Spoken> spoken;
    paintAll(Brush(painter, *document_, page, count(), &spoken), painter, page);
    return asLines(std::move(spoken));
}

} // namespace report
