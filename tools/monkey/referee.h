// Referee: tells the model what reaches the game, and holds the game to it.
#ifndef TOOLS_MONKEY_REFEREE_H
#define TOOLS_MONKEY_REFEREE_H

#include "tools/monkey/gamemodel.h"
#include "tools/monkey/journal.h"
#include "tools/monkey/opengame.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

class QDialog;

// What all runs together have seen.
struct Tally {
    int moves[3][4] = {}; // by rules and size
    int searches[8] = {}; // by level
    int gamesOver = 0;
    int newGames = 0;
    int breaks = 0;
    int restarts = 0;
    int boxes = 0;
};

// Watches the application's events while it lives: a press on the board, a release on a button that
// is held down, a dialog that closes go to the model before the game sees them. All timers stand
// still. check() then compares; the first difference ends the program.
class Referee : public QObject {
    Q_OBJECT

public:
    Referee(Journal &journal, Tally &tally);
    ~Referee() override;

    // The game begins, or begins again in a new window.
    void openWindow();
    void closeWindow() { window_.reset(); }
    OpenGame &game() { return *window_; }
    const GameModel &model() const { return model_; }

    // Lets so many animation steps pass.
    void passTime(int steps);
    // The window's close button was pressed.
    void noteClose();
    // Compares the window with the model. The costly part of it is left out mostly.
    void check();

    // For the host.
    void noteSearch();
    void noteBox(const QString &title, const QString &text);
    void noteAnswer(bool confirmed);

    // A dialog has been shown that will run an event loop of its own.
    std::function<void(QDialog *)> onDialog;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow();
    void watchButton(QObject *watched, QEvent *event);
    void noteClick(Button button);
    void watchBoard(QObject *watched, const QEvent *event);
    void fail(const QString &fault);

    Journal &journal_;
    Tally &tally_;
    std::unique_ptr<OpenGame> window_;
    GameModel model_;
    std::optional<Box> box_;
    int checks_ = 0;
    int searching_ = 0;
    bool timePasses_ = false;
};

#endif
