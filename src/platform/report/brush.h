// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/document.h"

#include <QPainter>

#include <vector>

namespace report {

/// A text of a page, uncut, and where its base line begins.
struct Spoken {
    QPointF place;
    QString text;
};

/// Paints the pieces of one page's sections; for `Pages`. Given a list for them it tells the texts instead of painting
/// anything.
class Brush {
public:
    Brush(QPainter& painter, const Document& document, int page, int pages, std::vector<Spoken>* spoken = nullptr);

    /// Everything of a section but its growing field and the rules below that.
    void paint(const Section& section, int row) const;

    /// The rules below a growing field, `shift` further down.
    void paintBelow(const Section& section, double shift) const;

    void paintLines(const Field& field, int row, int firstLine, int lines, double top) const;

    void moveDown(double height) const { painter_.translate(0, height); }

private:
    QString decoded(const QString& text) const;
    void write(const Label& label) const;
    void write(const QString& text, const Place& place, Type type, Align align) const;
    void writeLine(const QString& text, double left, double baseLine, Type type) const;
    void say(const QString& text, double left, double baseLine) const;
    void draw(const Picture& picture) const;
    void drawRules(const Section& section, bool below, double shift) const;
    void setType(Type type) const;

    QPainter& painter_;
    const Document& document_;
    int page_;
    int pages_;
    std::vector<Spoken>* spoken_;
    mutable Type type_{0};
};

} // namespace report
