#include "tests/support/twinagreement.h"

#include "bits/bitanalysis.h"
#include "bits/bitmaterial.h"
#include "bits/bitmovegenerator.h"
#include "eval/heuristic.h"
#include "search/abstractengine.h"
#include "search/thinkstatistic.h"
#include "tests/support/drawnboard.h"
#include "tests/support/plaintwin.h"

#include <cstring>
#include <memory>

namespace {

// All that the twin says of a position, and what was found to differ from it.
struct Findings {
    board marked; // by the listing of moves, and of the quiet ones alone
    board quietMarked;
    std::vector<plain::Move> moves;
    std::vector<plain::Move> quiet;
    plain::Analysis analysis;
    int value, valueWithPassages;
    std::string differences;

    Findings(RuleSet rules, const board &b, bool gambit)
        : marked(b), quietMarked(b), moves(plain::legalMoves(rules, marked)),
          quiet(plain::quietMoves(rules, quietMarked)), analysis(plain::analyse(b)),
          value(plain::value(rules, b, gambit, nullptr)),
          valueWithPassages(plain::value(rules, b, gambit, &analysis)) {}

    void want(bool agree, const std::string &what) {
        if (!agree)
            differences += what + '\n';
    }
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

void compareEngine(RuleSet rules, const board &b, Findings &twin) {
    thinkStatistic statistic;
    statistic.scoreNoise = 1;
    board marked = b;
    const std::unique_ptr<AbstractEngine> engine(newEngine(rules, &marked, 1, &statistic, b.size));
    twin.want(engine->FillMoveList() == twin.moves.empty(), "end of the game");
    twin.want(plainMoves(engine->moveList) == twin.moves, "moves " + moveText(engine->moveList));
    twin.want(sameSquares(marked, twin.marked), "can-move marks");
    twin.want(engine->aboutToPass() == plain::aboutToPass(twin.marked), "about to pass");
    for (int i = 0; i < engine->moveList.count() && twin.differences.empty(); ++i) {
        board after = marked;
        board wanted = twin.marked;
        engine->makeMove(&after, &engine->moveList[i]);
        plain::play(wanted, twin.moves[static_cast<std::size_t>(i)]);
        twin.want(after.whiteToMove == wanted.whiteToMove && after.plyCount == wanted.plyCount &&
                      sameSquares(after, wanted),
                  "after " + moveText(engine->moveList[i]));
    }
    board quietMarked = b;
    QValueList<LegalMove> quiet;
    const bool canMove = engine->FillNotCapturingMoveList(&quiet, &quietMarked);
    twin.want(canMove == !twin.quiet.empty(), "end of quiet moves");
    twin.want(plainMoves(quiet) == twin.quiet, "quiet moves " + moveText(quiet));
    twin.want(sameSquares(quietMarked, twin.quietMarked), "can-move marks, quiet moves");
    heuristic h;
    twin.want(engineAnalysis(b, h) == twin.analysis, "analysis");
    twin.want(engine->materialScore(nullptr) == twin.value, "value");
    twin.want(engine->materialScore(&h) == twin.valueWithPassages, "value with passages");
}

template <int N, bool White>
void compareBitMoves(MoveStack<BitMove<N>> &stack, const std::vector<plain::Move> &moves,
                     const board &b, Findings &twin) {
    using Squares = DarkSquares<N>;
    twin.want(stack.size() == moves.size(), "number of bit moves");
    for (std::size_t i = 0; i < moves.size() && twin.differences.empty(); ++i) {
        typename Squares::Bits taken = 0;
        for (const XY &p : moves[i].taken)
            taken |= Squares::square(p.x, p.y);
        twin.want(Squares::squareOf(stack[i].from) == moves[i].path.front() &&
                      Squares::squareOf(stack[i].to) == moves[i].path.back() &&
                      stack[i].taken == taken,
                  "bit move " + std::to_string(i));
        board after = b;
        plain::play(after, moves[i]);
        twin.want(BitPosition<N>(b).template after<White>(stack[i]) == BitPosition<N>(after),
                  "bits after move " + std::to_string(i));
    }
    stack.cut(0);
}

template <int N, const RuleTraits &Rules, bool White>
void compareBitGenerator(const board &b, Findings &twin) {
    const CaptureLimitScope report;
    BitMoveGenerator<N, Rules, White> generator{BitPosition<N>(b)};
    MoveStack<BitMove<N>> stack;
    const bool capture = generator.canCapture();
    if (capture)
        generator.listCaptures(stack);
    // Sequences beyond the limit are dropped, possibly all of them.
    const bool captures = stack.size() > 0;
    twin.want(captures == (!twin.moves.empty() && !twin.moves[0].taken.empty()), "bit captures");
    if (captures)
        compareBitMoves<N, White>(stack, twin.moves, b, twin);
    twin.want(capture || generator.countQuiet() == static_cast<int>(twin.quiet.size()),
              "count of quiet bit moves");
    generator.listQuiet(stack);
    compareBitMoves<N, White>(stack, twin.quiet, b, twin);
}

template <int N>
void compareKeys(const BitPosition<N> &p, const board &b, Findings &twin) {
    for (board either = b; const bool white : {true, false}) {
        either.whiteToMove = white;
        twin.want(either.HKey() == plain::key(either), "key");
        twin.want(p.key(white) == plain::key(either), "bit key");
    }
    board written(N);
    written.whiteToMove = b.whiteToMove;
    p.writeTo(written);
    twin.want(picture(written) == picture(b), "written as\n" + picture(written));
}

template <int N, const RuleTraits &Rules>
void compareBits(const board &b, bool gambit, Findings &twin) {
    using Squares = DarkSquares<N>;
    twin.want(BitPosition<N>::representable(b), "representable");
    const BitPosition<N> p(b);
    compareKeys(p, b, twin);
    if (b.whiteToMove)
        compareBitGenerator<N, Rules, true>(b, twin);
    else
        compareBitGenerator<N, Rules, false>(b, twin);

    const BitAnalysis<N> analysis(p, b.whiteToMove);
    const auto passing = [&](int man) {
        return Squares::select([&](int x, int y) {
            return twin.analysis.passage[x][y] != 0 && b.squares[x][y] % 16 == man;
        });
    };
    twin.want(analysis.whiteCanPass() == twin.analysis.whitePasses, "white passes");
    twin.want(analysis.blackCanPass() == twin.analysis.blackPasses, "black passes");
    twin.want(analysis.whitePassageMen() == passing(whiteMan), "white's passages");
    twin.want(analysis.blackPassageMen() == passing(blackMan), "black's passages");
    twin.want(analysis.freedom() == twin.analysis.freedom, "freedom");

    const BitMaterial<N, Rules.flyingKings> material(*AbstractEngine::pSQV, gambit);
    const int side = b.whiteToMove ? 1 : -1;
    twin.want(side * material.balance(p, 0, 0) == twin.value, "bit value");
    twin.want(side * material.balance(p, passing(whiteMan), passing(blackMan)) ==
                  twin.valueWithPassages,
              "bit value with passages");
}

template <const RuleTraits &Rules>
constexpr void (*bySize[])(const board &, bool, Findings &) = {
    compareBits<6, Rules>, compareBits<8, Rules>, compareBits<10, Rules>, compareBits<12, Rules>};

} // namespace

std::string twinDifferences(RuleSet rules, const board &b, bool gambit) {
    SquaresValue table(b.size, gambit);
    AbstractEngine::setSQV(&table);
    AbstractEngine::isGambit = gambit;
    Findings twin(rules, b, gambit);
    compareEngine(rules, b, twin);
    (rules == RuleSet::American ? bySize<americanRules>
     : rules == RuleSet::Polish ? bySize<polishRules>
                                : bySize<internationalRules>)[b.size / 2 - 3](b, gambit, twin);
    AbstractEngine::setSQV(nullptr);
    return twin.differences;
}
