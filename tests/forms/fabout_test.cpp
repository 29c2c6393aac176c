#include "forms/fabout.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QSet>

namespace {

TEST(fabout, SaysWhatTheProgramIs) {
    const fabout dialog(nullptr, nullptr, true);
    EXPECT_EQ(dialog.objectName(), "fabout");
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.windowTitle(), "About");
    EXPECT_EQ(dialog.size(), QSize(220, 224));
    EXPECT_EQ(dialog.TextLabel1->text(), "Tavlora v 1.0.3");
    EXPECT_EQ(dialog.TextLabel1->alignment(), Qt::AlignCenter);
    EXPECT_TRUE(dialog.PixmapLabel1->hasScaledContents());
}

TEST(fabout, PictureIsGreyAndRed) {
    const fabout dialog;
    const QImage picture = dialog.PixmapLabel1->pixmap(Qt::ReturnByValue).toImage();
    ASSERT_EQ(picture.size(), QSize(80, 81));
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            colours.insert(pixel);
            EXPECT_LE(std::abs(qGreen(pixel) - qBlue(pixel)), 16);
            EXPECT_GE(qRed(pixel) + 4, qGreen(pixel));
        }
    }
    EXPECT_EQ(colours.size(), 186);
}

TEST(fabout, EverythingFitsAndStaysCentredAtAnyHeight) {
    fabout dialog;
    dialog.show();
    const struct {
        QSize wanted;
        QSize got;
    } cases[] = {{{220, 224}, {220, 224}}, {{100, 100}, {220, 200}}, {{400, 400}, {220, 260}}};
    for (const auto &c : cases) {
        dialog.resize(c.wanted);
        QApplication::processEvents();
        EXPECT_EQ(dialog.size(), c.got);
        const QRect picture = dialog.PixmapLabel1->geometry();
        EXPECT_EQ(picture.size(), QSize(80, 81));
        EXPECT_EQ(picture.x(), (220 - 80) / 2);
        EXPECT_GT(picture.y(), dialog.TextLabel1->geometry().bottom());
        const QLabel *credits = dialog.TextLabel6;
        EXPECT_GE(credits->height(), credits->heightForWidth(credits->width()));
    }
}

TEST(fabout, FontsSurviveAChangeOfTheApplicationsFont) {
    fabout dialog;
    const QFont large(QStringLiteral("Serif"), 19);
    dialog.TextLabel1->setFont(large);
    dialog.TextLabel6->setFont(large);
    QEvent change(QEvent::ApplicationFontChange);
    QApplication::sendEvent(&dialog, &change);
    EXPECT_EQ(dialog.TextLabel1->font().family(), "adobe-helvetica");
    EXPECT_TRUE(dialog.TextLabel1->font().bold());
    EXPECT_EQ(dialog.TextLabel1->font().pointSize(), 19);
    EXPECT_EQ(dialog.TextLabel6->font().pointSize(), 10);
}

} // namespace
