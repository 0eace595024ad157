// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

#include "platform/forms/look.h"

#include <QAccessible>
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

class Looks : public FormsTest {
protected:
    void TearDown() override
    {
        FormsTest::TearDown();
        setDesktopFont(usual_);
    }

    static void setDesktopFont(double points)
    {
        QFont font = QApplication::font();
        font.setPointSizeF(points);
        QApplication::setFont(font);
    }

    Journal journal;

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
    EXPECT_LE(needed.width(), place.width()) << text.toStdString();
    EXPECT_LE(needed.height(), place.height()) << text.toStdString();
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
    TwoBoxes form(journal);
    for (const double points : {9.0, 12.0, 16.0}) {
        setDesktopFont(points);
        form.show();
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

int differingPixels(const QImage& one, const QImage& other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
    return count;
}

QImage pictureOf(const forms::Control& control)
{
    settle();
    return control.widget()->grab().toImage();
}

TEST_F(Looks, EveryKindOfControlShowsThatItHasTheFocus)
{
    AllKinds form(journal);
    form.memo.setText("Some words");
    form.show();
    for (forms::Control* control : form.controls()) {
        if (control == &form.other)
            continue;
        form.other.setFocus();
        const QImage without = pictureOf(*control);
        control->setFocus();
        // More than a caret, which comes and goes: a frame.
        EXPECT_GT(differingPixels(pictureOf(*control), without), 150) << control->name().toStdString();
        form.other.setFocus();
        EXPECT_EQ(differingPixels(pictureOf(*control), without), 0) << control->name().toStdString();
    }
    const QImage plain = pictureOf(form.memo);
    form.memo.setFocus();
    form.memo.selectAll();
    EXPECT_GT(differingPixels(pictureOf(form.memo), plain), 1000) << "the selection shows";
    form.other.setFocus();
    EXPECT_EQ(differingPixels(pictureOf(form.memo), plain), 0) << "a box without the focus shows no selection";
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

TEST_F(Looks, TextAndFramesStandOutFromWhatIsBehindThem)
{
    const QPalette palette = QApplication::palette();
    const look::Colours& the = look::colours();
    for (const QColor& behind : {the.ground, the.field, the.buttonFace})
        for (const QColor& words : {the.text, the.quiet, the.accent})
            EXPECT_GE(contrast(words, behind), 4.5) << words.name().toStdString() << behind.name().toStdString();
    for (const QColor& behind : {the.pressed, the.error})
        EXPECT_GE(contrast(the.text, behind), 4.5);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        EXPECT_GE(contrast(palette.color(group, QPalette::Text), palette.color(group, QPalette::Base)), 4.5) << group;
        EXPECT_GE(
            contrast(palette.color(group, QPalette::HighlightedText), palette.color(group, QPalette::Highlight)), 4.5)
            << group;
    }
    EXPECT_GE(contrast(palette.color(QPalette::ToolTipText), palette.color(QPalette::ToolTipBase)), 4.5);
    for (const QColor& behind : {the.ground, the.field, the.buttonFace})
        for (const QColor& frame : {the.line, the.accent, the.warning, the.danger})
            EXPECT_GE(contrast(frame, behind), 3) << frame.name().toStdString() << behind.name().toStdString();
}

TEST_F(Looks, TypeIsNeverTooSmallAndEverythingGrowsWithIt)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    setDesktopFont(9);
    look::apply(*qApp);
    EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), 11);
    EXPECT_NEAR(look::fontOf(forms::TextRole::Hint).pointSizeF(), 10, 0.01);
    const auto measures = [] {
        const QStyle& style = *QApplication::style();
        std::vector<int> sizes;
        for (const auto metric : {QStyle::PM_IndicatorWidth, QStyle::PM_ExclusiveIndicatorHeight,
                 QStyle::PM_ScrollBarExtent, QStyle::PM_ButtonIconSize, QStyle::PM_MessageBoxIconSize})
            sizes.push_back(style.pixelMetric(metric));
        sizes.push_back(look::rowsHeight(1));
        sizes.push_back(look::leastWindow().width());
        sizes.push_back(static_cast<int>(look::pictureScale() * 100));
        return sizes;
    };
    const std::vector<int> small = measures();
    setDesktopFont(16);
    look::apply(*qApp);
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), 16);
    const std::vector<int> large = measures();
    for (std::size_t index = 0; index < small.size(); ++index)
        EXPECT_NEAR(double(large[index]) / small[index], 16.0 / 11, 0.15) << "measure " << index;
}

