// microbench: the parts of the search one by one, over bit sets and over engines.

#include "bits/bitanalysis.h"
#include "bits/bitmaterial.h"
#include "bits/bitmovegenerator.h"
#include "bits/bittable.h"
#include "eval/heuristic.h"
#include "eval/squaresvalue.h"
#include "rules/intengine.h"
#include "search/hashtable.h"
#include "search/thinkstatistic.h"
#include "tools/bench/benchrun.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iterator>
#include <vector>

namespace {

constexpr int size = 10;
constexpr int hashSlots = 10003;
using Position = BitPosition<size>;
using Generator = BitMoveGenerator<size, internationalRules, true>;

// 10 x 10 positions with white to move, one for each kind of generation.
enum class Kind { Quiet, ManCaptures, KingCaptures };

void put(board &b, int code, std::initializer_list<XY> squares) {
    for (const XY &square : squares)
        b.Get(square) = static_cast<unsigned char>(code);
}

board positionOf(Kind kind) {
    XY::B_SIZE = size;
    board b(size);
    if (kind == Kind::Quiet)
        return b;
    b.clear();
    put(b, kind == Kind::ManCaptures ? whiteMan : whiteKing, {{1, 1}, {7, 1}});
    put(b, blackMan, {{2, 2}, {4, 4}, {6, 6}, {6, 2}, {4, 2}, {2, 6}});
    return b;
}

// An engine on a position, with all that its evaluation and search need.
class Rig {
public:
    explicit Rig(const board &b) : position(b), engine(&position, 1, &statistic, size) {
        statistic.scoreNoise = 1;
        AbstractEngine::setSQV(&squareValues);
        AbstractEngine::setHashTable(&table);
    }

    board position;
    thinkStatistic statistic;
    SquaresValue squareValues{size, false};
    hashTable table{hashSlots};
    IntEngine engine;
};

void listOverBits(benchmark::State &state, Kind kind) {
    const Position p(positionOf(kind));
    MoveStack<BitMove<size>> stack;
    ListingWatch unwatched;
    while (state.KeepRunning()) {
        Generator generator(p);
        if (generator.canCapture())
            generator.listCaptures(stack, unwatched);
        else
            generator.listQuiet(stack, generator.countQuiet());
        benchmark::DoNotOptimize(stack.size());
        stack.cut(0);
    }
}
BENCHMARK_CAPTURE(listOverBits, quiet, Kind::Quiet);
BENCHMARK_CAPTURE(listOverBits, manCaptures, Kind::ManCaptures);
BENCHMARK_CAPTURE(listOverBits, kingCaptures, Kind::KingCaptures);

void countOverBits(benchmark::State &state) {
    const Position p(positionOf(Kind::Quiet));
    while (state.KeepRunning()) {
        Generator generator(p);
        benchmark::DoNotOptimize(generator.canCapture() ? 0 : generator.countQuiet());
    }
}
BENCHMARK(countOverBits);

void listOverEngine(benchmark::State &state, Kind kind) {
    Rig rig(positionOf(kind));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(rig.engine.FillMoveList());
}
BENCHMARK_CAPTURE(listOverEngine, quiet, Kind::Quiet);
BENCHMARK_CAPTURE(listOverEngine, manCaptures, Kind::ManCaptures);
BENCHMARK_CAPTURE(listOverEngine, kingCaptures, Kind::KingCaptures);

void analysisOverBits(benchmark::State &state) {
    const Position p(positionOf(Kind::Quiet));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(BitAnalysis<size>(p, true).canPass());
}
BENCHMARK(analysisOverBits);

void analysisOverCells(benchmark::State &state) {
    const board b = positionOf(Kind::Quiet);
    while (state.KeepRunning()) {
        heuristic h;
        h.analyse(&b);
        benchmark::DoNotOptimize(h);
    }
}
BENCHMARK(analysisOverCells);

void materialOverBits(benchmark::State &state) {
    const Position p(positionOf(Kind::Quiet));
    const BitMaterial<size, true> material(SquaresValue(size, false), false);
    while (state.KeepRunning())
        benchmark::DoNotOptimize(material.balance(p, 0, 0));
}
BENCHMARK(materialOverBits);

void materialOverEngine(benchmark::State &state) {
    Rig rig(positionOf(Kind::Quiet));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(rig.engine.materialScore(nullptr));
}
BENCHMARK(materialOverEngine);

void keyOverBits(benchmark::State &state) {
    const Position p(positionOf(Kind::Quiet));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(BitKey<size>::of(p, true));
}
BENCHMARK(keyOverBits);

void keyOverSquares(benchmark::State &state) {
    const board b = positionOf(Kind::Quiet);
    while (state.KeepRunning())
        benchmark::DoNotOptimize(b.HKey());
}
BENCHMARK(keyOverSquares);

// Positions that differ from each other, as a search would store them.
std::vector<board> manyPositions(int count) {
    std::srand(1);
    std::vector<board> positions;
    while (static_cast<int>(positions.size()) < count) {
        board b = positionOf(Kind::Quiet);
        for (int i = 0; i < 6; ++i) {
            const int x = std::rand() % size;
            b.squares[x][x % 2 + 2 * (std::rand() % (size / 2))] = 0;
        }
        b.hashAlpha = 1;
        positions.push_back(b);
    }
    return positions;
}

void hashInsert(benchmark::State &state) {
    const std::vector<board> positions = manyPositions(5000);
    hashTable table(hashSlots);
    std::size_t next = 0;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(table.insert(&positions[next]));
        next = (next + 1) % positions.size();
        if (next == 0)
            table.clear();
    }
}
BENCHMARK(hashInsert);

void hashFind(benchmark::State &state) {
    const std::vector<board> positions = manyPositions(5000);
    hashTable table(hashSlots);
    for (const board &b : positions)
        table.insert(&b);
    std::size_t next = 0;
    unsigned int slot = 0;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(table.find(&positions[next], slot));
        next = (next + 1) % positions.size();
    }
}
BENCHMARK(hashFind);

void hashFindOverBits(benchmark::State &state) {
    const std::vector<board> boards = manyPositions(5000);
    hashTable table(hashSlots);
    BitTable<size> bitTable(table);
    const BitMaterial<size, true> material(SquaresValue(size, false), false);
    std::vector<Position> positions;
    std::vector<std::uint32_t> hashes;
    for (const board &b : boards) {
        positions.emplace_back(b);
        hashes.push_back(material.tallies().of(positions.back()).hash());
        bitTable.insert(positions.back(), hashes.back(), true, 0, 0, 0, 1);
    }
    std::size_t next = 0;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(bitTable.find(positions[next], hashes[next], true));
        next = (next + 1) % positions.size();
    }
}
BENCHMARK(hashFindOverBits);

// The start position, international rules, so many plies deep.
void wholeSearch(benchmark::State &state) {
    BenchTask task;
    task.position = positionOf(Kind::Quiet);
    task.depth = static_cast<int>(state.range(0));
    qint64 nodes = 0;
    while (state.KeepRunning())
        nodes += runTask(task, false).statistic.nodes;
    state.counters["nodes/s"] =
        benchmark::Counter(static_cast<double>(nodes), benchmark::Counter::kIsRate);
}
BENCHMARK(wholeSearch)->Arg(5)->Arg(7)->Arg(9)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
