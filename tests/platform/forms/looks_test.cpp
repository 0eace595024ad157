// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include "platform/forms/looks/apply_look.h"
#include "platform/forms/looks/style_painting.h"
#include "platform/forms/screens/painting.h"
#include "support/files.h"
#include "support/traits.h"

#include <QtWidgets>

#include <algorithm>
#include <cmath>

namespace look = forms::look;

namespace {

class Looks : public FormInFront {
protected:
    ~Looks() override { setDesktopFont(usual_); }

    static void setDesktopFont(double points)
    {
        QFont font = QApplication::font();
        font.setPointSizeF(points);
        QApplication::setFont(font);
    }

private:
    const double usual_ = QApplication::font().pointSizeF();
};

TEST_F(Looks, AHandlerThatWorksOnKeepsItsScreenPainted)
{
    struct Counter : QObject {
        int painted = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            painted += event->type() == QEvent::Paint;
            return false;
        }
    } counter;
    form.ok.widget()->installEventFilter(&counter);
    form.answers["ok.Click"] = [&] {
        counter.painted = 0;
        for (const QString& words : {QString("One"), QString("Two")}) {
            form.ok.setCaption(words);
            forms::keepPainted();
            EXPECT_EQ(counter.painted, 1) << "not yet, or twice in a blink";
        }
    };
    click(form.ok);
}

TEST_F(Looks, WidgetsAreMadeAsKept)
{
    forms::Form bare("Bare");
    forms::MonthCalendar withoutDay(bare, "withoutDay");
    withoutDay.setMonth(2);
    withoutDay.setYear(2007);
    Traits traits;
    traits.add(*form.window(), form.name());
    traits.add(*bare.window(), bare.name());
    expectKept("platform/forms/traits.txt", traits.told());
}

// ---- message boxes

// What of its text a box has no room for, measured apart from the toolkit's label.
void expectWholeText(const QLabel& words, const QString& text)
{
    EXPECT_EQ(words.text(), text);
    const QRect place = words.contentsRect().adjusted(std::max(0, words.indent()), 0, 0, 0);
    const QFontMetrics metrics = words.fontMetrics();
    const QRect needed = metrics.boundingRect(QRect(0, 0, place.width(), 0), Qt::TextWordWrap, text);
    EXPECT_TRUE(needed.width() <= place.width() && needed.height() <= place.height()) << text.toStdString();
    EXPECT_LE(place.width(), metrics.averageCharWidth() * 62) << "lines too long to read";
    const QRect narrower(0, 0, place.width() - metrics.averageCharWidth(), 0);
    const QRect inNarrower = metrics.boundingRect(narrower, Qt::TextWordWrap, text);
    EXPECT_TRUE(inNarrower.height() > needed.height() || inNarrower.width() > narrower.width())
        << "a last line is shorter than it has to be: " << text.toStdString();
    EXPECT_TRUE(words.rect().contains(place) && words.window()->rect().contains(words.geometry()))
        << text.toStdString();
}

TEST_F(Looks, AMessageBoxShowsItsWholeTextInTheMiddleOfItsScreenAtEveryTypeSize)
{
    const look::Colours& the = look::colours();
    constexpr QRgb absent = 0xFF010203; // from every picture
    const std::tuple<int, QString, QString, QColor> boxes[] = {
        {forms::box::Information, "Information", "          Account Has Been Updated!", the.accent},
        {forms::box::Exclamation, "Warning", "You Must Select A Future Policy Expiration Date Before This Option!",
            the.warning},
        {forms::box::Question, "Question", "Several words\n\n" + QString("A sentence of five words. ").repeated(9),
            the.accent},
        {forms::box::Stop, "Error", "A folder without a blank: <b>/home/someone/</b>" + QString(40, u'x'), the.danger}};
    useRealBoxes();
    for (const double points : {9.0, 12.0, 16.0}) {
        setDesktopFont(points);
        for (const auto& each : boxes) {
            const forms::WaitPointer pointer;
            whileModal([&] {
                const auto& [_, name, text, colour] = each;
                const QWidget& box = *QApplication::activeModalWidget();
                expectWholeText(*box.findChild<QLabel*>("qt_msgbox_label"), text);
                EXPECT_LE(box.width(), box.screen()->availableGeometry().width());
                EXPECT_LE((box.geometry().center() - form.window()->geometry().center()).manhattanLength(), 2);
                const auto& sign = *box.findChild<QLabel*>("qt_msgboxex_icon_label");
                EXPECT_EQ(sign.accessibleName() + box.windowTitle() + box.windowRole(), name + "TitleMsgBox");
                const QImage disc = sign.pixmap().toImage();
                EXPECT_EQ(disc.pixelColor(disc.width() / 2, 3), colour);
                EXPECT_NE(disc.createMaskFromColor(the.field.rgba()), disc.createMaskFromColor(absent)) << "no mark";
                EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
                press(Qt::Key_Enter);
            });
            EXPECT_EQ(
                forms::MsgBox(std::get<2>(each), std::get<0>(each) + forms::box::YesNo, "Title"), forms::Answer::Yes);
            EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        }
    }
    EXPECT_FALSE(QApplication::overrideCursor());
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed()) << "a box that closes alone ends nothing";
}

