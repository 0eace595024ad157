// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/controls/combo_box.h"

#include "platform/forms/controls/item_list.h"
#include "platform/forms/controls/line_edit.h"
#include "platform/forms/controls/own_width.h"
#include "platform/forms/input/input_filter.h"
#include "platform/forms/input/keyboard.h"
#include "platform/forms/looks/theme.h"
#include "platform/forms/runtime/boundary.h"
#include "platform/forms/screens/form.h"
#include "platform/forms/screens/stage.h"
#include "platform/values/collation.h"
#include "platform/values/failure.h"

#include <QComboBox>
#include <QWheelEvent>

#include <algorithm>

namespace forms {

/// The entry of a list; an item that is picked comes in by the toolkit.
class ComboLine : public LineEdit {
public:
    ComboLine(QComboBox* combo, TextEntry& box)
        : LineEdit(combo, box)
        , combo_(combo)
    {
    }

protected:
    bool isOwnDoing() const override
    {
        const int picked = combo_->currentIndex();
        return LineEdit::isOwnDoing() || (picked >= 0 && text() == combo_->itemText(picked));
    }

private:
    QComboBox* combo_;
};

/// The toolkit's box, with what it does on its own taken out: it completes nothing, adds nothing and doesn't turn with
/// the wheel.
class ComboEdit : public OwnWidth<QComboBox> {
public:
    ComboEdit(QWidget* parent, ComboBox& box, ComboStyle style, ItemList& items)
        : OwnWidth(parent)
        , box_(box)
        , items_(items)
    {
        setInsertPolicy(NoInsert);
        setFocusPolicy(Qt::StrongFocus);
        setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
        list_ = new OpenList(this);
        setView(list_);
        list_->installEventFilter(this); // before the filter that setView() has given it
        setModel(&items);
        setMaxVisibleItems(16);
        if (style == ComboStyle::Editable)
            makeEditable();
        QObject::connect(this, &QComboBox::activated, this, [this] { picked(); });
    }

    LineEdit* entry() const { return entry_; }

    /// Replaces the items; text and selected item stay.
    void setItems(const QStringList& items, int selected)
    {
        const ToolkitCall call;
        const QString text = entry_ ? entry_->text() : QString();
        items_.replace(items);
        setCurrentIndex(selected);
        if (entry_)
            showText(text);
    }

    /// The caret stands behind the text, but where that is longer than the box and would show its end.
    void showText(const QString& text)
    {
        entry_->setText(text);
        showBeginning();
    }

    bool locked() const { return locked_; }

    void setLocked(bool locked)
    {
        locked_ = locked;
        if (entry_)
            entry_->setReadOnly(locked);
    }

    void showPopup() override
    {
        const int interruptions = Stage::instance().interruptions();
        fromToolkit([this] { box_.DropDown.fire(); });
        if (locked_ || Stage::instance().interruptions() != interruptions)
            return; // no list stays open behind a box
        selectWhatTheTextSays();
        list_->fitItems(screen()->availableSize().width());
        QComboBox::showPopup();
    }

protected:
    // A key that opens a list closes it again and picks nothing; versions of the toolkit differ there.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
        if (!isKey || !closesTheList(static_cast<QKeyEvent&>(*event)))
            return QComboBox::eventFilter(watched, event);
        event->accept();
        if (event->type() == QEvent::KeyPress)
            hidePopup();
        return true;
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        fromToolkit([this, event] { handleKey(*event); });
        event->accept();
    }

    void keyReleaseEvent(QKeyEvent* event) override
    {
        fromToolkit([this, event] { Keyboard::up(box_, *event); });
        event->accept();
    }

    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

    // Before the list opens, so that none stands open behind what a handler shows.
    void mousePressEvent(QMouseEvent* event) override
    {
        fromToolkit([this] {
            pressed_ = InputFilter::instance().reaches(box_);
            if (pressed_)
                box_.MouseDown.fire();
        });
        if (pressed_)
            QComboBox::mousePressEvent(event);
        event->accept();
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        QComboBox::mouseReleaseEvent(event);
        if (std::exchange(pressed_, false))
            fromToolkit([this] { box_.MouseUp.fire(); });
    }

    void contextMenuEvent(QContextMenuEvent* event) override { event->accept(); }

private:
    void makeEditable()
    {
        entry_ = new ComboLine(this, box_);
        setLineEdit(entry_);
        setCompleter(nullptr);
        entry_->setContextMenuPolicy(Qt::DefaultContextMenu);
        // The toolkit would take a text that an item has for a pick of it.
        QObject::disconnect(entry_, &QLineEdit::editingFinished, this, nullptr);
    }

    void showBeginning()
    {
        if (!entry_->fits(entry_->text()))
            entry_->setCursorPosition(0);
    }

    void picked()
    {
        if (entry_)
            showBeginning();
        if (insideToolkitCall())
            pickedByKey_ = true;
        else
            fromToolkit([this] { box_.Click.fire(); });
    }

    static bool walksTheList(const QKeyEvent& event)
    {
        switch (event.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_F4:
            return true;
        default:
            return false;
        }
    }

    // Alt with an arrow opens the list whatever handlers do with keys, as Tab moves on: no list is for the mouse alone.
    static bool opensTheList(const QKeyEvent& event)
    {
        const bool arrow = event.key() == Qt::Key_Down || event.key() == Qt::Key_Up;
        return arrow && (event.modifiers() & Qt::AltModifier);
    }

