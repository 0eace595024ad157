// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/page_browser.h"

#include "platform/forms/look.h"

#include <QApplication>
#include <QImage>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QtMath>

#include <algorithm>
#include <array>
#include <iterator>

namespace help {

namespace {

constexpr std::array typeScales{0.85, 1.0, 1.2, 1.45, 1.75, 2.1, 2.5};
constexpr int ownSize = 1;
constexpr int pictureDensity = 2; // dots of a picture for each of the page

// What size a picture has is decided here, not by the page.
QString withoutSizes(const QString& html)
{
    static const QRegularExpression size(QStringLiteral("(<img\\b[^>]*?)\\s(?:width|height)=['\"]?\\d+['\"]?"));
    return QString(html).replace(size, QStringLiteral("\\1"));
}

} // namespace

PageBrowser::PageBrowser(QWidget* parent)
    : QTextBrowser(parent)
    , step_(ownSize)
{
    setObjectName(QStringLiteral("page"));
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // pictures are fitted into what it leaves
    document()->setDocumentMargin(forms::look::grid(2));
}

double PageBrowser::typeScale() const
{
    return typeScales.at(static_cast<std::size_t>(step_));
}

bool PageBrowser::canChangeType(int steps) const
{
    return step_ + steps >= 0 && step_ + steps < static_cast<int>(typeScales.size());
}

void PageBrowser::changeType(int steps)
{
    if (!canChangeType(steps))
        return;
    step_ = steps == 0 ? ownSize : step_ + steps;
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * typeScale());
    setFont(font);
    loadAgain();
}

QString PageBrowser::page() const
{
    return source().fileName();
}

void PageBrowser::select(int at, int length)
{
    QTextCursor cursor(document());
    cursor.setPosition(at);
    cursor.setPosition(at + length, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    const int above = viewport()->height() / 4;
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top() - above);
}

// ---- pictures

int PageBrowser::room() const
{
    return viewport()->width() - static_cast<int>(2 * document()->documentMargin());
}

// The toolkit would shrink and enlarge it roughly, also by the part of a dot: so it takes whole dots on a display that
// is scaled by quarters, with an empty edge below where its height leaves a rest.
QImage PageBrowser::fitted(const QImage& picture)
{
    constexpr int whole = 4;
    const int wanted = static_cast<int>(picture.width() * typeScale() * forms::look::pictureScale() / pictureDensity);
    widest_ = std::max(widest_, wanted);
    narrowest_ = room();
    const double ratio = devicePixelRatioF();
    const int width = std::min(wanted, room()) / whole * whole;
    const QImage scaled = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                              .scaledToWidth(qRound(width * ratio), Qt::SmoothTransformation);
    const int height = qCeil(scaled.height() / ratio / whole) * whole;
    QImage fitted = scaled.copy(0, 0, scaled.width(), qRound(height * ratio));
    fitted.setDevicePixelRatio(ratio);
    return fitted;
}

QVariant PageBrowser::loadResource(int type, const QUrl& name)
{
    QVariant loaded = QTextBrowser::loadResource(type, name);
    if (type == QTextDocument::HtmlResource) {
        widest_ = 0;
        return withoutSizes(QString::fromUtf8(loaded.toByteArray()));
    }
    if (type != QTextDocument::ImageResource)
        return loaded;
    return fitted(QImage::fromData(loaded.toByteArray()));
}

void PageBrowser::resizeEvent(QResizeEvent* event)
{
    QTextBrowser::resizeEvent(event);
    if (std::min(room(), widest_) != std::min(narrowest_, widest_))
        loadAgain();
}

// What stands at the top stays there, and what is selected stays so.
void PageBrowser::loadAgain()
{
    const int top = cursorForPosition(QPoint(0, 0)).position();
    const QTextCursor selected = textCursor();
    const int anchor = selected.anchor();
    const int end = selected.position();
    reload();
    QTextCursor cursor(document());
    cursor.setPosition(anchor);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    cursor.setPosition(top);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top());
}

} // namespace help
