// The forms by themselves: what the player reads on them and what the game relies on.

#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "forms/formstat.h"
#include "forms/mainform.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QTest>

namespace {

struct Forms : testing::Test {
    MainForm game;
    formsettings settings;
    formStat figures;
    fabout about;
};

TEST_F(Forms, HaveTheirNamesAndSizes) {
    const struct {
        QWidget &form;
        const char *name, *title;
        QSize size, smallest, largest;
    } cases[] = {
        {game, "MainForm", "tavlora v1.0.3", {240, 320}, {240, 310}, {240, 320}},
        {settings, "fsettings", "settings", {209, 170}, {}, {240, 300}},
        {figures, "formStat", "statistic", {169, 233}, {50, 50}, {900, 900}},
        {about, "fabout", "About", {220, 224}, {220, 200}, {220, 260}},
    };
    for (const auto &[form, name, title, size, smallest, largest] : cases) {
        EXPECT_EQ(form.objectName(), name);
        EXPECT_EQ(form.windowTitle(), title);
        EXPECT_EQ(form.size(), size) << name;
        form.resize(900, 900);
        EXPECT_EQ(form.size(), largest) << name;
        form.resize(50, 50);
        EXPECT_TRUE(smallest.isEmpty() || form.size() == smallest) << name;
    }
}

TEST_F(Forms, SettingsOfferEveryChoiceAndFollowThePlayerOnly) {
    const struct {
        QComboBox *combo;
        const char *items;
        int current;
        const int *field;
    } rows[] = {
        {settings.cmbRules, "International|American|Polish Traditional", 0, &settings.rulesIndex},
        {settings.cmbSize, "6 for fun|8 checkers,brazylian|10 international|12 canadian", 2,
         &settings.sizeIndex},
        {settings.cmbLevel,
         "Easy 1|Easy 2|2 sec/move|5 sec/move|10 sec/move|20 sec/move|1 min/move|"
         "infinite (until break)",
         3, &settings.levelIndex},
    };
    settings.show();
    for (const auto &[combo, items, current, field] : rows) {
        QStringList texts;
        for (int i = 0; i < combo->count(); ++i)
            texts << combo->itemText(i);
        EXPECT_EQ(texts.join('|'), items);
        EXPECT_EQ(combo->currentIndex(), current);
        combo->setCurrentIndex(0);
        EXPECT_EQ(*field, current) << "set by the program";
        combo->showPopup();
        QTest::keyClick(combo->view(), Qt::Key_Down);
        QTest::keyClick(combo->view(), Qt::Key_Return);
        EXPECT_EQ(*field, 1) << items;
    }
    EXPECT_EQ(settings.cmbPlayers->itemText(1), "Human-Human");
    for (const bool given : {true, false}) {
        QTest::mouseClick(settings.chGiveAway, Qt::LeftButton, {}, QPoint(6, 6));
        settings.setGiveAway(Qt::PartiallyChecked);
        EXPECT_EQ(settings.giveAway, given) << "the undecided state changes nothing";
    }
    settings.setDefaults();
    for (const auto &row : rows)
        EXPECT_EQ(row.combo->currentIndex() * 10 + *row.field, row.current * 11) << row.items;
}

} // namespace
