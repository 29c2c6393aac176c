// GameModel: the state that the game must be in, worked out from what the user does.
#ifndef TOOLS_MONKEY_GAMEMODEL_H
#define TOOLS_MONKEY_GAMEMODEL_H

#include "tools/monkey/rulebook.h"

#include <QString>

#include <optional>
#include <vector>

enum class Phase { Waiting, Thinking, Flying, Over, Closed };
enum class Button { Prev, Fwd, About, Break, Force, Settings, NewGame };
enum class OpenDialog { None, Settings, About };
enum class Box { Confirm, GameOver };

// The items of the settings dialog.
struct Choices {
    int rules = 0;
    int size = 2;
    int level = 3;
    int players = 0;
    bool giveAway = false;
    bool operator==(const Choices &) const = default;
};

// A second, plain implementation of the game's control, without a window. It is told each thing
// that reaches the game and says what must be seen afterwards. The computer's choice of a move and
// the moment when a flight ends are not foretold: they are reported with begin() and land().
//
// What should not have reached the game, a click on a button that cannot be pressed for example,
// becomes `fault`, which stays.
class GameModel {
public:
    GameModel();

    void click(Button button);
    void tap(const XY &square);
    // The settings dialog is closed with OK, or otherwise; `shown` is what it showed then.
    void accept(const Choices &shown);
    void reject(const Choices &shown);
    void leaveAbout() { dialog = OpenDialog::None; }
    // A box has opened, and is answered.
    void openBox(Box box);
    void answer(Box box, bool confirmed);
    void close() { phase = Phase::Closed; }

    // The computer plays `m`.
    void begin(const Move &m);
    // The flight is over.
    void land();

    bool pressable(Button button) const;
    bool breakShown() const;
    int squares() const { return position.size; }
    // The position to be seen: in a flight the one on the way.
    board shownPosition() const;

    Phase phase = Phase::Waiting;
    Choices choices;
    board position;             // at the start of a flight, while one is on
    std::vector<Move> legal;    // of the side to move, in order of listing
    std::vector<XY> entered;    // squares tapped for the move being entered
    std::vector<XY> nextMarks;  // squares that may be tapped next
    std::vector<XY> pathMarks;  // the path of the last move, as long as it is marked
    std::optional<Move> flight; // in phase Flying
    bool afterSearch = false;   // the move in flight is the computer's
    bool whiteComputer = false;
    bool blackComputer = true;
    std::vector<board> history;
    std::size_t cursor = 0;
    QString status;
    bool statusShown = true;
    OpenDialog dialog = OpenDialog::None;
    std::optional<Box> due;  // a box that has to open
    std::optional<Box> open; // the box that is open
    QString fault;

private:
    void newGame();
    void handTurn();
    void takePlayersByChoice();
    void giveMoverToComputer();
    void step(int by);
    void startFlight(const Move &m);
    void clearMarks();
};

#endif
