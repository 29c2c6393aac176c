#include "forms/mainform.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolTip>

namespace {

constexpr int unlimited = 32767;

struct Place {
    const char *name;
    QRect geometry;
    QSize maximum;
    int points;
    const char *text;
};

const Place buttons[] = {
    {"btnSettings", {185, 235, 50, 22}, {50, unlimited}, 8, "Settings"},
    {"btnPrev", {}, {20, 22}, 8, "<<"},
    {"btnFwd", {}, {20, 22}, 9, ">>"},
    {"btnAbout", {85, 235, 40, 22}, {40, unlimited}, 8, "About"},
    {"btnBreak", {55, 235, 40, 22}, {40, 22}, 8, "BREAK"},
    {"btnForce", {130, 235, 60, 22}, {60, 22}, 8, "Force Move"},
    {"btnNewGame", {0, 260, 60, 22}, {60, unlimited}, 8, "NewGame"},
};

TEST(MainForm, WindowHasTheHandheldsSize) {
    MainForm form;
    EXPECT_EQ(form.objectName(), "MainForm");
    EXPECT_EQ(MainForm(nullptr, "other").objectName(), "other");
    EXPECT_EQ(form.windowTitle(), "tavlora v1.0.3");
    EXPECT_EQ(form.size(), QSize(240, 320));
    EXPECT_EQ(form.baseSize(), QSize(240, 320));
    EXPECT_EQ(form.sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
    form.resize(500, 500);
    EXPECT_EQ(form.size(), QSize(240, 320));
    form.resize(100, 200);
    EXPECT_EQ(form.size(), QSize(240, 310));
}

TEST(MainForm, ButtonsStandWhereTheyBelong) {
    MainForm form;
    form.show();
    QApplication::processEvents();
    for (const Place &place : buttons) {
        const auto *button = form.findChild<QPushButton *>(place.name);
        ASSERT_NE(button, nullptr) << place.name;
        if (place.geometry.isValid()) {
            EXPECT_EQ(button->geometry(), place.geometry) << place.name;
        }
        EXPECT_EQ(button->maximumSize(), place.maximum) << place.name;
        EXPECT_EQ(button->text(), place.text);
        EXPECT_LT(button->fontMetrics().horizontalAdvance(button->text()), button->width() - 4)
            << place.name;
    }
    const auto *steps = form.findChild<QWidget *>("Layout8", Qt::FindDirectChildrenOnly);
    ASSERT_NE(steps, nullptr);
    EXPECT_EQ(steps->geometry(), QRect(0, 235, 48, 24));
    EXPECT_EQ(steps->layout(), form.Layout8);
    EXPECT_EQ(form.Layout8->itemAt(0)->widget(), form.btnPrev);
    EXPECT_EQ(form.Layout8->itemAt(1)->widget(), form.btnFwd);
    EXPECT_LT(form.btnPrev->geometry().right(), form.btnFwd->x());
    EXPECT_EQ(form.btnFwd->width(), 20);
}

TEST(MainForm, LabelsHoldTheirTexts) {
    MainForm form;
    EXPECT_EQ(form.labelScore->geometry(), QRect(69, 261, 34, 22));
    EXPECT_EQ(form.labelScore->text(), " 12/12");
    EXPECT_EQ(form.labelScore->alignment(), Qt::AlignCenter);
    EXPECT_EQ(form.lblThinking->geometry(), QRect(115, 260, 115, 22));
    EXPECT_EQ(form.lblThinking->maximumSize(), QSize(150, unlimited));
    EXPECT_EQ(form.lblThinking->text(), "**** THINKING ****");
    EXPECT_EQ(form.lblThinking->alignment(), Qt::AlignCenter);
    EXPECT_LE(form.labelScore->fontMetrics().horizontalAdvance("20/20"), 34);
    for (const char *text : {"**** THINKING ****", "You Must Capture", "Game Over"})
        EXPECT_LE(form.lblThinking->fontMetrics().horizontalAdvance(text), 115) << text;
}

TEST(MainForm, ChildrenAreMadeInOrder) {
    MainForm form;
    QStringList names;
    for (const QWidget *child : form.findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        names << child->objectName();
    EXPECT_EQ(names, QStringList({"btnSettings", "Layout8", "btnAbout", "btnBreak", "btnForce",
                                  "btnNewGame", "labelScore", "lblThinking"}));
}

TEST(MainForm, FontsSurviveAChangeOfTheApplicationsFont) {
    const QFont before = QApplication::font();
    MainForm form;
    form.show();
    QFont other = before;
    other.setPointSize(17);
    other.setItalic(true);
    QApplication::setFont(other);
    form.btnSettings->setFont(other);
    form.lblThinking->setFont(other);
    QEvent change(QEvent::ApplicationFontChange);
    QApplication::sendEvent(&form, &change);
    for (const Place &place : buttons) {
        const QFont font = form.findChild<QPushButton *>(place.name)->font();
        EXPECT_EQ(font.pointSize(), place.points) << place.name;
        EXPECT_TRUE(font.italic()) << place.name;
    }
    EXPECT_TRUE(form.lblThinking->font().bold());
    EXPECT_EQ(form.lblThinking->font().pointSize(), 17);
    EXPECT_EQ(form.labelScore->font().pointSize(), 17);
    QApplication::setFont(before);
}

TEST(MainForm, HoveringOverThePieceCountTellsWhatItIs) {
    MainForm form;
    form.show();
    const QPoint centre = form.labelScore->rect().center();
    QHelpEvent hover(QEvent::ToolTip, centre, form.labelScore->mapToGlobal(centre));
    QApplication::sendEvent(form.labelScore, &hover);
    EXPECT_EQ(QToolTip::text(), "On Board");
    QToolTip::hideText();
}

TEST(MainForm, BreakTakesNoKeyboardFocus) {
    MainForm form;
    EXPECT_EQ(form.btnBreak->focusPolicy(), Qt::NoFocus);
    EXPECT_TRUE(form.btnBreak->isEnabled());
}

} // namespace