TEST_F(Looks, ADarkDesktopChangesNothing)
{
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::black));
    look::apply(*qApp);
    for (int role = 0; role < QPalette::NColorRoles; ++role)
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            EXPECT_EQ(QApplication::palette().color(group, QPalette::ColorRole(role)),
                light.color(group, QPalette::ColorRole(role)))
                << "role " << role << " in group " << group;
}

// ---- windows

struct Pictured : TrialForm {
    explicit Pictured(Journal& journal, const QString& file)
        : TrialForm("Pictured", journal)
    {
        picture.setPicture(file, "A picture");
        answering.setPicture(file, "A picture to press");
        answering.Click = [] {};
        heading.setCaption("First");
        look::Page page(*this);
        page.title(heading);
        page.add(picture);
        page.add(answering);
        page.space(40);
        page.foot(nullptr, &footer);
    }

    forms::Label heading{*this, "heading"};
    forms::Picture picture{*this, "picture"};
    forms::Picture answering{*this, "answering"};
    forms::Label footer{*this, "footer", "Foot"};
};

TEST_F(Looks, AScreenLargerThanTheDesktopScrollsToTheControlThatHasTheFocus)
{
    struct Tall : TrialForm {
        using TrialForm::TrialForm;
        forms::ControlArray<forms::TextBox, 60> boxes{*this, "boxes"};
    } form("Tall", journal);
    auto* column = new QVBoxLayout(form.canvas());
    for (int index = 0; index < 60; ++index) {
        column->addWidget(form.boxes[index].widget());
        form.boxes[index].setTabIndex(index);
    }
    form.show();
    settle();
    EXPECT_LE(form.window()->height(), form.window()->screen()->availableGeometry().height());
    EXPECT_TRUE(form.boxes[59].widget()->visibleRegion().isEmpty());
    backTab();
    EXPECT_TRUE(form.boxes[59].hasFocus());
    EXPECT_EQ(form.boxes[59].widget()->visibleRegion().boundingRect(), form.boxes[59].widget()->rect());
}

TEST_F(Looks, AScreenOpensWhereTheOneBeforeStoodWithinTheDesktop)
{
    Pictured first(journal, "none.png");
    Pictured second(journal, "none.png");
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

TEST_F(Looks, AScreenIsAWindowNamedByItsHeading)
{
    Pictured form(journal, "none.png");
    form.show();
    QAccessibleInterface* screen = QAccessible::queryAccessibleInterface(form.window());
    EXPECT_EQ(screen->role(), QAccessible::Window);
    EXPECT_EQ(screen->text(QAccessible::Name), "First");
    form.heading.setCaption("Second");
    EXPECT_EQ(screen->text(QAccessible::Name), "Second");
}

TEST_F(Looks, ProgressIsSeenWhileAHandlerRunsOnAndCostsFewPaints)
{
    struct PaintCounter : QObject {
        bool eventFilter(QObject*, QEvent* event) override
        {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    } counter;
    TrialForm form("Working", journal);
    forms::ProgressBar bar{form, "bar"};
    forms::CommandButton go{form, "go"};
    form.layOut({&bar, &go});
    form.show();
    settle();
    bar.widget()->installEventFilter(&counter);
    static constexpr int steps = 20000;
    go.Click = [&bar, &counter] {
        bar.setMax(steps);
        for (int step = 1; step <= steps; ++step)
            bar.setValue(step);
        EXPECT_GT(counter.paints, 0);
        EXPECT_LT(counter.paints, steps / 10);
        EXPECT_EQ(bar.value(), steps);
    };
    click(go);
}

} // namespace
