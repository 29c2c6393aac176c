#include "tools/monkey/gamemodel.h"

#include "app/choices.h"

#include <algorithm>

GameModel::GameModel() {
    newGame();
}

void GameModel::newGame() {
    entered.clear();
    clearMarks();
    position = board(squaresChoice(choices.size).value_or(fallbackSquares));
    history = {position};
    cursor = 0;
    takePlayersByChoice();
    handTurn();
}

// Whoever plays the side to move gets it; without a move for it the game is over.
void GameModel::handTurn() {
    legal = legalMoves(choices.rules, position);
    entered.clear();
    nextMarks.clear();
    flight.reset();
    if (legal.empty()) {
        phase = Phase::Over;
        due = Box::GameOver;
    } else if (position.whiteToMove ? whiteComputer : blackComputer) {
        phase = Phase::Thinking;
        status = "*** THINKING ***";
        statusShown = true;
    } else {
        phase = Phase::Waiting;
        status = legal.front().taken.empty() ? "Your Move" : "You Must Capture";
        statusShown = true;
    }
}

// The person takes the side to move against the computer.
void GameModel::takePlayersByChoice() {
    const int item = choices.players;
    whiteComputer = item == computerComputer || (item == humanComputer && !position.whiteToMove);
    blackComputer = item == computerComputer || (item == humanComputer && position.whiteToMove);
}

// In a flight the side to move is the next one already.
void GameModel::giveMoverToComputer() {
    choices.players = humanComputer;
    whiteComputer = shownPosition().whiteToMove;
    blackComputer = !whiteComputer;
}

void GameModel::clearMarks() {
    nextMarks.clear();
    pathMarks.clear();
}

void GameModel::click(Button button) {
    if (phase == Phase::Closed)
        return;
    if (dialog != OpenDialog::None || open.has_value())
        fault = "a click has reached the window behind a dialog";
    else if (!pressable(button))
        fault = "a button takes a click that should not be pressable";
    else if (button == Button::Prev || button == Button::Fwd)
        step(button == Button::Prev ? -1 : 1);
    else if (button == Button::About || button == Button::Settings)
        dialog = button == Button::About ? OpenDialog::About : OpenDialog::Settings;
    else if (button == Button::Break)
        giveMoverToComputer();
    else if (button == Button::NewGame && phase != Phase::Flying && cursor > 0)
        due = Box::Confirm;
    else if (button == Button::NewGame && phase != Phase::Flying)
        newGame();
    else if (button == Button::Force) {
        giveMoverToComputer();
        handTurn();
    }
}

void GameModel::step(int by) {
    cursor = by > 0 ? cursor + 1 : cursor - 1;
    clearMarks();
    position = history[cursor];
    if (choices.players == humanComputer)
        takePlayersByChoice();
    handTurn();
}

void GameModel::tap(const XY &square) {
    if (phase != Phase::Waiting)
        return;
    if (dialog != OpenDialog::None || open.has_value())
        fault = "a tap has reached the board behind a dialog";
    const bool offered = std::find(nextMarks.begin(), nextMarks.end(), square) != nextMarks.end();
    if (!offered && position.Get(square) != 0)
        entered.clear();
    entered.push_back(square);
    clearMarks();
    bool matched = false;
    for (const Move &m : legal) {
        if (m.path.size() < entered.size() ||
            !std::equal(entered.begin(), entered.end(), m.path.begin()))
            continue;
        if (m.path.size() == entered.size()) {
            afterSearch = false;
            startFlight(Move(m));
            return;
        }
        matched = true;
        nextMarks.push_back(m.path[entered.size()]);
    }
    if (!matched)
        entered.clear();
}

void GameModel::startFlight(const Move &m) {
    clearMarks();
    entered.clear();
    flight = m;
    phase = Phase::Flying;
}

void GameModel::begin(const Move &m) {
    if (std::find(legal.begin(), legal.end(), m) == legal.end())
        fault = "the computer plays a move that is not legal: " + notation(m.path);
    afterSearch = true;
    statusShown = false;
    startFlight(m);
}

// The position is recorded before the ply counter moves on.
void GameModel::land() {
    const Move m = *flight;
    position = afterMove(position, m);
    pathMarks = m.path;
    history.resize(cursor + 1);
    history.push_back(position);
    ++cursor;
    ++position.plyCount;
    handTurn();
}

void GameModel::accept(const Choices &shown) {
    dialog = OpenDialog::None;
    if (phase == Phase::Closed)
        return;
    const bool otherSize = shown.size != choices.size;
    choices = shown;
    if (otherSize) {
        newGame();
        return;
    }
    takePlayersByChoice();
    handTurn();
}

// A size that was chosen and given up leaves the turn as it was, with a move half entered.
void GameModel::reject(const Choices &shown) {
    dialog = OpenDialog::None;
    if (phase != Phase::Closed && shown.size == choices.size)
        handTurn();
}

void GameModel::openBox(Box box) {
    if (due != box)
        fault = "a box opens that has no reason to";
    due.reset();
    open = box;
}

void GameModel::answer(Box box, bool confirmed) {
    open.reset();
    if (phase == Phase::Closed)
        return;
    if (box == Box::GameOver)
        status = "Game Over";
    else if (confirmed)
        newGame();
}

bool GameModel::breakShown() const {
    return phase == Phase::Thinking || (phase == Phase::Flying && afterSearch);
}

// NewGame may be pressed while the player's own piece flies; nothing comes of it.
bool GameModel::pressable(Button button) const {
    const bool resting = phase == Phase::Waiting || phase == Phase::Over;
    switch (button) {
    case Button::Prev:
        return resting && cursor > 0;
    case Button::Fwd:
        return resting && cursor + 1 < history.size();
    case Button::About:
    case Button::Settings:
        return resting;
    case Button::Break:
        return breakShown();
    case Button::Force:
        return phase == Phase::Waiting;
    case Button::NewGame:
        return resting || (phase == Phase::Flying && !afterSearch);
    }
    return false;
}

board GameModel::shownPosition() const {
    return flight.has_value() ? duringMove(position, *flight) : position;
}
