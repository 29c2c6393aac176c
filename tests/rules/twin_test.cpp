// The program's generators, analysis, evaluation and key against the plain twin, position by
// position. TWIN_POSITIONS in the environment says how many; a few thousand otherwise.

#include "eval/heuristic.h"
#include "tests/support/enginerig.h"
#include "tests/support/plaintwin.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <random>

namespace {

constexpr int quickPositions = 10000;

// All that is asked of a position. Every implementation fills one of these.
struct Findings {
    std::vector<plain::Move> moves;
    board marked; // after the listing
    std::vector<plain::Move> quiet;
    board quietMarked; // after the listing of non-capturing moves alone
    bool aboutToPass = false;
    unsigned int key = 0;
    plain::Analysis analysis;
    int value = 0;
    int valueWithPassages = 0;
};

Findings plainFindings(Rules rules, const board &b, bool gambit) {
    Findings f;
    f.marked = b;
    f.moves = plain::legalMoves(rules, f.marked);
    f.quietMarked = b;
    f.quiet = plain::quietMoves(rules, f.quietMarked);
    f.aboutToPass = plain::aboutToPass(f.marked);
    f.key = plain::key(b);
    f.analysis = plain::analyse(b);
    f.value = plain::value(rules, b, gambit, nullptr);
    f.valueWithPassages = plain::value(rules, b, gambit, &f.analysis);
    return f;
}

std::vector<plain::Move> plainMoves(const QValueList<LegalMove> &list) {
    std::vector<plain::Move> moves;
    for (const LegalMove &m : list)
        moves.push_back({{m.path.begin(), m.path.end()}, {m.taken.begin(), m.taken.end()}});
    return moves;
}

plain::Analysis engineAnalysis(const board &b, heuristic &h) {
    plain::Analysis a;
    h.analyse(&b);
    h.canPass(a.whitePasses, a.blackPasses);
    if (a.whitePasses)
        h.findPassage(codeWhite);
    if (a.blackPasses)
        h.findPassage(codeBlack);
    for (int x = 0; x < b.size; ++x) {
        for (int y = 0; y < b.size; ++y) {
            a.reach[x][y] = h.cells[x][y].reach;
            a.owner[x][y] = h.getOwner(x, y);
            a.passage[x][y] = h.getPassage(x, y);
        }
    }
    a.freedom = h.freedom();
    return a;
}

Findings engineFindings(Rules rules, const board &b, bool gambit) {
    static thinkStatistic statistic;
    static SquaresValue table(10, false);
    statistic.scoreNoise = 1;
    table.reFill(b.size, gambit);
    AbstractEngine::setSQV(&table);
    AbstractEngine::isGambit = gambit;
    Findings f;
    f.marked = b;
    const std::unique_ptr<IntEngine> engine = makeEngine(rules, &f.marked, &statistic);
    const bool noMoves = engine->FillMoveList();
    EXPECT_EQ(noMoves, engine->moveList.isEmpty());
    f.moves = plainMoves(engine->moveList);
    f.quietMarked = b;
    QValueList<LegalMove> quiet;
    const bool found = engine->FillNotCapturingMoveList(&quiet, &f.quietMarked);
    EXPECT_EQ(found, !quiet.isEmpty());
    f.quiet = plainMoves(quiet);
    f.aboutToPass = engine->aboutToPass();
    f.key = b.HKey();
    heuristic h;
    f.analysis = engineAnalysis(b, h);
    f.value = engine->materialScore(nullptr);
    f.valueWithPassages = engine->materialScore(&h);
    return f;
}

// The implementations to compare with the plain one.
struct Implementation {
    const char *name;
    Findings (*findings)(Rules, const board &, bool gambit);
};
constexpr Implementation implementations[] = {{"engine", engineFindings}};

bool sameSquares(const board &a, const board &b) {
    return std::memcmp(a.squares, b.squares, sizeof a.squares) == 0;
}

void expectSame(const Findings &want, const Findings &got) {
    EXPECT_TRUE(want.moves == got.moves) << "moves";
    EXPECT_TRUE(want.quiet == got.quiet) << "non-capturing moves";
    EXPECT_TRUE(sameSquares(want.marked, got.marked)) << "can-move marks";
    EXPECT_TRUE(sameSquares(want.quietMarked, got.quietMarked)) << "can-move marks, quiet";
    EXPECT_EQ(want.aboutToPass, got.aboutToPass);
    EXPECT_EQ(want.key, got.key);
    EXPECT_EQ(std::memcmp(want.analysis.reach, got.analysis.reach, sizeof want.analysis.reach), 0);
    EXPECT_EQ(std::memcmp(want.analysis.owner, got.analysis.owner, sizeof want.analysis.owner), 0);
    EXPECT_EQ(
        std::memcmp(want.analysis.passage, got.analysis.passage, sizeof want.analysis.passage), 0);
    EXPECT_EQ(want.analysis.whitePasses, got.analysis.whitePasses);
    EXPECT_EQ(want.analysis.blackPasses, got.analysis.blackPasses);
    EXPECT_EQ(want.analysis.freedom, got.analysis.freedom);
    EXPECT_EQ(want.value, got.value);
    EXPECT_EQ(want.valueWithPassages, got.valueWithPassages);
}

class Twin : public testing::TestWithParam<Rules> {
protected:
    RecordingHost host;
    std::mt19937 random{2024U + static_cast<unsigned>(GetParam())};

