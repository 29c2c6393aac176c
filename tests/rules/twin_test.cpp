// Engines and bit sets against the plain twin: moves, keys, analysis and evaluation, position by
// position. TWIN_POSITIONS in the environment says how many; a few thousand otherwise.

#include "eval/bitanalysis.h"
#include "eval/bitmaterial.h"
#include "eval/heuristic.h"
#include "rules/bitmovegenerator.h"
#include "search/abstractengine.h"
#include "tests/support/drawnboard.h"
#include "tests/support/plaintwin.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <random>
#include <tuple>

namespace {

// All that the twin says of a position.
struct Findings {
    board marked; // by the listing of moves, and of the quiet ones alone
    board quietMarked;
    std::vector<plain::Move> moves;
    std::vector<plain::Move> quiet;
    plain::Analysis analysis;
    int value, valueWithPassages;

    Findings(RuleSet rules, const board &b, bool gambit)
        : marked(b), quietMarked(b), moves(plain::legalMoves(rules, marked)),
          quiet(plain::quietMoves(rules, quietMarked)), analysis(plain::analyse(b)),
          value(plain::value(rules, b, gambit, nullptr)),
          valueWithPassages(plain::value(rules, b, gambit, &analysis)) {}
};

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
    for (int i = 0; i < b.size * b.size; ++i) {
        const XY p(i / b.size, i % b.size);
        a.reach[p.x][p.y] = h.cells[p.x][p.y].reach;
        a.owner[p.x][p.y] = h.getOwner(p.x, p.y);
        a.passage[p.x][p.y] = h.getPassage(p.x, p.y);
    }
    a.freedom = h.freedom();
    return a;
}

bool sameSquares(const board &a, const board &b) {
    return std::memcmp(a.squares, b.squares, sizeof a.squares) == 0;
}

void compareEngine(RuleSet rules, const board &b, const Findings &want) {
    thinkStatistic statistic;
    statistic.scoreNoise = 1;
    board marked = b;
    const std::unique_ptr<AbstractEngine> engine(newEngine(rules, &marked, 1, &statistic, b.size));
    EXPECT_EQ(engine->FillMoveList(), want.moves.empty());
    EXPECT_TRUE(plainMoves(engine->moveList) == want.moves) << moveText(engine->moveList);
    EXPECT_TRUE(sameSquares(marked, want.marked)) << "can-move marks";
    EXPECT_EQ(engine->aboutToPass(), plain::aboutToPass(want.marked));
    for (int i = 0; i < engine->moveList.count() && !testing::Test::HasFailure(); ++i) {
        board after = marked;
        board wanted = want.marked;
        engine->makeMove(&after, &engine->moveList[i]);
        plain::play(wanted, want.moves[static_cast<std::size_t>(i)]);
        EXPECT_EQ(std::tie(after.whiteToMove, after.plyCount),
                  std::tie(wanted.whiteToMove, wanted.plyCount));
        EXPECT_TRUE(sameSquares(after, wanted)) << "after " << moveText(engine->moveList[i]);
    }
    board quietMarked = b;
    QValueList<LegalMove> quiet;
    EXPECT_EQ(engine->FillNotCapturingMoveList(&quiet, &quietMarked), !want.quiet.empty());
    EXPECT_TRUE(plainMoves(quiet) == want.quiet) << moveText(quiet);
    EXPECT_TRUE(sameSquares(quietMarked, want.quietMarked)) << "can-move marks, quiet moves";
    heuristic h;
    EXPECT_TRUE(engineAnalysis(b, h) == want.analysis) << "analysis";
    EXPECT_EQ(engine->materialScore(nullptr), want.value);
    EXPECT_EQ(engine->materialScore(&h), want.valueWithPassages);
}

template <int N, bool White>
void compareBitMoves(MoveStack<BitMove<N>> &stack, const std::vector<plain::Move> &want,
                     const board &b) {
    using Squares = DarkSquares<N>;
    ASSERT_EQ(stack.size(), want.size());
    for (std::size_t i = 0; i < want.size(); ++i) {
        typename Squares::Bits taken = 0;
        for (const XY &p : want[i].taken)
            taken |= Squares::square(p.x, p.y);
        EXPECT_TRUE(Squares::squareOf(stack[i].from) == want[i].path.front() &&
                    Squares::squareOf(stack[i].to) == want[i].path.back() &&
                    stack[i].taken == taken)
            << "bit move " << i;
        board after = b;
        plain::play(after, want[i]);
        EXPECT_TRUE(BitPosition<N>(b).template after<White>(stack[i]) == BitPosition<N>(after))
            << "bits after move " << i;
    }
    stack.cut(0);
}

template <int N, const RuleTraits &Rules, bool White>
void compareBitGenerator(const board &b, const Findings &want) {
    BitMoveGenerator<N, Rules, White> generator{BitPosition<N>(b)};
    MoveStack<BitMove<N>> stack;
    const bool capture = !want.moves.empty() && !want.moves[0].taken.empty();
    EXPECT_EQ(generator.canCapture(), capture);
    if (capture) {
        generator.listCaptures(stack);
        compareBitMoves<N, White>(stack, want.moves, b);
    }
    EXPECT_TRUE(capture || generator.countQuiet() == static_cast<int>(want.quiet.size()));
    generator.listQuiet(stack);
    compareBitMoves<N, White>(stack, want.quiet, b);
}

