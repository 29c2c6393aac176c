// GameTest: the whole game in its window, played with mouse and keys and seen through pixels,
// labels and boxes.
#ifndef TESTS_RIG_GAMETEST_H
#define TESTS_RIG_GAMETEST_H

#include "app/gamehist.h"
#include "forms/formsettings.h"
#include "search/abstractengine.h"
#include "search/thinkstatistic.h"
#include "tests/rig/hand.h"
#include "tests/rig/opengame.h"
#include "tests/rig/windowtext.h"
#include "tests/support/drawnboard.h"
#include "tests/support/recordinghost.h"
#include "view/boardmetrics.h"
#include "view/drcanvaspiece.h"
#include "view/mycanvasview.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

inline constexpr const char *startOfTen =
    "w .b.b.b.b.b b.b.b.b.b. .b.b.b.b.b b.b.b.b.b. .......... .......... "
    ".w.w.w.w.w w.w.w.w.w. .w.w.w.w.w w.w.w.w.w.";

// Items of the settings dialog.
inline constexpr int polish = 2;
inline constexpr int sixSquares = 0, eightSquares = 1, twelveSquares = 3;
inline constexpr int easy1 = 0, fiveSeconds = 3, infinite = 7;
inline constexpr int humans = humanHuman, computers = computerComputer;

// Boxes recorded and answered as told, events and time those of the program.
class LiveHost : public RecordingHost {
public:
    void processEvents() override {
        QCoreApplication::processEvents();
        RecordingHost::processEvents();
    }
    qint64 clockMs() override { return Host::clockMs(); }
};

// The game in a shown window, at the level "Easy 1". Every box that a test does not take away with
// boxes() fails it.
class GameTest : public testing::Test {
protected:
    GameTest();
    ~GameTest() override;

    // Clicks; what is not to be seen gets nothing.
    void press(QWidget *widget, QPoint at);
    void press(QWidget *widget) { press(widget, widget->rect().center()); }
    void tap(int x, int y);
    void taps(const std::string &squares); // "53 44": column and row
    // Keys into the window or the list that it has open.
    static void keys(const QWidget &window, const QList<Qt::Key> &typed);

    // A position in place of the running game, played by `players`; the turn is handed over.
    void place(const std::string &drawing, int players = humans);
    // Runs the flight, and what follows it, until so many moves are completed.
    void land(int moves = 1);

    // Calls `act`, which closes it, while the dialog is there that `open` opens.
    void whileOpen(const QDialog *dialog, const std::function<void()> &open,
                   const std::function<void()> &act);

    // Calls `act` once, in the middle of the next search.
    void duringSearch(const std::function<void()> &act);

    // The boxes since the last call.
    std::string boxes() { return host.takeBoxes(); }
    std::string status() const { return controlsText(game); }
    std::string marked(MarkType mark) const { return markedText(game, mark); }
    std::string request() const { return requestText(game); }
    std::string position() const { return picture(*game.pBoard); }
    // As position(), from the pixels; crossed out pieces are 'x'.
    std::string shown() const { return position().substr(0, 2) + pixelsText(game); }
    QColor squareColour(int x, int y) const;
    // Window, sprites, labels and position agree. Not in a flight.
    void expectAgreement() const;

    LiveHost host;
    OpenGame game;
    Hand hand;
};

#endif
