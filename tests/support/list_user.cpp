// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/user.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace user {

namespace {

QAbstractItemView& openedList(forms::ComboBox& box)
{
    clickArrow(box);
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

void clickArrow(forms::ComboBox& box)
{
    const int height = box.widget()->height();
    clickAt(box, {box.widget()->width() - height / 2, height / 2});
}

bool isListOpen()
{
    return QApplication::activePopupWidget();
}

void clickInBox(const QString& caption)
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    for (QAbstractButton* button : box ? box->buttons() : QList<QAbstractButton*>()) {
        if (button->text().remove(QLatin1Char('&')) != caption)
            continue;
        QTest::mouseClick(box->windowHandle(), Qt::LeftButton, {}, button->mapTo(box, button->rect().center()));
        return;
    }
    throw std::logic_error("No message box is up that has a button " + caption.toStdString());
}

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
    bool chosen = false;
    inMenuOf(control, [&chosen](QMenu& menu) {
        chosen = true;
        choose(menu, QStringLiteral("Paste"));
    });
    if (!chosen)
        throw std::logic_error("No menu opens on " + control.name().toStdString());
}

} // namespace user
