// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/document.h"
#include "platform/report/paper.h"

#include <QString>

#include <memory>
#include <vector>

class QPainter;

namespace report {

class Brush;

/// An open report on sheets of paper. Where the pages begin is known at once, so that any of them can be painted; a
/// page is laid out when it is painted.
///
/// A detail is not split over two pages unless it is higher than a page. What is wider or higher than the printable
/// part of the paper is set smaller as a whole.
class Pages {
public:
    Pages(std::shared_ptr<const Document> document, const Paper& paper);

    int count() const { return static_cast<int>(starts_.size()); }
    const Paper& paper() const { return paper_; }
    const std::shared_ptr<const Document>& document() const { return document_; }

    /// Paints a page, counted from 0, in black, on a painter whose units are twips from the paper's top left corner.
    void paint(QPainter& painter, int page) const;

    /// The page as a text, its lines from the top, each from the left.
    QString text(int page) const;

private:
    // Where the details of a page begin: at a row, and there at a line of its growing text.
    struct Start {
        int row;
        int line;
    };

    // What a page has of a row.
    struct Piece {
        int row;
        int firstLine; // of the growing text
        int lines;
        bool isLast; // of the row's pieces
    };

    double fittingScale() const;
    double margin() const;
    double bodyHeight() const;
    int lineCount(int row) const;
    double heightOf(const Piece& piece) const;
    int linesThatFit(double room, bool beginning) const;

    void breakIntoPages();
    void placeRow(int row, double& room);
    double startPage(Start start);

    std::vector<Piece> piecesOf(int page) const;
    void paintDetail(const Brush& brush, const Piece& piece) const;
    void paintAll(const Brush& brush, QPainter& painter, int page) const;

    std::shared_ptr<const Document> document_;
    Paper paper_;
    double scale_;
    double lineHeight_ = 0; // of the growing text
    std::vector<Start> starts_;
};

} // namespace report
