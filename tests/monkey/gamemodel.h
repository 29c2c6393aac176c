// GameModel: the state that the game must be in, worked out from what the user does.
#ifndef TESTS_MONKEY_GAMEMODEL_H
#define TESTS_MONKEY_GAMEMODEL_H

#include "rules/board.h"
#include "rules/legalmove.h"
#include "tests/monkey/snapshot.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

// The items of the settings dialog.
struct Choices {
    int rules = 0;
    int size = 2;
    int level = 3;
    int players = 0;
    bool giveAway = false;

    std::string text() const {
        return "rules " + std::to_string(rules) + ", size " + std::to_string(size) + ", level " +
               std::to_string(level) + ", players " + std::to_string(players) + ", give-away " +
               std::to_string(giveAway);
    }
};

// A second, plain implementation of the game's control, without a window. It is told each thing
// that reaches the game and says what must be seen afterwards. What moves there are and where they
// lead it asks an engine of its own. The computer's choice of a move and the moments when a leg and
// a flight end are not foretold: they are reported with begin(), flyTo() and land().
//
// What should not have reached the game, a click on a button that cannot be pressed for example,
// becomes `fault`, which stays.
class GameModel {
public:
    enum class Phase { Waiting, Thinking, Flying, Over, Closed };
    enum class Open { Nothing, Settings, About, NewGameBox, GameOverBox };

    GameModel() { newGame(); }

    // A button, by its name without "btn".
    void click(const std::string &button);
    void tap(const XY &square);
    // The move being entered is given up.
    void cancel();
    // The settings dialog is closed with OK, or otherwise; `shown` is what it showed then.
    void accept(const Choices &shown);
    void reject(const Choices &shown);
    void leaveAbout() { open = Open::Nothing; }
    // A box has opened, and is answered.
    void openBox();
    void answer(bool confirmed);
    // The window is closed, and shown again: the game goes on; who was thinking thinks anew.
    void close() { interrupted = std::exchange(phase, Phase::Closed); }
    void reopen();

    // The computer plays `m`.
    void begin(const LegalMove &m);
    // The piece flies towards a square.
    void flyTo(const XY &square);
    // The flight is over.
    void land();

    // All that must be seen, as snapshotOf() tells it of the window.
    Snapshot snapshot(bool thorough) const;

    bool pressable(const std::string &button) const;
    int squares() const { return position.size; }

    Phase phase = Phase::Waiting;
    Choices choices;
    board position;                  // at the start of a flight, while one is on
    std::vector<LegalMove> legal;    // of the side to move, in order of listing
    std::vector<XY> entered;         // squares tapped for the move being entered
    std::vector<XY> nextMarks;       // squares that may be tapped next
    std::optional<LegalMove> flight; // in phase Flying
    Open open = Open::Nothing;       // the dialog or box that is open
    std::string fault;

private:
    void newGame();
    void handTurn();
    void takePlayersByChoice();
    void giveMoverToComputer();
    void step(int by);
    void startFlight(const LegalMove &m);
    void clearMarks();
    board shownPosition() const;
    std::string phaseText() const;
    std::string controlsText() const;
    std::string requestText() const;
    std::string historyText() const;
    std::string openText() const;

    std::vector<XY> pathMarks; // the path of the last move, as long as it is marked
    unsigned leg = 1;          // index in the flight's path of the square flown to
    bool afterSearch = false;  // the move in flight is the computer's
    bool whiteComputer = false;
    bool blackComputer = true;
    std::vector<board> history;
    std::size_t cursor = 0;
    std::string status;
    bool statusShown = true;
    Open due = Open::Nothing;           // a box that has to open
    Phase interrupted = Phase::Waiting; // of a closed window
};

#endif