    static bool closesTheList(const QKeyEvent& event)
    {
        return event.key() == Qt::Key_F4 || (event.key() == Qt::Key_Down && opensTheList(event));
    }

    void handleKey(QKeyEvent& event)
    {
        if (opensTheList(event)) {
            if (!event.isAutoRepeat())
                showPopup();
            return;
        }
        if (entry_ && !walksTheList(event)) {
            entry_->handleKey(event);
            return;
        }
        if (Keyboard::pressDefault(box_.form(), event))
            return;
        if (Keyboard::down(box_, event))
            return;
        if (!Keyboard::pressText(box_, event))
            return;
        if (Keyboard::isEnter(event) || event.key() == Qt::Key_Escape)
            return;
        walk(event);
    }

    void walk(QKeyEvent& event)
    {
        const bool opens = event.key() == Qt::Key_F4;
        if (opens || event.key() == Qt::Key_Space) {
            if ((!entry_ || opens) && !event.isAutoRepeat())
                showPopup();
            return;
        }
        if (locked_)
            return;
        selectWhatTheTextSays();
        pickedByKey_ = false;
        {
            const ToolkitCall call;
            QComboBox::keyPressEvent(&event);
        }
        if (pickedByKey_)
            box_.Click.fire();
    }

    // Marks the item whose text stands in the box, so that list and cursor keys begin there.
    void selectWhatTheTextSays()
    {
        if (!entry_)
            return;
        const QString text = entry_->text();
        if (currentIndex() >= 0 && itemText(currentIndex()) == text)
            return; // of equal items the one that was picked
        const auto index = static_cast<int>(items_.items().indexOf(text));
        if (index == currentIndex())
            return;
        const ToolkitCall call;
        setCurrentIndex(index);
        showText(text);
    }

    ComboBox& box_;
    ItemList& items_;
    OpenList* list_ = nullptr;
    LineEdit* entry_ = nullptr;
    bool locked_ = false;
    bool pressed_ = false; // by a press that has reached the box
    bool pickedByKey_ = false;
};

namespace {

bool sortsBefore(const QString& one, const QString& other)
{
    return values::compareNames(one, other) < 0;
}

} // namespace

ComboBox::ComboBox(Form& form, const QString& name, ComboStyle style, ItemOrder order)
    : TextEntry(form, name)
    , style_(style)
    , order_(order)
{
    const ToolkitCall call;
    items_ = new ItemList;
    combo_ = new ComboEdit(form.canvas(), *this, style, *items_);
    items_->setParent(combo_);
    adopt(combo_);
}

// ---- the list

void ComboBox::addItem(const QString& item)
{
    addItems({item});
}

void ComboBox::addItems(const QStringList& added)
{
    QStringList items = items_->items();
    const int selected = combo_->currentIndex();
    const QString selectedItem = list(selected);
    const auto old = items.size();
    items += added;
    if (order_ == ItemOrder::Sorted) {
        // Equal names keep the order in which they came, as if added one by one.
        std::stable_sort(items.begin() + old, items.end(), sortsBefore);
        std::inplace_merge(items.begin(), items.begin() + old, items.end(), sortsBefore);
    }
    combo_->setItems(items, selected < 0 ? -1 : static_cast<int>(items.indexOf(selectedItem)));
}

void ComboBox::clear()
{
    combo_->setItems({}, -1);
    if (combo_->entry())
        combo_->entry()->put({});
}

int ComboBox::listCount() const
{
    return static_cast<int>(items_->items().size());
}

QString ComboBox::list(int index) const
{
    return items_->items().value(index);
}

int ComboBox::listIndex() const
{
    const int index = combo_->currentIndex();
    return index >= 0 && list(index) == text() ? index : -1;
}

void ComboBox::setListIndex(int index)
{
    if (index < -1 || index >= listCount())
        throw values::RuntimeFailure(
            values::FailureKind::InvalidCall, QStringLiteral("%1 has no item %2").arg(name()).arg(index));
    if (index == listIndex())
        return;
    {
        const ToolkitCall call;
        combo_->setCurrentIndex(index);
        if (combo_->entry())
            combo_->showText(list(index));
    }
    Click.fire();
}

// ---- the text

Entry* ComboBox::entry() const
{
    return combo_->entry();
}

QString ComboBox::text() const
{
    return combo_->entry() ? combo_->entry()->text() : list(combo_->currentIndex());
}

void ComboBox::setText(const QString& text)
{
    if (style_ == ComboStyle::PickOnly) {
        const auto index = text.isEmpty() ? -1 : static_cast<int>(items_->items().indexOf(text));
        if (index < 0 && !text.isEmpty())
            throw values::RuntimeFailure(
                values::FailureKind::InvalidCall, QStringLiteral("%1 has no item \"%2\"").arg(name(), text));
        setListIndex(index);
        return;
    }
    TextEntry::setText(text);
}

void ComboBox::setLocked(bool locked)
{
    combo_->setLocked(locked);
}

bool ComboBox::isLocked() const
{
    return combo_->locked();
}

// ---- looks

void ComboBox::setWidthInCharacters(int characters, int least)
{
    combo_->setOwnWidth(look::fieldWidth(characters), look::fieldWidth(least > 0 ? least : characters));
}

void ComboBox::openList()
{
    combo_->showPopup();
}

} // namespace forms
