#include "forms/formsettings.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTest>

namespace {

QStringList itemsOf(const QComboBox *combo) {
    QStringList items;
    for (int i = 0; i < combo->count(); ++i)
        items << combo->itemText(i);
    return items;
}

// What the player does: opens the list and picks the item so many rows further down.
void pickBelow(QComboBox *combo, int rows) {
    combo->showPopup();
    QApplication::processEvents();
    for (int i = 0; i < rows; ++i)
        QTest::keyClick(combo->view(), Qt::Key_Down);
    QTest::keyClick(combo->view(), Qt::Key_Return);
}

void clickBox(QCheckBox *box) {
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
}

TEST(fsettings, RowsHoldTheirTexts) {
    fsettings dialog;
    EXPECT_EQ(dialog.objectName(), "fsettings");
    EXPECT_EQ(dialog.windowTitle(), "settings");
    EXPECT_EQ(dialog.size(), QSize(209, 170));
    EXPECT_EQ(dialog.maximumSize(), QSize(240, 300));
    EXPECT_FALSE(dialog.isModal());
    const struct {
        QLabel *label;
        const char *name;
        const char *text;
        QComboBox *combo;
        QStringList items;
        const char *toolTip;
        int current;
        bool takesFocus;
    } rows[] = {
        {dialog.TextLabel1_2,
         "TextLabel1_2",
         "Rules",
         dialog.cmbRules,
         {"International", "American", "Polish Traditional"},
         "game rules",
         0,
         false},
        {dialog.TextLabel1_2_2,
         "TextLabel1_2_2",
         "Board Size",
         dialog.cmbSize,
         {"6 for fun", "8 checkers,brazylian", "10 international", "12 canadian"},
         "board size",
         2,
         false},
        {dialog.TextLabel1,
         "TextLabel1",
         "level",
         dialog.cmbLevel,
         {"Easy 1", "Easy 2", "2 sec/move", "5 sec/move", "10 sec/move", "20 sec/move",
          "1 min/move", "infinite (until break)"},
         "thinking level",
         3,
         false},
        {dialog.TextLabelP,
         "TextLabelP",
         "Players",
         dialog.cmbPlayers,
         {"Human-Computer", "Human-Human", "Computer-Computer"},
         "",
         0,
         true},
    };
    dialog.show();
    QApplication::processEvents();
    int bottom = 0;
    for (const auto &row : rows) {
        EXPECT_EQ(row.label->objectName(), row.name);
        EXPECT_EQ(row.label->text(), row.text);
        EXPECT_EQ(itemsOf(row.combo), row.items);
        EXPECT_EQ(row.combo->toolTip(), row.toolTip);
        EXPECT_EQ(row.combo->currentIndex(), row.current) << row.text;
        EXPECT_FALSE(row.combo->isEditable());
        EXPECT_EQ(row.combo->focusPolicy() != Qt::NoFocus, row.takesFocus) << row.text;
        EXPECT_GE(row.combo->width(), row.combo->minimumSizeHint().width()) << row.text;
        EXPECT_GE(row.combo->y(), bottom) << row.text;
        bottom = row.combo->geometry().bottom();
    }
    EXPECT_EQ(dialog.chGiveAway->text(), "Give Away");
    EXPECT_EQ(dialog.chGiveAway->focusPolicy(), Qt::NoFocus);
    EXPECT_GE(dialog.chGiveAway->y(), bottom);
}

TEST(fsettings, FontsSurviveAChangeOfTheApplicationsFont) {
    fsettings dialog;
    QFont large = dialog.font();
    large.setPointSize(15);
    dialog.setFont(large);
    for (QWidget *widget : dialog.findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        widget->setFont(large);
    QEvent change(QEvent::ApplicationFontChange);
    QApplication::sendEvent(&dialog, &change);
    for (const QLabel *label : dialog.findChildren<QLabel *>(Qt::FindDirectChildrenOnly))
        EXPECT_EQ(label->font().pointSize(), 9) << label->objectName().toStdString();
    for (const QComboBox *combo : {dialog.cmbRules, dialog.cmbSize, dialog.cmbLevel})
        EXPECT_EQ(combo->font().pointSize(), 9) << combo->objectName().toStdString();
    EXPECT_EQ(dialog.cmbPlayers->font().pointSize(), 15);
    EXPECT_EQ(dialog.chGiveAway->font().pointSize(), 15);
}

TEST(formsettings, DefaultsAreInWidgetsAndFields) {
    formsettings dialog(nullptr, nullptr, true);
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.objectName(), "fsettings");
    dialog.cmbPlayers->setCurrentIndex(2);
    dialog.cmbLevel->setCurrentIndex(7);
    dialog.chGiveAway->setChecked(true);
    dialog.rulesIndex = 9;
    dialog.sizeIndex = 9;
    dialog.levelIndex = 9;
    dialog.setDefaults();
    EXPECT_EQ(dialog.cmbPlayers->currentText(), "Human-Computer");
    EXPECT_EQ(dialog.cmbLevel->currentText(), "5 sec/move");
    EXPECT_FALSE(dialog.chGiveAway->isChecked());
    EXPECT_EQ(dialog.rulesIndex, 0);
    EXPECT_EQ(dialog.sizeIndex, 2);
    EXPECT_EQ(dialog.levelIndex, 3);
    EXPECT_FALSE(dialog.giveAway);
}

TEST(formsettings, FieldsFollowThePlayerAndNotTheProgram) {
    formsettings dialog;
    dialog.show();
    pickBelow(dialog.cmbRules, 1);
    EXPECT_EQ(dialog.rulesIndex, 1);
    pickBelow(dialog.cmbRules, 1);
    EXPECT_EQ(dialog.rulesIndex, 2);

    dialog.cmbSize->setCurrentIndex(0);
    EXPECT_EQ(dialog.sizeIndex, 2);
    pickBelow(dialog.cmbSize, 0);
    EXPECT_EQ(dialog.sizeIndex, 0);

    pickBelow(dialog.cmbLevel, 4);
    EXPECT_EQ(dialog.levelIndex, 7);
}

TEST(formsettings, GiveAwayFollowsItsCheckBox) {
    formsettings dialog;
    dialog.show();
    clickBox(dialog.chGiveAway);
    EXPECT_TRUE(dialog.giveAway);
    dialog.setGiveAway(Qt::PartiallyChecked);
    EXPECT_TRUE(dialog.giveAway) << "the undecided state changes nothing";
    clickBox(dialog.chGiveAway);
    EXPECT_FALSE(dialog.giveAway);
    dialog.setGiveAway(Qt::PartiallyChecked);
    EXPECT_FALSE(dialog.giveAway);
}

} // namespace
