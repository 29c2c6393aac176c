// These make and end application objects of their own.
#include "platform/qpeapplication.h"

#include "platform/displaysetup.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWidget>

namespace {

class QPEApplicationTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char *variable :
             {"QT_FONT_DPI", "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_STYLE_OVERRIDE"})
            qunsetenv(variable);
    }

    char program[6] = "drive";
    char option[7] = "-style";
    char style[7] = "Fusion";
    char *argv[4] = {program, option, style, nullptr};
    int argc = 3;
};

TEST(FormScaleFactor, IsWholeAndFitsTheScreen) {
    const struct {
        QSize screen;
        int factor;
    } cases[] = {
        {{240, 320}, 1},   {{479, 640}, 1},   {{480, 639}, 1},   {{480, 640}, 2},
        {{800, 600}, 1},   {{1366, 768}, 2},  {{1920, 1080}, 2}, {{2560, 1440}, 3},
        {{1440, 2560}, 3}, {{3840, 2160}, 3}, {{0, 0}, 1},
    };
    for (const auto &c : cases)
        EXPECT_EQ(formScaleFactor(c.screen), c.factor)
            << c.screen.width() << " x " << c.screen.height();
}

TEST(GuiHostAlone, WithoutAnApplicationSpeaksOnStandardError) {
    ASSERT_EQ(QCoreApplication::instance(), nullptr);
    GuiHost host;
    testing::internal::CaptureStderr();
    EXPECT_TRUE(host.messageBox(BoxKind::Critical, "title", "text"));
    host.processEvents();
    host.beep();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "title: text\n");
}

TEST_F(QPEApplicationTest, PreparesTheDisplay) {
    QPEApplication application(argc, argv, QPEApplication::GuiClient);
    // The offscreen platform's screen is 800 x 800 pixels.
    EXPECT_EQ(qgetenv("QT_SCALE_FACTOR"), "2");
    EXPECT_EQ(qgetenv("QT_FONT_DPI"), "72");
    EXPECT_EQ(argc, 1) << "the real application reads the arguments too";
    const QWidget widget;
    EXPECT_EQ(widget.devicePixelRatio(), 2.0);
    EXPECT_EQ(widget.font().pointSize(), 9);
    EXPECT_EQ(QFontInfo(widget.font()).pixelSize(), 9);
}

TEST_F(QPEApplicationTest, LeavesTheUsersScaleAlone) {
    qputenv("QT_SCALE_FACTOR", "1");
    {
        QPEApplication application(argc, argv, QPEApplication::GuiClient);
        EXPECT_EQ(QWidget().devicePixelRatio(), 1.0);
    }
    qunsetenv("QT_SCALE_FACTOR");
    qputenv("QT_SCREEN_SCALE_FACTORS", "3");
    prepareDisplay(argc, argv);
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
}

TEST_F(QPEApplicationTest, InstallsItsHostWithOkFirst) {
    Host &before = host();
    {
        QPEApplication application(argc, argv, QPEApplication::GuiClient);
        EXPECT_NE(&host(), &before);
        QTimer::singleShot(0, &application, [] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_LT(box->button(QMessageBox::Ok)->x(), box->button(QMessageBox::Cancel)->x());
            QTest::keyClick(box, Qt::Key_Escape);
        });
        EXPECT_FALSE(
            host().messageBox(BoxKind::Warning, "title", "question", BoxButtons::OkCancel));
    }
    EXPECT_EQ(&host(), &before);
}

} // namespace
