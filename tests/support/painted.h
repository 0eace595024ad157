// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets>

#include <vector>

/// A device, and its own engine, that keeps what is painted on it, in the units in which that is painted.
class Painted : public QPaintDevice, private QPaintEngine {
public:
    Painted()
        : QPaintEngine(AllFeatures)
    {
    }

    /// Compares it, in the order of painting, with the lines below "== part" in a list that is kept among the tests:
    ///     right 9540 945 9 bold Page:
    ///     picture 5137.5 60 615 615 of 512 512
    ///     line 465 1890 9750 0 pen 10
    /// A text has its left edge, its middle or its right edge, whichever the list tells, then its top and its size in
    /// points, so that nothing depends on how wide the letters are.
    void expect(const QString& list, const QString& part) const;

    /// Adds a line that tells something beside: "column 2100 Area".
    void note(const QString& kind, double number, const QString& rest) { things_.push_back({kind, number, 0, rest}); }

    QPaintEngine* paintEngine() const override { return const_cast<Painted*>(this); }

private:
    struct Thing {
        QString kind;
        double left;
        double width; // of a text
        QString rest;
    };

    int metric(PaintDeviceMetric of) const override { return of == PdmDevicePixelRatioScaled ? 0x10000 : 1440; }
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override { }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override { }
    void drawImage(const QRectF& place, const QImage& image, const QRectF&, Qt::ImageConversionFlags) override;
    void drawLines(const QLineF* lines, int count) override;
    void drawRects(const QRectF* places, int count) override;
    void drawTextItem(const QPointF& base, const QTextItem& item) override;
    void keep(const char* kind, const QRectF& place, const QString& rest);

    std::vector<Thing> things_;
};