// By the toolkit where it paints icons itself, and by the layer's own widgets; on a sharp screen from the sharp file,
// and never larger than in the largest.
TEST_F(Looks, APictureIsReadInTheDensityInWhichItIsShown)
{
    const QTemporaryDir folder;
    const std::pair<const char*, QColor> densities[] = {{"", Qt::red}, {"@2x", Qt::green}, {"@3x", Qt::blue}};
    for (int density = 0; density < 3; ++density) {
        QPixmap picture(20 * (density + 1), 10 * (density + 1));
        picture.fill(densities[density].second);
        picture.save(folder.filePath(QString("sign%1.png").arg(densities[density].first)));
    }
    const QIcon icon = look::icon(folder.filePath("sign.png"));
    const auto shown = [&icon](int width, int height, QIcon::Mode mode = QIcon::Normal) {
        const QImage image = icon.pixmap(QSize(width, height), mode).toImage();
        return QString("%1x%2 %3").arg(image.width()).arg(image.height()).arg(image.pixelColor(5, 5).name());
    };
    EXPECT_EQ(QStringList({shown(20, 10), shown(21, 10), shown(20, 11), shown(40, 40), shown(60, 30), shown(90, 90)})
                  .join(", "),
        "20x10 #ff0000, 20x10 #00ff00, 20x10 #00ff00, 40x20 #0000ff, 60x30 #0000ff, 60x30 #0000ff");
    EXPECT_NE(shown(20, 10, QIcon::Disabled), shown(20, 10));
    QImage painted(60, 30, QImage::Format_RGB32);
    painted.setDevicePixelRatio(2);
    QPainter painter(&painted);
    icon.paint(&painter, QRect(0, 0, 30, 15));
    EXPECT_EQ(painted.pixelColor(30, 15), QColor(Qt::blue));
    const QPixmap sign = look::paint::sign(QStyle::SP_MessageBoxWarning, 32, 2);
    EXPECT_EQ(sign.deviceIndependentSize() * 2, sign.size());
}

// ---- sizes

TEST_F(Looks, TypeIsNeverTooSmallAndEverythingGrowsWithItButColoursAndSidesAreItsOwn)
{
    setDesktopFont(9);
    look::apply(*qApp);
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), 11);
    EXPECT_NEAR(look::fontOf(forms::TextRole::Hint).pointSizeF(), 10, 0.01);
    const double window = look::leastWindow().width();
    const double indicator = QApplication::style()->pixelMetric(QStyle::PM_IndicatorWidth);
    const QPalette light = QApplication::palette();
    setDesktopFont(16);
    QApplication::setPalette(QPalette(Qt::black));
    QApplication::setLayoutDirection(Qt::RightToLeft);
    look::apply(*qApp);
    EXPECT_TRUE(QApplication::palette() == light);
    EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), 16);
    EXPECT_NEAR(look::leastWindow().width() / window, 16.0 / 11, 0.15);
    EXPECT_NEAR(QApplication::style()->pixelMetric(QStyle::PM_IndicatorWidth) / indicator, 16.0 / 11, 0.15);
}

// ---- windows, on a desktop of 800 by 800 pixels, each in a frame of 2

