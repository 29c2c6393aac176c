#include "forms/formstat.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>

namespace {

struct Label {
    const char *name;
    QRect geometry;
    const char *text;
    bool bold;
};

// In the order in which they are made.
const Label labels[] = {
    {"TextLabel2", {10, 10, 39, 16}, "Scores", false},
    {"llTime", {10, 40, 35, 16}, "time", true},
    {"TextLabel2_2", {11, 116, 45, 16}, "Moves", false},
    {"TextLabel2_2_2", {10, 145, 55, 16}, "MaxLevel", false},
    {"lMaxLevel", {75, 145, 80, 16}, "0", false},
    {"TextLabel2_2_2_2", {10, 180, 50, 16}, "Nodes", false},
    {"lNodes", {75, 180, 80, 16}, "0", false},
    {"lMovesGenerated", {74, 116, 80, 16}, "0", false},
    {"lTime", {75, 40, 85, 16}, "0", true},
    {"lScoresCalculated", {70, 10, 85, 16}, "0", false},
    {"labelEScore", {76, 75, 80, 16}, "0", true},
    {"TextLabel1_2_4", {10, 70, 45, 16}, "Score", true},
};

TEST(formStat, LabelsStandWhereTheyBelong) {
    const formStat form;
    EXPECT_EQ(form.objectName(), "formStat");
    EXPECT_EQ(form.windowTitle(), "statistic");
    EXPECT_EQ(form.size(), QSize(169, 233));
    const QList<QLabel *> made = form.findChildren<QLabel *>(Qt::FindDirectChildrenOnly);
    ASSERT_EQ(made.size(), std::size(labels));
    for (int i = 0; i < made.size(); ++i) {
        EXPECT_EQ(made[i]->objectName(), labels[i].name);
        EXPECT_EQ(made[i]->geometry(), labels[i].geometry) << labels[i].name;
        EXPECT_EQ(made[i]->text(), labels[i].text) << labels[i].name;
        EXPECT_EQ(made[i]->font().bold(), labels[i].bold) << labels[i].name;
        EXPECT_LE(made[i]->sizeHint().width(), made[i]->width()) << labels[i].name;
    }
    EXPECT_EQ(form.lMaxLevel->objectName(), "lMaxLevel");
    EXPECT_EQ(form.labelEScore->objectName(), "labelEScore");
}

TEST(formStat, BoldLabelsStayBold) {
    formStat form;
    for (const Label &label : labels)
        form.findChild<QLabel *>(label.name)->setFont(QApplication::font());
    QEvent change(QEvent::ApplicationFontChange);
    QApplication::sendEvent(&form, &change);
    for (const Label &label : labels)
        EXPECT_EQ(form.findChild<QLabel *>(label.name)->font().bold(), label.bold) << label.name;
}

} // namespace
