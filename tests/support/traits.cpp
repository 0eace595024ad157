// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/traits.h"

#include "platform/forms/look.h"

#include <QtWidgets>

#include <cmath>

namespace {

QString valueOf(const QMetaProperty& property, const QWidget& widget)
{
    const QVariant value = property.read(&widget);
    if (property.isFlagType())
        return "0x" + QString::number(value.toInt(), 16);
    if (property.isEnumType())
        return property.enumerator().valueToKey(value.toInt());
    const int type = value.typeId();
    return type == QMetaType::Bool || type == QMetaType::Int || type == QMetaType::QString ? value.toString()
                                                                                           : QString();
}

// Of the font, of what the user does, of a version of the toolkit, or told elsewhere. Of a group of options the toolkit
// changes the policy itself.
bool isLeftOut(const QMetaProperty& property, const QWidget& widget)
{
    static const QRegularExpression names(
        "(width|height|position|index|text|available|checked|sectionsize)$"
        "|^(x|y|enabled|visible|title|toolTip|objectName|caption|default|value|maximum|count|readOnly|focus"
        "|isActiveWindow|mouseTracking|autoFillBackground|acceptDrops|defaultAlignment|highlightSections|"
        "sectionsClickable|sectionsMovable|frameShadow|html|markdown|documentTitle|modified)$",
        QRegularExpression::CaseInsensitiveOption);
    return names.match(property.name()).hasMatch()
        || (qobject_cast<const QRadioButton*>(&widget) && property.name() == QLatin1String("focusPolicy"));
}

// For how many characters a box is made, and how many it keeps on a small desktop.
QString charactersOf(const QWidget& box)
{
    const auto characters = [](int width) {
        int count = 0;
        while (forms::look::fieldWidth(count) < width)
            ++count;
        return QString::number(count);
    };
    return box.maximumWidth() < 9999 ? characters(box.maximumWidth()) + ".." + characters(box.minimumWidth())
                                     : QString();
}

QString iconOf(const QIcon& icon)
{
    constexpr QSize size(48, 48);
    if (!icon.isNull())
        for (const QString& file : QDir(":/pictures/icons").entryList({"*.png"}))
            if (icon.pixmap(size).toImage() == forms::look::icon(":/pictures/icons/" + file).pixmap(size).toImage())
                return file.section('.', 0, 0);
    return {};
}

QStringList traitsOf(const QWidget& widget, const QWidget& usual)
{
    QStringList traits;
    for (int at = 0; at < widget.metaObject()->propertyCount(); ++at) {
        const QMetaProperty property = widget.metaObject()->property(at);
        const QString value = valueOf(property, widget);
        if (!isLeftOut(property, widget) && value != valueOf(property, usual))
            traits += QString(property.name()) + '=' + value;
    }
    const QFont font = widget.font(), body = QApplication::font();
    if (const auto share = std::lround(100 * font.pointSizeF() / body.pointSizeF()); share != 100)
        traits += QString("font=%1% %2").arg(share).arg(font.weight());
    if (widget.cursor().shape() == Qt::PointingHandCursor)
        traits += "a hand points";
    if (widget.sizePolicy().retainSizeWhenHidden())
        traits += "keeps its place";
    if (qobject_cast<const QTableView*>(&widget) && !widget.testAttribute(Qt::WA_InputMethodEnabled))
        traits += "no input method";
    if (widget.isWindow() && widget.windowRole() != widget.objectName())
        traits += "role=" + widget.windowRole();
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget); header && header->count() > 0)
        traits += "columns=" + QVariant::fromValue(header->sectionResizeMode(0)).toString();
    if (const auto* label = qobject_cast<const QLabel*>(&widget); label && label->buddy())
        traits += "names >" + label->buddy()->objectName();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget); button && !button->icon().isNull())
        traits += "icon=" + iconOf(button->icon());
    if (qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget)
        || qobject_cast<const QPlainTextEdit*>(&widget))
        if (const QString characters = charactersOf(widget); !characters.isEmpty())
            traits += "characters=" + characters;
    return traits;
}

// The members of an array in one: "txtInfo(0 1 2)".
QString together(const QStringList& names)
{
    QStringList all;
    for (const QString& name : names) {
        const QString array = name.section('(', 0, 0) + '(';
        const bool goesOn = name.endsWith(')') && !all.isEmpty() && all.last().startsWith(array);
        if (goesOn)
            all.last().replace(')', ' ' + name.mid(array.size()));
        else
            all += name;
    }
    return all.join(' ');
}

} // namespace

Traits::Traits()
{
    const auto add = [this](auto* widget) { usual_[widget->metaObject()->className()].reset(widget); };
    add(new QCheckBox), add(new QComboBox), add(new QFrame), add(new QGroupBox), add(new QLabel);
    add(new QHeaderView(Qt::Horizontal)), add(new QLineEdit), add(new QListView), add(new QPlainTextEdit);
    add(new QProgressBar), add(new QPushButton), add(new QRadioButton), add(new QScrollArea);
    add(new QTableView), add(new QTreeWidget), add(new QWidget), add(new QListWidget), add(new QSplitter);
    add(new QStackedWidget), add(new QTextBrowser);
}

Traits::~Traits() = default;

void Traits::add(const QWidget& window, const QString& name)
{
    QList<const QWidget*> all = window.findChildren<const QWidget*>();
    all.prepend(&window);
    for (const QWidget* widget : all) {
        const QString own = widget->metaObject()->className();
        const auto usual = usual_.find(own);
        if (usual == usual_.end())
            continue; // a part that the toolkit makes for itself alone
        const QWidget* owner = widget;
        while (owner->parentWidget() && (owner->objectName().isEmpty() || owner->objectName().startsWith("qt_")))
            owner = owner->parentWidget();
        const QString kind = owner == widget ? own : owner->metaObject()->className() + QString("/") + own;
        const QString part = owner->objectName(), row = QString::number(part.section('(', 1).remove(')').toInt() + 1);
        ++widgets_[kind];
        for (QString trait : traitsOf(*widget, *usual->second)) {
            trait.replace("row " + row, "row #");
            const qsizetype aim = trait.indexOf(" >");
            ++having_[kind + ' ' + trait.left(aim)];
            owners_[kind + ' ' + trait.left(aim)][name] += part + (aim < 0 ? QString() : trait.mid(aim + 1));
        }
    }
}

QString Traits::told()
{
    QString all;
    for (auto trait = owners_.begin(); trait != owners_.end(); ++trait) {
        QStringList forms;
        for (auto form = trait->begin(); form != trait->end(); ++form)
            form->removeDuplicates(), forms += form.key() + ' ' + together(*form);
        const bool isOfAll = having_[trait.key()] == widgets_[trait.key().section(' ', 0, 0)];
        all += trait.key() + (isOfAll ? QString() : ": " + forms.join("; ")) + '\n';
    }
    return all;
}
