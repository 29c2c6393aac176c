// Programs from their application object on, the toolkit's own or ours; each test makes its own.

#include "app/draughts.h"
#include "platform/commandline.h"
#include "platform/displaysetup.h"
#include "platform/qpeapplication.h"
#include "tests/platform/nextdialog.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace {

// What main() is given.
int count = 1;
char name[] = "program";
char *arguments[] = {name, nullptr};

using Environment = std::vector<std::pair<const char *, const char *>>;

// What `tell` says in a program of a user with that environment. In a process of its own, since the
// toolkit reads the environment once.
void expectOf(const Environment &user, QString (*tell)(), const std::string &told) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto run = [&] {
        for (const char *variable :
             {"QT_FONT_DPI", "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_STYLE_OVERRIDE"})
            qunsetenv(variable);
        for (const auto &[variable, value] : user)
            qputenv(variable, value);
        const QPEApplication program(count, arguments);
        std::fprintf(stderr, "told: %s\n", qPrintable(tell()));
        std::_Exit(0);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "told: " + told + "\n");
}

TEST(PlainApplication, BringsRealEventsAndBoxes) {
    const QApplication program(count, arguments);
    Draughts game(nullptr, nullptr);
    game.setLevel(7); // without end
    game.show();
    QTimer::singleShot(20, game.btnBreak, &QPushButton::click);
    game.forceMove();
    ASSERT_TRUE(QTest::qWaitFor([&] { return game.lblThinking->text() == "Your Move"; }));
    QString asked;
    onNextDialog([&](QDialog &dialog) {
        asked = dialog.windowTitle();
        dialog.reject();
    });
    game.newGame();
    EXPECT_EQ(asked, "confirm");
    EXPECT_TRUE(game.btnPrev->isEnabled()) << "cancelled: the game goes on";
}

TEST(FormScaleFactor, FitsTheScreenInQuarterSteps) {
    constexpr WindowSize larger = WindowSize::Larger, smaller = WindowSize::Smaller;
    const struct {
        QSize screen;
        int panel = 0; // pixels of height
        WindowSize wish = WindowSize::Suitable;
        double factor;
    } cases[] = {{.screen = {240, 320}, .factor = 1},
                 {.screen = {480, 640}, .factor = 2},
                 {.screen = {1024, 600}, .factor = 1.75},
                 {.screen = {800, 600}, .panel = 32, .factor = 1.5},
                 {.screen = {2560, 1440}, .panel = 32, .factor = 3},
                 {.screen = {1366, 768}, .wish = larger, .factor = 2.25},
                 {.screen = {1920, 1080}, .wish = larger, .factor = 3},
                 {.screen = {1920, 1080}, .wish = smaller, .factor = 1.25},
                 {.screen = {240, 320}, .wish = smaller, .factor = 1}};
    for (const auto &c : cases) {
        const QSize free = c.screen - QSize(0, c.panel);
        EXPECT_EQ(formScaleFactor(c.screen, free, c.wish), c.factor)
            << c.screen.width() << " x " << c.screen.height();
    }
}

QString look() {
    const QWidget window;
    return QStringLiteral("scale %1, font of %2 points and %3 pixels, %4")
        .arg(window.devicePixelRatio())
        .arg(window.font().pointSize())
        .arg(QFontInfo(window.font()).pixelSize())
        .arg(QApplication::style()->metaObject()->className());
}

// The offscreen platform's screen has 800 x 800 pixels.
TEST(QPEApplication, PreparesTheDisplayWhateverTheDesktopHasSetButNotThePlayer) {
    expectOf({}, look, "scale 2, font of 9 points and 9 pixels, CompactStyle");
    expectOf({{"QT_SCREEN_SCALE_FACTORS", "1"}, {"QT_FONT_DPI", "96"}}, look,
             "scale 2, font of 9 points and 9 pixels, CompactStyle");
    expectOf({{"QT_SCALE_FACTOR", "1"}, {"QT_STYLE_OVERRIDE", "Windows"}}, look,
             "scale 1, font of 9 points and 9 pixels, QWindowsStyle");
}

TEST(QPEApplication, KeepsItsPointsInAFontThatIsSetLater) {
    const QPEApplication program(count, arguments);
    const QWidget window;
    QApplication::setFont(QFont("DejaVu Serif", 18));
    QApplication::processEvents(); // the change is told then
    EXPECT_EQ(window.font().pointSize(), 9);
    EXPECT_EQ(window.font().family().toStdString(), "DejaVu Serif");
}

TEST(CommandLine, ScalesTheGameOrEndsTheProgram) {
    const struct {
        std::vector<const char *> words;
        std::optional<int> status = {};
        const char *scale = "";
    } cases[] = {{.words = {"--scale", "1.75"}, .scale = "1.75"},
                 {.words = {"--scale", "larger"}, .scale = "2.25"}, // on 800 x 800
                 {.words = {"-style", "windows"}},
                 {.words = {"--help"}, .status = 0},
                 {.words = {"--scale", "9"}, .status = 2},
                 {.words = {"game"}, .status = 2}};
    for (const auto &c : cases) {
        qunsetenv("QT_SCALE_FACTOR");
        std::vector<char *> given = {name};
        for (const char *word : c.words)
            given.push_back(const_cast<char *>(word));
        EXPECT_EQ(obeyCommandLine(int(given.size()), given.data()), c.status) << c.words.back();
        EXPECT_EQ(qgetenv("QT_SCALE_FACTOR"), c.scale) << c.words.back();
    }
}

TEST(QPEApplication, TellsTheDesktopWhoTheProgramIs) {
    const QPEApplication program(count, arguments);
    EXPECT_EQ(QGuiApplication::desktopFileName(), "tavlora");
    QList<QSize> sizes = QWidget().windowIcon().availableSizes();
    for (const int side : {16, 24, 32, 48, 64, 128, 256})
        EXPECT_TRUE(sizes.contains(QSize(side, side))) << side;
}

QString language() {
    return QCoreApplication::translate("MainForm", "NewGame") + ", " +
           QCoreApplication::translate("QPlatformTheme", "Cancel");
}

TEST(QPEApplication, SpeaksTheFirstOfTheUsersLanguagesThatItKnows) {
    expectOf({{"LANGUAGE", "fr:nl_BE:de"}}, language, "Nieuw spel, Annuleren");
    expectOf({{"LANGUAGE", "fr:en_GB:de"}}, language, "NewGame, Cancel");
}

} // namespace
