// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

namespace forms {

/// A widget of the toolkit with a width of its own, of which it gives up what the desktop has no room for; for the
/// layer itself, not for screens.
template <class Base>
class OwnWidth : public Base {
public:
    using Base::Base;

    /// Both in pixels. It never becomes wider than its own width, nor narrower than the least one.
    void setOwnWidth(int width, int least)
    {
        width_ = width;
        this->setMinimumWidth(least);
        this->setMaximumWidth(width);
        this->updateGeometry();
    }

    QSize sizeHint() const override
    {
        const QSize hint = Base::sizeHint();
        return width_ > 0 ? QSize(width_, hint.height()) : hint;
    }

private:
    int width_ = 0;
};

} // namespace forms
