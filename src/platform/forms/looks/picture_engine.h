// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIconEngine>
#include <QPixmap>
#include <QString>

namespace forms::look {

/// A picture of the resources that is there in several densities, "x.png", "x@2x.png" and so on. One of them is read
/// when the picture is shown, and kept in the size in which it was shown last.
class PictureEngine : public QIconEngine {
public:
    explicit PictureEngine(const QString& resource)
        : resource_(resource)
    {
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override { return new PictureEngine(*this); }

private:
    QString resource_;
    QSize asked_; // of `shown_`
    QPixmap shown_;
};

} // namespace forms::look