    int below(std::size_t n) { return static_cast<int>(random() % n); }

    static int positions() {
        const char *wanted = std::getenv("TWIN_POSITIONS");
        return (wanted == nullptr ? quickPositions : std::atoi(wanted)) / 3;
    }

    std::vector<plain::Move> compare(const board &b) {
        XY::B_SIZE = b.size;
        const bool gambit = below(2) == 0;
        const Findings want = plainFindings(GetParam(), b, gambit);
        for (const Implementation &implementation : implementations) {
            expectSame(want, implementation.findings(GetParam(), b, gambit));
            if (HasFailure())
                ADD_FAILURE() << implementation.name << ", " << testing::PrintToString(GetParam())
                              << (gambit ? ", gambit\n" : "\n") << picture(b);
        }
        return want.moves;
    }

    // The same move made by both; the piece keeps its marks on the way.
    void playBoth(board &b, const plain::Move &m) {
        static thinkStatistic statistic;
        LegalMove move(m.path.front(), m.path.back());
        for (std::size_t i = 0; i < m.taken.size(); ++i)
            move.insTaken(m.taken[i], static_cast<int>(i));
        board other = b;
        makeEngine(GetParam(), &other, &statistic)->makeMove(&other, &move);
        plain::play(b, m);
        ASSERT_TRUE(sameSquares(b, other)) << picture(b);
        ASSERT_EQ(b.whiteToMove, other.whiteToMove);
        ASSERT_EQ(b.plyCount, other.plyCount);
    }

    // Pieces anywhere on the dark squares, `kings` of ten being kings.
    board scattered(int size, int filled, int kings) {
        board b(size);
        b.clear();
        b.whiteToMove = below(2) == 0;
        for (int x = 0; x < size; ++x) {
            for (int y = x % 2; y < size; y += 2) {
                if (below(100) < filled)
                    b.squares[x][y] =
                        static_cast<unsigned char>(4 + 4 * below(2) + (below(10) < kings ? 2 : 1));
            }
        }
        return b;
    }
};

INSTANTIATE_TEST_SUITE_P(Rules, Twin, testing::ValuesIn(allRules),
                         [](const auto &suite) { return testing::PrintToString(suite.param); });

TEST_P(Twin, AgreesOnPositionsOfGames) {
    constexpr int longestGame = 120;
    for (int done = 0; done < positions() && !HasFailure();) {
        board b(allSizes[below(4)]);
        for (int ply = 0; ply < longestGame && !HasFailure(); ++ply, ++done) {
            const std::vector<plain::Move> moves = compare(b);
            if (moves.empty())
                break;
            plain::legalMoves(GetParam(), b); // leaves its marks for the next position
            playBoth(b, moves[static_cast<std::size_t>(below(moves.size()))]);
        }
    }
}

TEST_P(Twin, AgreesOnScatteredPositions) {
    for (int done = 0; done < positions() && !HasFailure(); ++done)
        compare(scattered(allSizes[below(4)], 5 + below(40), below(11)));
}

} // namespace
