#include "tests/monkey/gamemodel.h"

#include "forms/fsettings.h"
#include "rules/ruleset.h"
#include "search/abstractengine.h"
#include "search/thinkstatistic.h"
#include "tests/rig/windowtext.h"
#include "tests/support/drawnboard.h"
#include "tests/support/recordinghost.h"

#include <algorithm>
#include <memory>
#include <sstream>
#include <utility>

namespace {

constexpr int sizes[] = {6, 8, 10, 12};

// What the rules are asked: an engine and a board that have nothing to do with those of the window,
// which may be about to change its size.
struct Judge {
    Judge(int rules, const board &b)
        : position(b), squaresOfTheWindow(std::exchange(XY::B_SIZE, b.size)),
          engine(ruleRows[rules].newEngine(&position, 1, &statistic, b.size)) {
        engine->FillMoveList();
    }
    ~Judge() { XY::B_SIZE = squaresOfTheWindow; }

    std::vector<LegalMove> moves() const {
        return {engine->getMoveList()->begin(), engine->getMoveList()->end()};
    }

    board position;
    int squaresOfTheWindow;
    thinkStatistic statistic;
    std::unique_ptr<AbstractEngine> engine;
};

} // namespace

void GameModel::newGame() {
    clearMarks();
    position = board(sizes[choices.size]);
    history = {position};
    cursor = 0;
    takePlayersByChoice();
    handTurn();
}

