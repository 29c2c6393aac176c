#include "tools/soak/enginegame.h"

#include "rules/legalmove.h"
#include "search/abstractengine.h"
#include "search/bestline.h"
#include "search/nodeprocedure.h"
#include "tests/support/plaintwin.h"
#include "tools/common/tablefault.h"

#include <QTextStream>

#include <algorithm>
#include <limits>

namespace {

QString lineOf(const board &b) {
    QString line;
    QTextStream stream(&line);
    b.toStream(stream);
    stream.flush();
    return line.trimmed();
}

plain::Move plainMove(const LegalMove &m) {
    return {{m.path.begin(), m.path.end()}, {m.taken.begin(), m.taken.end()}};
}

} // namespace

SoakTable::SoakTable() : previous_(setHost(this)) {
    AbstractEngine::setSQV(&values);
    AbstractEngine::setHashTable(&table);
}

SoakTable::~SoakTable() {
    AbstractEngine::setSQV(nullptr);
    AbstractEngine::setHashTable(nullptr);
    setHost(previous_);
}

bool SoakTable::messageBox(BoxKind, const QString &title, const QString &text, BoxButtons,
                           QWidget *) {
    boxes += title + ": " + text + "; ";
    return true;
}

EngineGame::EngineGame(SoakTable &table, const GameSetup &setup)
    : table_(table), setup_(setup), random_(setup.seed), position_(setup.size) {
    XY::B_SIZE = setup.size;
    thinkStatistic &statistic = table.statistic;
    if (setup.level.plies > 0)
        statistic.setReqDepth(setup.level.plies);
    else
        statistic.setReqTime(setup.level.seconds);
    statistic.scoreNoise = setup.level.scoreNoise;
    statistic.giveAway = setup.giveAway;
    statistic.newGame();
    table.nextSeed = setup.seed;
    table.boxes.clear();
    engine_.reset(newEngine(setup.rules, &position_, 1, &statistic, setup.size));
}

EngineGame::~EngineGame() = default;

GameOutcome EngineGame::play(const Watch &watch) {
    GameOutcome outcome;
    playOpening();
    while (position_.plyCount < setup_.mostPlies && playOne(watch, outcome))
        ++table_.nextSeed;
    outcome.plies = position_.plyCount;
    if (outcome.fault.isEmpty())
        outcome.fault = tableFault(table_.table);
    if (!outcome.fault.isEmpty())
        outcome.fault += " at " + lineOf(position_);
    return outcome;
}

void EngineGame::playOpening() {
    for (int ply = 0; ply < setup_.openingPlies && !engine_->FillMoveList(); ++ply) {
        const auto moves = static_cast<unsigned>(engine_->moveList.count());
        engine_->makeMove(&position_, engine_->getLegalMove(static_cast<int>(random_() % moves)));
    }
}

// As the window does it: list, search, play. False when the game is over.
bool EngineGame::playOne(const Watch &watch, GameOutcome &outcome) {
    if (engine_->FillMoveList()) {
        outcome.end = position_.whiteToMove ? GameOutcome::End::WhiteMovesNoMore
                                            : GameOutcome::End::BlackMovesNoMore;
        return false;
    }
    const thinkStatistic &statistic = table_.statistic;
    const qint64 budget = statistic.budgetMs();
    Score score(777, -1);
    BestLine line;
    const LegalMove *move = engine_->getBestMove(score, line);
    outcome.nodes += statistic.nodes;
    outcome.fault = searchFault(move);
    if (outcome.fault.isEmpty() && score.isNone())
        outcome.fault = "the score is none";
    if (!outcome.fault.isEmpty())
        return false;
    const Thought thought{engine_->moveList.count(), budget, statistic.elapsedMs,
                          engine_->depth / 10};
    outcome.fault = playChecked(*move);
    return outcome.fault.isEmpty() && watch(thought);
}

QString EngineGame::playChecked(const LegalMove &move) {
    board wanted = position_;
    const plain::Move played = plainMove(move);
    const std::vector<plain::Move> legal = plain::legalMoves(setup_.rules, wanted);
    if (std::find(legal.begin(), legal.end(), played) == legal.end())
        return "an illegal move";
    plain::play(wanted, played);
    engine_->makeMove(&position_, &move);
    const bool same = hashTable::areEqual(&wanted, &position_) &&
                      wanted.whiteToMove == position_.whiteToMove &&
                      wanted.plyCount == position_.plyCount;
    return same ? QString() : "a move played differently";
}

QString EngineGame::searchFault(const LegalMove *move) const {
    const auto &list = engine_->moveList;
    if (std::none_of(list.begin(), list.end(), [&](const LegalMove &m) { return &m == move; }))
        return "a move that is not in the list";
    if (!table_.boxes.isEmpty())
        return "a box: " + table_.boxes;
    const thinkStatistic &s = table_.statistic;
    for (const int counter : {s.nodes, s.movesGenerated, s.scoresCalculated, s.cutoffs,
                              s.senselessSacrifices, s.hashHits, s.elapsedMs, s.movesPerMs}) {
        if (counter < 0 || counter == std::numeric_limits<int>::max())
            return "a counter out of range";
    }
    if (s.nodes < 1 || s.movesGenerated < list.count() || s.maxLevel > levelLimit)
        return "counters without sense";
    return {};
}
