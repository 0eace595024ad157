// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>
#include <QWidget>

#include <vector>

namespace report {

/// A button of the bar, which can be shown by its picture alone. It then keeps its tool tip and its access key, which
/// presses it at once.
class BarButton : public QPushButton {
public:
    BarButton(const QIcon& picture, const QString& words, QWidget* parent);

    void showWords(bool shown);

    int widthWith(bool words) const;

protected:
    bool event(QEvent* event) override;

private:
    QString words_;
    int width_; // with its words
};

/// The bar above the pages of a preview: groups of widgets from the left, the last of them at the right edge. In a
/// window that is too narrow for it the gaps give way, then the words of the buttons, then it takes a second row, which
/// begins with the second group. It asks for no more width than that needs.
class PreviewBar : public QWidget {
public:
    using Group = std::vector<QWidget*>;

    explicit PreviewBar(QWidget* parent);

    /// The groups, whose widgets are its children.
    void setGroups(std::vector<Group> groups);

    /// With all its words and gaps.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// A way to show it.
    struct Way {
        int gap;
        bool hasWords;
        bool hasTwoRows;
    };
    static std::vector<Way> ways();
    Way wayFor(int width) const;
    int widthOf(const Way& way) const;
    int rowWidth(const Way& way, std::size_t first, std::size_t end) const;
    int groupWidth(const Way& way, const Group& group) const;
    void arrange();
    void placeRow(const Way& way, std::size_t first, std::size_t end, int top);
    int place(const Way& way, const Group& group, int left, int top);

    std::vector<Group> groups_;
    std::vector<QLine> dividers_;
};

} // namespace report
