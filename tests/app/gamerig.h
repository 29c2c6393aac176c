// GameTest: the whole game in its window, played with the mouse and seen through pixels and labels.
#ifndef TESTS_APP_GAMERIG_H
#define TESTS_APP_GAMERIG_H

#include "app/draughts.h"
#include "app/gamehist.h"
#include "forms/formsettings.h"
#include "rules/board.h"
#include "search/abstractengine.h"
#include "search/thinkstatistic.h"
#include "tests/support/drawnboard.h"
#include "tests/support/recordinghost.h"
#include "view/boardmetrics.h"
#include "view/drcanvas.h"
#include "view/drcanvaspiece.h"
#include "view/mycanvasview.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

inline constexpr const char *startOfTen =
    "w .b.b.b.b.b b.b.b.b.b. .b.b.b.b.b b.b.b.b.b. .......... .......... "
    ".w.w.w.w.w w.w.w.w.w. .w.w.w.w.w w.w.w.w.w.";

// Items of the settings dialog.
inline constexpr int easy1 = 0;
inline constexpr int infinite = 7;
inline constexpr int sixSquares = 0;
inline constexpr int eightSquares = 1;
inline constexpr int humans = 1;
inline constexpr int computers = 2;

// Records boxes like its base, but events and time are real.
class LiveHost : public RecordingHost {
public:
    void processEvents() override;
    qint64 clockMs() override { return Host::clockMs(); }
};

class OpenGame : public Draughts {
public:
    using Draughts::pBoard, Draughts::pEngine, Draughts::pCanvas, Draughts::pView, Draughts::pHist,
        Draughts::pStat, Draughts::pSettings, Draughts::pMetrics, Draughts::pMove, Draughts::pieces,
        Draughts::whiteComputer, Draughts::blackComputer;
    bool flying() const { return phase() == Phase::Flying; }
};

// The game in a shown window, at the level "Easy 1". Every box that a test does not take away with
// boxes() fails it.
class GameTest : public testing::Test {
protected:
    GameTest();
    ~GameTest() override;

    // Clicks; with an X server through the server, as the mouse would. Hidden widgets get nothing.
    void press(QWidget *widget, QPoint at);
    void press(QPushButton *button) { press(button, button->rect().center()); }
    void tap(int x, int y);
    void taps(const std::string &squares); // "53 44": column and row

    // A position in place of the running game, played by `players`; the turn is handed over.
    void place(const std::string &drawing, int players = humans);
    // Runs the flight, and what follows it, until so many moves are completed.
    void land(int moves = 1);

    // Opens the settings with the button, picks items with keys, and closes with a button of the
    // window system's row.
    void settings(QDialogButtonBox::StandardButton button,
                  const std::function<void(formsettings &)> &pick = nullptr);
    static void choose(QComboBox *combo, int item);

    // The boxes since the last call, as "title: text; ".
    std::string boxes();
    // The state label, empty when hidden, the counts, and the buttons that can be pressed.
    std::string status() const;
    std::string marked(MarkType mark) const;
    // The board as the window's pixels show it, like picture(); crossed out pieces are 'x'.
    std::string shown() const;
    QColor squareColour(int x, int y) const;
    // Window, sprites, labels and position agree.
    void expectAgreement() const;

    LiveHost host;
    OpenGame game;
};

#endif