TEST_F(Looks, AScreenLargerThanTheDesktopShrinksItsPicturesThenItsGapsThenScrollsToTheFocus)
{
    settle();
    const QTemporaryDir folder;
    const QString file = folder.filePath("picture.png");
    QPixmap(8, 200).save(file);
    const auto shown = [&](QSize beyond) {
        TrialForm large(journal, "Large");
        forms::Picture ornament(large, "ornament");
        auto* column = qobject_cast<QVBoxLayout*>(large.canvas()->layout());
        auto* inner = new QVBoxLayout;
        ornament.setPicture(file, "A picture");
        inner->addWidget(ornament.widget());
        column->addLayout(inner);
        column->insertSpacing(0, 40);
        const int full = ornament.widget()->height();
        const double gap = column->spacing();
        for (forms::Control* each : large.controls())
            each->setVisible(each == &large.memo || each == &ornament || each == &large.ok);
        QWidget& memo = *large.memo.widget();
        memo.setFixedSize(500, 100);
        memo.setFixedSize(memo.size() + QSize(796, 796) + beyond - large.canvas()->sizeHint());
        large.show();
        settle();
        large.hide();
        large.show();
        const QSize window = large.window()->size();
        const QSize seen = large.canvas()->parentWidget()->size();
        const QSize hidden = large.canvas()->size() - seen;
        const QSizeF bars = (window - seen).toSizeF() / QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        EXPECT_EQ(column->itemAt(0)->sizeHint().height() / 40.0, column->spacing() / gap);
        large.ok.setFocus(); // as a handler does; the toolkit itself follows the Tab key
        EXPECT_EQ(large.ok.widget()->visibleRegion().boundingRect().height(), large.ok.widget()->height());
        QString told = QString("picture %1, gap %2, cut %3 %4, bars %5 %6")
                           .arg(ornament.isVisible() ? 100 * ornament.widget()->height() / full : 0)
                           .arg(column->spacing() / gap)
                           .arg(hidden.width() > 0)
                           .arg(hidden.height() > 0)
                           .arg(bars.width())
                           .arg(bars.height());
        EXPECT_FALSE(large.picture.isVisible()) << "no ornament, since it can be clicked, and so left alone";
        large.hide();
        memo.setFixedHeight(100);
        large.show();
        EXPECT_EQ(large.window()->size(), window) << "no screen shrinks between two visits";
        return told;
    };
    EXPECT_EQ(shown({0, 0}), "picture 100, gap 1, cut 0 0, bars 0 0");
    EXPECT_EQ(shown({0, 1}), "picture 75, gap 1, cut 0 0, bars 0 0");
    EXPECT_EQ(shown({0, 70}), "picture 50, gap 1, cut 0 0, bars 0 0");
    EXPECT_EQ(shown({0, 150}), "picture 0, gap 1, cut 0 0, bars 0 0");
    EXPECT_EQ(shown({0, 210}), "picture 0, gap 0.5, cut 0 0, bars 0 0");
    EXPECT_EQ(shown({1, 0}), "picture 0, gap 0.5, cut 0 0, bars 0 0");
    EXPECT_EQ(shown({0, 900}), "picture 0, gap 0.5, cut 1 1, bars 1 1");
    EXPECT_EQ(shown({-100, 900}), "picture 0, gap 0.5, cut 0 1, bars 1 0");
    EXPECT_EQ(shown({900, -300}), "picture 0, gap 0.5, cut 1 0, bars 0 1");
}

TEST_F(Looks, BoxesGiveUpWidthAndPairsGoBelowEachOtherBeforeAnythingIsCutAtTheSide)
{
    settle();
    const QString words = "Words that have all the room";
    const auto shown = [&](int characters, int least) {
        TrialForm wide(journal, "Wide");
        auto* pair = look::besideOrBelow(look::grid(1));
        for (forms::Control* each : wide.controls())
            each->setVisible(each == &wide.line || each == &wide.combo || each == &wide.ok);
        wide.line.setWidthInCharacters(characters, least);
        wide.combo.setWidthInCharacters(characters, least);
        wide.line.setToldWhole(true);
        wide.line.setText(words);
        pair->addWidget(wide.line.widget());
        pair->addWidget(wide.combo.widget());
        qobject_cast<QVBoxLayout*>(wide.canvas()->layout())->insertLayout(0, pair);
        wide.show();
        settle();
        const QWidget& line = *wide.line.widget();
        EXPECT_NEAR(line.width(), wide.combo.widget()->width(), 1);
        return QString("%1, %2, cut %3, tip %4")
            .arg(line.width() == look::fieldWidth(characters) ? "whole" : "narrow",
                line.y() == wide.combo.widget()->y() ? "beside" : "below")
            .arg(wide.canvas()->width() > wide.canvas()->parentWidget()->width())
            .arg(wide.line.toolTip());
    };
    EXPECT_EQ(shown(30, 10), "whole, beside, cut 0, tip ");
    EXPECT_EQ(shown(70, 10), "narrow, beside, cut 0, tip ");
    EXPECT_EQ(shown(70, 60), "whole, below, cut 0, tip ");
    EXPECT_EQ(shown(120, 110), "narrow, below, cut 1, tip ");
}

