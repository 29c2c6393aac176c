// These make and end application objects of their own.
#include "platform/qpeapplication.h"

#include "platform/displaysetup.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QIcon>
#include <QLocale>
#include <QWidget>

TEST(FormScaleFactor, IsWholeAndFitsTheScreen) {
    const struct {
        QSize screen;
        int factor;
    } cases[] = {{{240, 320}, 1},  {{479, 640}, 1},   {{480, 639}, 1},   {{480, 640}, 2},
                 {{1366, 768}, 2}, {{1920, 1080}, 2}, {{2560, 1440}, 3}, {{0, 0}, 1}};
    for (const auto &[screen, factor] : cases)
        EXPECT_EQ(formScaleFactor(screen), factor) << screen.width() << " x " << screen.height();
}

TEST(QPEApplication, PreparesTheDisplayAndTheHostButLeavesTheUsersScaleAlone) {
    char program[] = "drive";
    char *argv[] = {program, nullptr};
    int argc = 1;
    Host &before = host();
    for (const int scale : {2, 1}) { // the offscreen platform's screen is 800 x 800 pixels
        for (const char *variable : {"QT_FONT_DPI", "QT_SCALE_FACTOR", "QT_STYLE_OVERRIDE"})
            qunsetenv(variable);
        if (scale == 1)
            qputenv("QT_SCALE_FACTOR", "1");
        QPEApplication application(argc, argv, QPEApplication::GuiClient);
        EXPECT_EQ(QWidget().devicePixelRatio(), scale);
        EXPECT_EQ(QFontInfo(QWidget().font()).pixelSize(), 9);
        EXPECT_NE(&host(), &before);
        EXPECT_EQ(QGuiApplication::desktopFileName(), "tavlora");
        EXPECT_GE(QWidget().windowIcon().availableSizes().size(), 7);
    }
    EXPECT_EQ(&host(), &before);
}

TEST(QPEApplication, SpeaksTheUsersLanguageAndElseEnglish) {
    char program[] = "drive";
    char *argv[] = {program, nullptr};
    int argc = 1;
    const struct {
        const char *locale, *newGame, *cancel;
    } cases[] = {{"pl_PL", "Nowa gra", "Anuluj"},      {"de_AT", "Neues Spiel", "Abbrechen"},
                 {"nl_BE", "Nieuw spel", "Annuleren"}, {"en_GB", "NewGame", "Cancel"},
                 {"fr_FR", "NewGame", "Cancel"},       {"C", "NewGame", "Cancel"}};
    for (const auto &[locale, newGame, cancel] : cases) {
        QLocale::setDefault(QLocale(locale));
        const QPEApplication application(argc, argv);
        EXPECT_EQ(QCoreApplication::translate("MainForm", "NewGame"), newGame) << locale;
        EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), cancel) << locale;
    }
}
