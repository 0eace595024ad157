// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include "platform/forms/look.h"
#include "platform/forms/record_list.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

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
    EXPECT_TRUE(words.window()->rect().contains(words.geometry())) << text.toStdString();
}

TEST_F(Looks, AMessageBoxShowsItsWholeTextAtEveryTypeSize)
{
    const QString texts[] = {"          Account Has Been Updated!",
        "You Must Select A Future Policy Expiration Date Before Selecting This Option!",
        QString("Several lines of several words\n\n") + QString("A sentence of five words. ").repeated(9),
        "A folder without a blank: /home/someone/" + QString(40, u'x')};
    useRealBoxes();
    for (const double points : {9.0, 12.0, 16.0}) {
        setDesktopFont(points);
        for (const QString& text : texts) {
            whileModal([&text] {
                const QWidget& box = *QApplication::activeModalWidget();
                expectWholeText(*box.findChild<QLabel*>("qt_msgbox_label"), text);
                EXPECT_LE(box.width(), box.screen()->availableGeometry().width());
                press(Qt::Key_Enter);
            });
            EXPECT_EQ(forms::MsgBox(text, forms::box::Question + forms::box::YesNo, "Title"), forms::Answer::Yes);
        }
    }
}

// ---- the focus

QImage pictureOf(const forms::Control& control)
{
    settle();
    return control.widget()->grab().toImage();
}

// Pixels that look otherwise now.
int changeOf(const forms::Control& control, const QImage& before)
{
    const QImage now = pictureOf(control);
    int count = 0;
    for (int y = 0; y < now.height(); ++y)
        for (int x = 0; x < now.width(); ++x)
            count += now.pixel(x, y) != before.pixel(x, y) ? 1 : 0;
    return count;
}

TEST_F(Looks, EveryKindOfControlShowsThatItHasTheFocus)
{
    forms::RecordList records(form, "records");
    records.setColumns({"Made"}, {"2026-11-24"});
    forms::MonthCalendar month(form, "month");
    forms::CommandButton filled(form, "filled");
    look::mainAction(filled);
    for (const forms::Control* more : std::initializer_list<forms::Control*>{&records, &month, &filled})
        form.canvas()->layout()->addWidget(more->widget());
    form.hide();
    form.show(); // in its new size
    month.setValue(values::Date::fromDayMonthYear(24, 11, 2026));
    form.memo.setText("Some words");
    for (forms::Control* control : form.controls()) {
        if (control == &form.other)
            continue;
        form.other.setFocus();
        const QImage without = pictureOf(*control);
        control->setFocus();
        // More than a caret, which comes and goes: a frame.
        EXPECT_GT(changeOf(*control, without), 150) << control->name().toStdString();
        if (control == &form.memo) {
            form.memo.selectAll();
            EXPECT_GT(changeOf(form.memo, without), 1000) << "the selection shows";
        }
        form.other.setFocus();
        EXPECT_EQ(changeOf(*control, without), 0) << "nor is a selection left: " << control->name().toStdString();
    }
    form.combo.openList();
    settle();
    const QImage list = QApplication::activePopupWidget()->grab().toImage();
    int marks = 0;
    for (int y = 0; y < list.height(); ++y)
        marks += list.pixelColor(list.width() / 2, y) == look::colours().accent ? 1 : 0;
    EXPECT_GE(marks, 2) << "above the row that the keys are on, before one is chosen, and below it";
}

// ---- colours and sizes

double luminance(const QColor& colour)
{
    const auto linear = [](double share) {
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

void expectToStandOut(double least, const std::vector<QColor>& marks, const std::vector<QColor>& grounds)
{
    for (const QColor& mark : marks)
        for (const QColor& ground : grounds)
            EXPECT_GE(contrast(mark, ground), least) << mark.name().toStdString() << ground.name().toStdString();
}

TEST_F(Looks, TextAndFramesStandOutFromWhatIsBehindThem)
{
    const QPalette palette = QApplication::palette();
    const look::Colours& the = look::colours();
    expectToStandOut(4.5, {the.text, the.quiet, the.accent, the.link}, {the.ground, the.field, the.buttonFace});
    expectToStandOut(4.5, {the.text}, {the.pressed, the.error});
    expectToStandOut(3, {the.line, the.accent, the.warning, the.danger}, {the.ground, the.field, the.buttonFace});
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        expectToStandOut(4.5, {palette.color(group, QPalette::Text)}, {palette.color(group, QPalette::Base)});
        expectToStandOut(
            4.5, {palette.color(group, QPalette::HighlightedText)}, {palette.color(group, QPalette::Highlight)});
    }
    expectToStandOut(4.5, {palette.color(QPalette::ToolTipText)}, {palette.color(QPalette::ToolTipBase)});
}

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

// ---- windows

TEST_F(Looks, AScreenLargerThanTheDesktopScrollsToTheControlThatHasTheFocus)
{
    TrialForm tall(journal);
    tall.memo.widget()->setMinimumHeight(2000);
    tall.show();
    settle();
    const QWidget& last = *tall.ok.widget();
    EXPECT_LE(tall.window()->height(), tall.window()->screen()->availableGeometry().height());
    EXPECT_TRUE(last.visibleRegion().isEmpty());
    tall.ok.setFocus(); // as a handler does; the toolkit itself follows the Tab key
    EXPECT_EQ(last.visibleRegion().boundingRect(), last.rect());
}

TEST_F(Looks, AScreenOpensWhereTheOneBeforeStoodWithinTheDesktop)
{
    TrialForm first(journal);
    TrialForm second(journal);
    first.show();
    const QRect room = first.window()->screen()->availableGeometry();
    first.window()->move(room.topLeft() + QPoint(7, 5));
    second.show();
    first.hide();
    EXPECT_EQ(second.window()->geometry().top(), first.window()->geometry().top());
    second.window()->move(room.bottomRight());
    first.show();
    EXPECT_TRUE(room.contains(first.window()->geometry()));
    EXPECT_GT(first.window()->geometry().top(), room.top() + 50) << "as near as it can be";
}

} // namespace