// ---- painting

double luminance(const QColor& colour)
{
    const auto linear = [](double share) {
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

// The contrasts of text, hints, accents and links, which are 4.5 at least, and of lines and signs, 3 at least, to the
// ground, a field, a button, a pressed button and an error, of which the last two have text alone. Then colours of the
// palette by pairs, those of letters first, and of letters elsewhere.
TEST_F(Looks, ColoursAreAsKept)
{
    const look::Colours& the = look::colours();
    QString all;
    for (const QColor& mark : {the.text, the.quiet, the.accent, the.link, the.line, the.warning, the.danger}) {
        all += mark.name();
        for (const QColor& behind : {the.ground, the.field, the.buttonFace, the.pressed, the.error})
            all += QString(" %1").arg((luminance(behind) + 0.05) / (luminance(mark) + 0.05), 0, 'f', 1);
        all += '\n';
    }
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto role : {QPalette::Text, QPalette::Base, QPalette::HighlightedText, QPalette::Highlight,
                 QPalette::ToolTipText, QPalette::ToolTipBase, QPalette::WindowText, QPalette::ButtonText,
                 QPalette::PlaceholderText, QPalette::Window, QPalette::AlternateBase, QPalette::Mid})
            all += ' ' + QApplication::palette().color(group, role).name();
        all += '\n';
    }
    expectKept("platform/forms/colours.txt", all);
}

// What isn't of the colour of a field.
QRect inkOf(const QImage& image)
{
    QRegion ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) != look::colours().field)
                ink += QRect(x, y, 1, 1);
    return ink.boundingRect();
}

QImage picture(const forms::Control& control)
{
    return control.widget()->grab().toImage();
}

TEST_F(Looks, BoxesAndListsHaveRoomForWhatTheyAreMadeFor)
{
    const QStringList widest{"2026-11-24", "$1,000,000"};
    form.records.setColumns({"Made", "Price"}, widest);
    form.records.alignRight(1);
    form.records.addRecord(widest);
    form.records.addRecord({"", "$5"});
    form.memo.setSizeInCharacters(20, 3);
    form.line.setWidthInCharacters(20);
    form.combo.setWidthInCharacters(20);
    const QSize size = form.choice.widget()->sizeHint();
    form.choice.addItems(QStringList(30, QString(99, 'm')));
    EXPECT_EQ(form.choice.widget()->sizeHint(), size) << "whatever is in the list";
    form.choice.openList();
    settle();
    const auto& list = *QApplication::activePopupWidget()->findChild<QAbstractItemView*>();
    EXPECT_EQ(list.viewport()->height() / list.sizeHintForRow(0), 16);
    press(Qt::Key_Escape);
    auto& tree = *qobject_cast<QTreeWidget*>(form.records.widget());
    const int row = tree.visualItemRect(tree.topLevelItem(0)).height();
    EXPECT_NEAR(tree.viewport()->height(), 3 * row + 1, 1);
    EXPECT_EQ(tree.header()->length(), tree.viewport()->width());
    for (const int column : {0, 1})
        EXPECT_NEAR(tree.columnWidth(column) - look::grid(2), tree.fontMetrics().horizontalAdvance(widest[column]), 4);
    const QRect price(tree.columnWidth(0), row, tree.columnWidth(1), row);
    EXPECT_GT(inkOf(tree.viewport()->grab(price).toImage()).x(), price.width() / 2) << "on the right";
    const auto& memo = *qobject_cast<QPlainTextEdit*>(form.memo.widget());
    EXPECT_EQ(memo.viewport()->height() / memo.fontMetrics().lineSpacing(), 3);
    EXPECT_EQ(form.line.widget()->width(), form.combo.widget()->width());
    EXPECT_EQ(form.line.widget()->width(), form.memo.widget()->width());
    form.records.setRows(5, 2);
    EXPECT_EQ(tree.sizeHint().height(), tree.maximumHeight());
}