// Whoever plays the side to move gets it; without a move for it the game is over.
void GameModel::handTurn() {
    legal = Judge(choices.rules, position).moves();
    entered.clear();
    nextMarks.clear();
    flight.reset();
    if (legal.empty()) {
        phase = Phase::Over;
        due = Open::GameOverBox;
    } else if (position.whiteToMove ? whiteComputer : blackComputer) {
        phase = Phase::Thinking;
        status = "*** THINKING ***";
    } else {
        phase = Phase::Waiting;
        status = legal.front().isCapture() ? "You Must Capture" : "Your Move";
    }
    statusShown = statusShown || phase != Phase::Over;
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

void GameModel::click(const std::string &button) {
    if (phase == Phase::Closed)
        return;
    if (open != Open::Nothing)
        fault = "a click on " + button + " has reached the window behind a dialog";
    else if (!pressable(button))
        fault = button + " takes a click that should not be pressable";
    else if (button == "Prev" || button == "Fwd")
        step(button == "Prev" ? -1 : 1);
    else if (button == "About" || button == "Settings")
        open = button == "About" ? Open::About : Open::Settings;
    else if (button == "Break")
        giveMoverToComputer();
    else if (button == "NewGame" && phase != Phase::Flying && cursor > 0)
        due = Open::NewGameBox;
    else if (button == "NewGame" && phase != Phase::Flying)
        newGame();
    else if (button == "Force") {
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
    if (open != Open::Nothing)
        fault = "a tap has reached the board behind a dialog";
    if (position.Get(square) != 0 && std::ranges::count(nextMarks, square) == 0)
        entered.clear();
    entered.push_back(square);
    clearMarks();
    bool matched = false;
    for (const LegalMove &m : legal) {
        if (m.path.size() < entered.size() ||
            !std::equal(entered.begin(), entered.end(), m.path.begin()))
            continue;
        if (m.path.size() == entered.size()) {
            afterSearch = false;
            startFlight(m);
            return;
        }
        matched = true;
        nextMarks.push_back(m.path[static_cast<unsigned>(entered.size())]);
    }
    if (!matched)
        entered.clear();
}

void GameModel::cancel() {
    if (phase != Phase::Waiting || entered.empty())
        return;
    entered.clear();
    clearMarks();
}

void GameModel::startFlight(const LegalMove &m) {
    clearMarks();
    entered.clear();
    flight = m;
    leg = 1;
    pathMarks = {m.from()};
    phase = Phase::Flying;
}

void GameModel::begin(const LegalMove &m) {
    const auto isPlayed = [&m](const LegalMove &l) {
        return std::ranges::equal(l.path, m.path) && std::ranges::equal(l.taken, m.taken);
    };
    if (std::ranges::none_of(legal, isPlayed))
        fault = "the computer plays a move that is not legal";
    afterSearch = true;
    statusShown = false;
    startFlight(m);
}

void GameModel::flyTo(const XY &square) {
    if (square == flight->path[leg] || leg + 1 >= flight->path.size())
        return;
    pathMarks.push_back(flight->path[leg]);
    ++leg;
}

// The position is recorded before the ply counter moves on.
void GameModel::land() {
    Judge judge(choices.rules, position);
    judge.engine->makeMove(&judge.position, &*flight);
    judge.position.plyCount = position.plyCount;
    position = judge.position;
    pathMarks.assign(flight->path.begin(), flight->path.end());
    history.resize(cursor + 1);
    history.push_back(position);
    ++cursor;
    ++position.plyCount;
    handTurn();
}

void GameModel::accept(const Choices &shown) {
    open = Open::Nothing;
    if (phase == Phase::Closed)
        return;
    const bool otherSize = shown.size != choices.size;
    choices = shown;
    takePlayersByChoice();
    otherSize ? newGame() : handTurn();
}

// A size that was chosen and given up leaves the turn as it was, with a move half entered.
void GameModel::reject(const Choices &shown) {
    open = Open::Nothing;
    if (phase != Phase::Closed && shown.size == choices.size)
        handTurn();
}

void GameModel::openBox() {
    if (due == Open::Nothing)
        fault = "a box opens that has no reason to";
    open = due;
    due = Open::Nothing;
}

void GameModel::answer(bool confirmed) {
    const bool gameOver = open == Open::GameOverBox;
    open = Open::Nothing;
    if (phase == Phase::Closed)
        return;
    if (gameOver)
        status = "Game Over";
    else if (confirmed)
        newGame();
}

void GameModel::reopen() {
    phase = interrupted;
    if (phase == Phase::Thinking)
        handTurn();
}

// NewGame may be pressed while the player's own piece flies; nothing comes of it.
bool GameModel::pressable(const std::string &button) const {
    const bool resting = phase == Phase::Waiting || phase == Phase::Over;
    if (button == "Prev")
        return resting && cursor > 0;
    if (button == "Fwd")
        return resting && cursor + 1 < history.size();
    if (button == "Break")
        return phase == Phase::Thinking || (phase == Phase::Flying && afterSearch);
    if (button == "Force")
        return phase == Phase::Waiting;
    if (button == "NewGame")
        return resting || (phase == Phase::Flying && !afterSearch);
    return resting; // About, Settings
}

// The turn is passed on when a flight begins, and what is taken is marked.
board GameModel::shownPosition() const {
    board shown = position;
    if (flight.has_value()) {
        shown.whiteToMove = !shown.whiteToMove;
        for (const XY &square : flight->taken)
            shown.Get(square) |= codeTaken;
    }
    return shown;
}

std::string GameModel::phaseText() const {
    constexpr const char *names[] = {"waiting", "thinking", "flying ", "over"};
    const std::string name = names[static_cast<int>(phase)];
    return flight ? name + moveText(*flight) + " to " + inOrder({flight->path[leg]}) : name;
}

std::string GameModel::controlsText() const {
    int white = 0;
    int black = 0;
    position.countPieces(white, black);
    std::string text = '[' + (statusShown ? status : "") + "] " + std::to_string(white) + '/' +
                       std::to_string(black);
    for (const char *button : {"Prev", "Fwd", "About", "Break", "Force", "Settings", "NewGame"})
        text += pressable(button) ? std::string(" ") + button : "";
    return text;
}

std::string GameModel::requestText() const {
    constexpr const char *engines[] = {"IntEngine", "AmEngine", "PolEngine"};
    constexpr const char *requests[] = {
        "depth 1, noise 1000", "depth 2, noise 400", "2 s, noise 5",  "5 s, noise 5",
        "10 s, noise 5",       "20 s, noise 5",      "60 s, noise 5", "99999999 s, noise 5"};
    return std::string(engines[choices.rules]) + ", " + requests[choices.level] +
           (choices.giveAway ? ", give-away" : "");
}

std::string GameModel::historyText() const {
    std::ostringstream text;
    text << std::hex << history[cursor].HKey() << (cursor > 0 ? " back" : "")
         << (cursor + 1 < history.size() ? " forward" : "");
    return text.str();
}

// A box that has to open is as good as one.
std::string GameModel::openText() const {
    constexpr const char *texts[] = {
        "", "settings\n", "about\n",
        "warning of the window: confirm: confirm NewGame [Ok Cancel]\n",
        "warning of the window: Game Over: Game Over [Ok]\n"};
    return texts[static_cast<int>(due != Open::Nothing ? due : open)];
}

Snapshot GameModel::snapshot(bool thorough) const {
    const board b = shownPosition();
    if (phase == Phase::Closed)
        return {{"phase", "closed"}, {"position", picture(b)}};
    const auto sprite = [&](int x, int y) {
        return flight.has_value() && flight->from() == XY(x, y) ? '*' : letterOf(b.squares[x][y]);
    };
    const std::string rows = drawing(b.size, sprite);
    const auto onBoard = std::ranges::count_if(rows, [](char c) { return c != '.' && c != '\n'; });
    const int sprites = b.StaringNumber();
    Snapshot all = {
        {"phase", phaseText()},
        {"ply", std::to_string(b.plyCount)},
        {"squares", std::to_string(b.size)},
        {"position", picture(b)},
        {"sprites", rows},
        {"sprites in the pool",
         std::to_string(sprites - onBoard) + " hidden of " + std::to_string(sprites)},
        {"next squares", inOrder(nextMarks)},
        {"path", inOrder(pathMarks)},
        {"computer plays", computersText(whiteComputer, blackComputer)},
        {"history", historyText()},
        {"request", requestText()},
        {"controls", controlsText()},
        {"pointer", phase == Phase::Thinking ? "forbidden" : "arrow"},
        {"open", openText()},
        {"settings", open == Open::Settings ? "settings\n" : choices.text()},
    };
    if (thorough && !flight.has_value())
        all.emplace_back("pixels", picture(b).substr(2));
    return all;
}
