// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>

namespace help {

/// Shows a page. Its pictures are made at twice their size; they grow with the type, but never beyond the room that
/// there is for them.
class PageBrowser : public QTextBrowser {
public:
    explicit PageBrowser(QWidget* parent);

    /// Larger or smaller type by so many steps, as far as it goes; 0 is the program's own size.
    void changeType(int steps);
    bool canChangeType(int steps) const;

    /// Selects what stands at a place of the page and brings it into sight, with something of what stands above it.
    void select(int at, int length);

    /// The page without its folder: "search.html".
    QString page() const;

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    double typeScale() const;
    int room() const;
    void loadAgain();
    QImage fitted(const QImage& picture);

    int step_;
    int narrowest_ = 0; // the room that the pictures of this page have been fitted into
    int widest_ = 0; // what they would take
};

} // namespace help