TEST_F(Looks, LongNamesAreToldApartInTheList)
{
    const QString shelf = "The shelf behind the boiler, where preserves stand in rows";
    const QString house = "The house " + QString(99, 'x');
    form.combo.setWidthInCharacters(20);
    form.combo.addItems({shelf + " of twelve", shelf + " of ten", house + " A", house + " B"});
    form.combo.openList();
    settle();
    auto& list = *QApplication::activePopupWidget()->findChild<QAbstractItemView*>();
    const auto place = [&](int row) { return list.visualRect(list.model()->index(row, 0)); };
    const auto painted = [&](int row) { return list.viewport()->grab(place(row)).toImage(); };
    const auto tip = [&](int row) {
        QHelpEvent asked(QEvent::ToolTip, place(row).center(), list.viewport()->mapToGlobal(place(row).center()));
        QCoreApplication::sendEvent(list.viewport(), &asked);
        return QToolTip::text();
    };
    EXPECT_GE(list.width(), list.fontMetrics().horizontalAdvance(shelf + " of twelve"));
    EXPECT_LE(list.width(), list.screen()->availableSize().width());
    EXPECT_NE(painted(3), painted(4));
    EXPECT_NE(painted(5), painted(6));
    EXPECT_EQ(tip(4), "");
    EXPECT_EQ(tip(6), house + " B");
    press(Qt::Key_Escape);
    form.combo.clear();
    form.combo.addItems({"alpha"});
    form.combo.openList();
    settle();
    EXPECT_NEAR(list.width(), form.combo.widget()->width(), 4);
    press(Qt::Key_Escape);
}

TEST_F(Looks, TextsStandWhereTheyBelong)
{
    settle();
    form.ok.setFocus();
    form.choice.addItem("III");
    const auto left = [](const forms::Control& box) { return inkOf(picture(box).copy(5, 5, 50, 15)).left(); };
    for (forms::TextEntry* box :
        std::initializer_list<forms::TextEntry*>{&form.line, &form.memo, &form.combo, &form.choice}) {
        box->setText("III");
        EXPECT_NEAR(left(*box), left(form.line), 1) << box->name().toStdString();
    }
    for (const auto alignment : {forms::Alignment::Left, forms::Alignment::Centre, forms::Alignment::Right}) {
        form.line.setAlignment(alignment);
        const QImage inside = picture(form.line).copy(5, 5, form.line.widget()->width() - 10, 15);
        EXPECT_EQ(inkOf(inside).center().x() * 3 / inside.width(), static_cast<int>(alignment));
    }
    for (forms::TextEntry* box : std::initializer_list<forms::TextEntry*>{&form.line, &form.combo}) {
        box->setText(QString(200, 'm'));
        const int width = box->widget()->width();
        const QRect end(width / 2, 5, width / 2 - 5, look::grid(2));
        const QImage dots = picture(*box).copy(end);
        box->setFocus();
        EXPECT_NE(picture(*box).copy(end), dots) << "no ellipsis while the focus is elsewhere";
        EXPECT_EQ(inkOf(picture(*box).copy(end)).top(), inkOf(dots).top());
    }

    const int room = QFontMetrics(look::fontOf(forms::TextRole::Heading)).horizontalAdvance(')');
    const std::tuple<forms::TextRole, QString, QString> amounts[] = {{forms::TextRole::Heading, "($5.00)", ")"},
        {forms::TextRole::Body, "($5.00)", ")"}, {forms::TextRole::Body, "$1,234.56", ""},
        {forms::TextRole::Heading, "8", ""}};
    form.label.setCaption("8");
    form.label.alignAmounts();
    const QWidget& label = *form.label.widget();
    EXPECT_EQ(label.contentsMargins().right(), room) << "of the caption that it has already";
    for (const auto& [role, amount, overhanging] : amounts) {
        form.label.setRole(role);
        form.label.setCaption(amount);
        EXPECT_EQ(label.contentsMargins().right() + label.fontMetrics().horizontalAdvance(overhanging), room);
    }
}

} // namespace
