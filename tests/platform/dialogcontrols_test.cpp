#include "platform/dialogcontrols.h"

#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "forms/formstat.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

class DialogControlsTest : public testing::Test {
protected:
    DialogControlsTest() { qApp->installEventFilter(&controls); }

    static ControlRow *rowOf(const QDialog &dialog) {
        const QList<ControlRow *> rows = dialog.findChildren<ControlRow *>();
        EXPECT_LE(rows.size(), 1);
        return rows.value(0);
    }
    static int runAnd(QDialog &dialog, const std::function<void()> &act) {
        QTimer::singleShot(0, &dialog, act);
        return dialog.exec();
    }
    static void press(const QDialog &dialog, QDialogButtonBox::StandardButton which) {
        ASSERT_NE(rowOf(dialog), nullptr);
        QTest::mouseClick(rowOf(dialog)->button(which), Qt::LeftButton);
    }

    DialogControls controls;
};

TEST_F(DialogControlsTest, EveryWayOfAnsweringASettingsDialog) {
    formsettings dialog(nullptr, nullptr, true);
    const struct {
        const char *way;
        std::function<void()> act;
        int result;
    } cases[] = {
        {"Return", [&] { QTest::keyClick(&dialog, Qt::Key_Return); }, QDialog::Accepted},
        {"Escape", [&] { QTest::keyClick(&dialog, Qt::Key_Escape); }, QDialog::Rejected},
        {"OK", [&] { press(dialog, QDialogButtonBox::Ok); }, QDialog::Accepted},
        {"Cancel", [&] { press(dialog, QDialogButtonBox::Cancel); }, QDialog::Rejected},
        {"title bar", [&] { dialog.close(); }, QDialog::Rejected},
        {"Return in the players' row", [&] { QTest::keyClick(dialog.cmbPlayers, Qt::Key_Return); },
         QDialog::Accepted},
        {"Return on Cancel",
         [&] {
             QPushButton *cancel = rowOf(dialog)->button(QDialogButtonBox::Cancel);
             cancel->setFocus();
             QTest::keyClick(cancel, Qt::Key_Return);
         },
         QDialog::Accepted},
    };
    for (const auto &c : cases)
        EXPECT_EQ(runAnd(dialog, c.act), c.result) << c.way;
}

TEST_F(DialogControlsTest, DialogGrowsOnceAndTheFormStays) {
    formsettings dialog(nullptr, nullptr, true);
    int height = 0;
    for (int showing = 0; showing < 3; ++showing) {
        dialog.show();
        QApplication::processEvents();
        ASSERT_NE(rowOf(dialog), nullptr);
        height = rowOf(dialog)->rowHeight();
        EXPECT_GT(height, 11);
        EXPECT_EQ(dialog.size(), QSize(209, 170 + height));
        EXPECT_EQ(dialog.maximumSize(), QSize(240, 300 + height));
        EXPECT_LE(dialog.chGiveAway->geometry().bottom(), 170 - 11);
        EXPECT_GE(rowOf(dialog)->y(), 170);
        dialog.hide();
    }
    dialog.show();
    dialog.resize(240, 300 + height);
    QApplication::processEvents();
    EXPECT_EQ(rowOf(dialog)->geometry().bottom(), 300 + height - 11 - 1);
    EXPECT_EQ(rowOf(dialog)->width(), 240 - 22);
}

TEST_F(DialogControlsTest, FormWithNothingToChooseHasOkAlone) {
    fabout about(nullptr, nullptr, true);
    formStat figures(nullptr, nullptr, true);
    for (QDialog *dialog : {static_cast<QDialog *>(&about), static_cast<QDialog *>(&figures)}) {
        const int formHeight = dialog->height();
        EXPECT_EQ(runAnd(*dialog, [&] { press(*dialog, QDialogButtonBox::Ok); }),
                  QDialog::Accepted);
        ASSERT_NE(rowOf(*dialog), nullptr);
        EXPECT_EQ(rowOf(*dialog)->buttons().size(), 1);
        EXPECT_EQ(dialog->height(), formHeight + rowOf(*dialog)->rowHeight());
        EXPECT_EQ(runAnd(*dialog, [&] { QTest::keyClick(dialog, Qt::Key_Escape); }),
                  QDialog::Rejected);
    }
    const int rowHeight = rowOf(about)->rowHeight();
    EXPECT_EQ(about.minimumSize(), QSize(220, 200 + rowHeight));
    EXPECT_EQ(about.maximumSize(), QSize(220, 260 + rowHeight));
    EXPECT_EQ(figures.lNodes->geometry(), QRect(75, 180, 80, 16));
}

TEST_F(DialogControlsTest, OtherWindowsAreLeftAlone) {
    QMessageBox box(QMessageBox::Warning, "title", "text", QMessageBox::Ok);
    QInputDialog input;
    formsettings modeless;
    for (QDialog *dialog : {static_cast<QDialog *>(&box), static_cast<QDialog *>(&input)})
        dialog->setModal(true);
    for (QDialog *dialog : {static_cast<QDialog *>(&box), static_cast<QDialog *>(&input),
                            static_cast<QDialog *>(&modeless)}) {
        dialog->show();
        QApplication::processEvents();
        EXPECT_EQ(rowOf(*dialog), nullptr) << dialog->metaObject()->className();
        dialog->close();
    }
    EXPECT_EQ(modeless.size(), QSize(209, 170));
}

} // namespace
