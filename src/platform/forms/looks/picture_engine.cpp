// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/looks/picture_engine.h"

#include <QApplication>
#include <QImageReader>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace forms::look {

namespace {

bool covers(const QSize& picture, const QSize& shown)
{
    return picture.width() >= shown.width() && picture.height() >= shown.height();
}

// The least density that is not smaller than it is shown, else the largest one.
QImage readFor(const QString& resource, const QSize& shown)
{
    QString best;
    for (const char* density : {".png", "@2x.png", "@3x.png", "@4x.png"}) {
        const QString file = QString(resource).replace(QLatin1String(".png"), QLatin1String(density));
        const QSize size = QImageReader(file).size();
        if (!size.isValid())
            continue;
        best = file;
        if (covers(size, shown))
            break;
    }
    return QImage(best);
}

// Never larger than it is in its files.
QPixmap madeFor(const QString& resource, const QSize& shown)
{
    QPixmap picture = QPixmap::fromImage(readFor(resource, shown));
    if (covers(shown, picture.size()))
        return picture;
    return picture.scaled(shown, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

QPixmap PictureEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State)
{
    if (size != asked_)
        shown_ = madeFor(resource_, size);
    asked_ = size;
    if (mode == QIcon::Normal)
        return shown_;
    QStyleOption option;
    option.palette = QApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, shown_, &option);
}

void PictureEngine::paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state)
{
    painter->drawPixmap(place, pixmap(place.size() * painter->device()->devicePixelRatioF(), mode, state));
}

} // namespace forms::look
