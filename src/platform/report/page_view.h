// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/pages.h"

#include <QScrollArea>

#include <functional>
#include <optional>

namespace report {

/// How large a page is shown.
struct Zoom {
    enum class Kind { Width, Page, Factor };

    Kind kind = Kind::Width; ///< the page as wide as the view, the page as a whole, or by a factor
    double factor = 1;

    bool operator==(const Zoom&) const = default;
};

/// One page of a report, which is painted when it is looked at. Turns pages by keys and by the wheel.
class PageView : public QScrollArea {
public:
    explicit PageView(QWidget* parent);

    /// Shows other pages; they must outlive the view.
    void setPages(const Pages& pages);

    int page() const { return page_; }
    void setPage(int page);

    Zoom zoom() const { return zoom_; }

    /// What stands at a point of the view stays there as far as it can: in its middle where no other is given.
    void setZoom(Zoom zoom, std::optional<QPoint> about = {});

    /// The factor by which the page is shown at the moment.
    double factor() const;

    /// Called when another page is shown or its size has changed.
    std::function<void()> Changed;

    /// Called for each notch of the wheel with Ctrl, larger (+1) or smaller (-1), with the place of the pointer.
    std::function<void(int direction, QPoint about)> WheelZoomed;

    /// Called when a page can't be painted.
    std::function<void()> Failed;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Sheet;

    QSizeF paperSize() const;
    void fitSheet();
    QPointF shareOfPaper(QPoint place) const;
    void bring(QPointF share, QPoint place);
    void zoomByWheel(const QWheelEvent& event);
    bool isAtEnd(int direction) const;
    void turn(int direction);
    void goOn(int direction);
    bool turnsPage(int key);

    Sheet* sheet_;
    const Pages* pages_ = nullptr;
    int page_ = 0;
    Zoom zoom_;
};

} // namespace report
