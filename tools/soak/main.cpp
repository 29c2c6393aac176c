// soak: games of the computer against itself by the thousand, and the time that its moves take.

#include "tools/common/commandline.h"
#include "tools/common/positionline.h"
#include "tools/soak/enginegame.h"
#include "tools/soak/options.h"
#include "tools/soak/report.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>
#include <iterator>

namespace {

constexpr int mostOpeningPlies = 8;

// An iteration that was expected to end in time is not cut off when it does not; twice the budget
// is seen now and then.
constexpr int mostPercentOfBudget = 500;

// Game number `game`: rules change fastest, then sizes and aims, then levels.
GameSetup setupFor(const SoakOptions &options, int game) {
    const auto turn = [&game](auto count) {
        const int item = game % static_cast<int>(count);
        game /= static_cast<int>(count);
        return item;
    };
    GameSetup setup;
    setup.seed = options.seed + static_cast<unsigned>(game);
    setup.rules = allRuleSets[turn(std::size(allRuleSets))];
    setup.size = allBoardSizes[turn(std::size(allBoardSizes))];
    setup.giveAway = turn(2) == 1;
    setup.openingPlies = game % (mostOpeningPlies + 1);
    setup.level = options.levels[turn(options.levels.size())];
    setup.mostPlies = options.plies;
    return setup;
}

QString nameOf(const GameSetup &setup, int game) {
    return QString("game %1 (%2, %3 x %3%4, seed %5)")
        .arg(game)
        .arg(nameOf(setup.rules))
        .arg(setup.size)
        .arg(setup.giveAway ? ", give-away" : "")
        .arg(setup.seed);
}

// Memory is looked at after every game; what the first tenth of the games needed may be needed
// again.
class MemoryWatch {
public:
    explicit MemoryWatch(int games) : settlingGames_(std::max(games / 10, 1)) {}

    // Kilobytes above what was needed at first.
    long lookAfter(int game) {
        last_ = residentKb();
        most_ = std::max(most_, last_);
        if (game < settlingGames_)
            settled_ = most_;
        return last_ - settled_;
    }
    void print(QTextStream &out) const {
        out << "resident memory: " << settled_ << " KB after " << settlingGames_
            << " games, at most " << most_ << " KB, " << last_ << " KB at the end\n";
    }

private:
    const int settlingGames_;
    long settled_ = 0;
    long most_ = 0;
    long last_ = 0;
};

int playGames(const SoakOptions &options) {
    QTextStream out(stdout);
    SoakTable table;
    GameTable games;
    MemoryWatch memory(options.games);
    for (int game = 0; game < options.games; ++game) {
        const GameSetup setup = setupFor(options, game);
        const GameOutcome outcome =
            EngineGame(table, setup).play([](const Thought &) { return true; });
        if (!outcome.fault.isEmpty())
            return fail(nameOf(setup, game) + ": " + outcome.fault);
        games.add(setup, outcome);
        if (const long grown = memory.lookAfter(game); grown > options.growthKb)
            return fail(nameOf(setup, game) + QString(": memory has grown by %1 KB").arg(grown));
    }
    games.print(out);
    memory.print(out);
    return 0;
}

int measureTimes(const SoakOptions &options) {
    QTextStream out(stdout);
    SoakTable table;
    TimeTable times;
    for (int game = 0; times.count() < options.timedMoves; ++game) {
        const GameSetup setup = setupFor(options, game);
        // A few moves of each game, so that many kinds of positions come up.
        constexpr int movesOfAGame = 25;
        int measured = 0;
        const auto watch = [&](const Thought &thought) {
            if (thought.moves > 1) {
                times.add(setup.level.seconds, thought);
                ++measured;
            }
            return measured < movesOfAGame && times.count() < options.timedMoves;
        };
        const GameOutcome outcome = EngineGame(table, setup).play(watch);
        if (!outcome.fault.isEmpty())
            return fail(nameOf(setup, game) + ": " + outcome.fault);
    }
    times.print(out);
    if (times.worstPercent() > mostPercentOfBudget)
        return fail(QString("a move took %1 % of its budget").arg(times.worstPercent()));
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    describeSoak(parser);
    if (const std::optional<int> status = parseCommandLine(parser))
        return *status;
    SoakOptions options;
    if (const QString wrong = readSoakOptions(parser, options); !wrong.isEmpty())
        return fail(wrong);
    return options.timedMoves > 0 ? measureTimes(options) : playGames(options);
}
