// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QStringList>

namespace forms {

/// The items of a combo box; for the layer itself, not for screens. The toolkit's own model is slow with many.
class ItemList : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    void replace(const QStringList& items);
    const QStringList& items() const { return items_; }

private:
    QStringList items_;
};

/// The list that a combo box opens; for the layer itself, not for screens. An item that is too long for it loses its
/// middle, and stands whole in a tool tip.
class OpenList : public QListView {
public:
    explicit OpenList(QWidget* parent);

    /// Makes it wide enough for the longest item, but no wider than a line can be read, or the desktop is. It is never
    /// narrower than its box.
    void fitItems(int desktop);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void copyMarked() const;
    int widthOf(const QModelIndex& item) const;
    void tellWhole(const QHelpEvent& event) const;
};

} // namespace forms