template <int N, const RuleTraits &Rules>
void compareBits(const board &b, bool gambit, const Findings &want) {
    using Squares = DarkSquares<N>;
    EXPECT_TRUE(BitPosition<N>::representable(b));
    const BitPosition<N> p(b);
    for (board either = b; const bool white : {true, false}) {
        either.whiteToMove = white;
        EXPECT_EQ(either.HKey(), plain::key(either));
        EXPECT_EQ(p.key(white), plain::key(either));
    }
    board written(N);
    written.whiteToMove = b.whiteToMove;
    p.writeTo(written);
    EXPECT_EQ(picture(written), picture(b));
    if (b.whiteToMove)
        compareBitGenerator<N, Rules, true>(b, want);
    else
        compareBitGenerator<N, Rules, false>(b, want);

    const BitAnalysis<N> analysis(p, b.whiteToMove);
    const auto passing = [&](int man) {
        return Squares::select([&](int x, int y) {
            return want.analysis.passage[x][y] != 0 && b.squares[x][y] % 16 == man;
        });
    };
    EXPECT_EQ(analysis.whiteCanPass(), want.analysis.whitePasses);
    EXPECT_EQ(analysis.blackCanPass(), want.analysis.blackPasses);
    EXPECT_TRUE(analysis.whitePassageMen() == passing(whiteMan)) << "white's passages";
    EXPECT_TRUE(analysis.blackPassageMen() == passing(blackMan)) << "black's passages";
    EXPECT_EQ(analysis.freedom(), want.analysis.freedom);

    const BitMaterial<N, Rules.flyingKings> material(*AbstractEngine::pSQV, gambit);
    const int side = b.whiteToMove ? 1 : -1;
    EXPECT_EQ(side * material.balance(p, 0, 0), want.value);
    EXPECT_EQ(side * material.balance(p, passing(whiteMan), passing(blackMan)),
              want.valueWithPassages);
}

template <const RuleTraits &Rules>
constexpr void (*bySize[])(const board &, bool, const Findings &) = {
    compareBits<6, Rules>, compareBits<8, Rules>, compareBits<10, Rules>, compareBits<12, Rules>};

class Twin : public testing::Test {
protected:
    std::mt19937 random{2024};
    RuleSet rules = RuleSet::International;

    int below(std::size_t n) { return static_cast<int>(random() % n); }

    static int positions() {
        const char *wanted = std::getenv("TWIN_POSITIONS");
        return wanted == nullptr ? 10000 : std::atoi(wanted);
    }

    // Another rule set; the size of a board to play it on.
    int draw() {
        rules = allRuleSets[below(3)];
        return XY::B_SIZE = allBoardSizes[below(4)];
    }

    Findings compare(const board &b) {
        const bool gambit = below(2) == 0;
        SquaresValue table(b.size, gambit);
        AbstractEngine::setSQV(&table);
        AbstractEngine::isGambit = gambit;
        const Findings want(rules, b, gambit);
        compareEngine(rules, b, want);
        (rules == RuleSet::American ? bySize<americanRules>
         : rules == RuleSet::Polish ? bySize<polishRules>
                                    : bySize<internationalRules>)[b.size / 2 - 3](b, gambit, want);
        AbstractEngine::setSQV(nullptr);
        if (HasFailure())
            ADD_FAILURE() << "rules " << static_cast<int>(rules) << " gambit " << gambit << '\n'
                          << picture(b);
        return want;
    }
};

TEST_F(Twin, AgreesOnPositionsOfGames) {
    constexpr int longestGame = 120;
    for (int done = 0; done < positions() && !HasFailure();) {
        board b(draw());
        for (int ply = 0; ply < longestGame && !HasFailure(); ++ply, ++done) {
            const Findings found = compare(b);
            if (found.moves.empty())
                break;
            b = found.marked; // the marks stay for the next position
            plain::play(b, found.moves[random() % found.moves.size()]);
        }
    }
}

// Pieces anywhere on the dark squares, a varying share of them kings.
TEST_F(Twin, AgreesOnScatteredPositions) {
    for (int done = 0; done < positions() && !HasFailure(); ++done) {
        board b(draw());
        const int filled = 5 + below(40);
        const int kings = below(11);
        b.whiteToMove = below(2) == 0;
        for (int i = 0; i < b.size * b.size; ++i) {
            const int code = 4 + 4 * below(2) + (below(10) < kings ? 2 : 1);
            const bool set = (i / b.size + i % b.size) % 2 == 0 && below(100) < filled;
            b.squares[i / b.size][i % b.size] = static_cast<unsigned char>(set ? code : 0);
        }
        compare(b);
    }
}

} // namespace
