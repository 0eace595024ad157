// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/user.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace user {

namespace {

QAbstractItemView& openedList(forms::ComboBox& box)
{
    const int arrow = box.widget()->width() - box.widget()->height() / 2;
    clickAt(box, {arrow, box.widget()->height() / 2});
    QWidget* popup = QApplication::activePopupWidget();
    auto* view = popup ? popup->findChild<QAbstractItemView*>() : nullptr;
    if (!view)
        throw std::logic_error("The list of " + box.name().toStdString() + " doesn't open");
    return *view;
}

QModelIndex itemIn(const QAbstractItemView& view, const QString& item, const QString& list)
{
    QString items;
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        const QModelIndex index = view.model()->index(row, 0);
        if (index.data().toString() == item)
            return index;
        items += QStringLiteral(" \"%1\"").arg(index.data().toString());
    }
    throw std::out_of_range(QStringLiteral("%1 has no item \"%2\". There are:%3").arg(list, item, items).toStdString());
}

void choose(QMenu& menu, const QString& caption)
{
    const QList<QAction*> actions = menu.actions();
    const auto found = std::find_if(actions.begin(), actions.end(),
        [&caption](const QAction* action) { return action->text().remove(QLatin1Char('&')) == caption; });
    EXPECT_NE(found, actions.end()) << "No command " << caption.toStdString();
    if (found == actions.end() || !(*found)->isEnabled()) {
        menu.close(); // as a user leaves it who finds the command grey
        return;
    }
    const QPoint middle = menu.actionGeometry(*found).center();
    QTest::mouseMove(menu.windowHandle(), middle);
    QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, middle);
}

} // namespace

void pick(forms::ComboBox& box, const QString& item)
{
    QAbstractItemView& view = openedList(box);
    const QModelIndex index = itemIn(view, item, box.name());
    view.scrollTo(index);
    QWidget& popup = *view.window();
    const QPoint middle = view.viewport()->mapTo(&popup, view.visualRect(index).center());
    // The pointer travels to the item: a release where the press was is taken for the end of the opening click.
    QTest::mouseMove(popup.windowHandle(), {1, 1});
    QTest::mouseMove(popup.windowHandle(), middle);
    QTest::mouseClick(popup.windowHandle(), Qt::LeftButton, {}, middle);
}

void pasteByMenu(forms::Control& control, const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    // The menu has an event loop of its own, inside the click.
    bool chosen = false;
    QTimer inMenu;
    QObject::connect(&inMenu, &QTimer::timeout, &inMenu, [&inMenu, &chosen] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            inMenu.stop();
            chosen = true;
            choose(*menu, QStringLiteral("Paste"));
        }
    });
    inMenu.start(0);
    rightClick(control);
    if (!chosen)
        throw std::logic_error("No menu opens on " + control.name().toStdString());
}

} // namespace user
