// What the bit sets say of a position is what the engine says: moves, keys, analysis, evaluation.

#include "bits/bitanalysis.h"
#include "bits/bitmaterial.h"
#include "bits/bitmovegenerator.h"
#include "bits/dispatch.h"
#include "eval/heuristic.h"
#include "tests/properties/harness.h"
#include "tests/properties/situation.h"
#include "tests/support/enginerig.h"

#include <algorithm>

namespace {

template <int N, const RuleTraits &Rules, bool White>
class Comparison {
    using Squares = DarkSquares<N>;

public:
    Comparison(EngineRig &rig, const std::string &where)
        : engine_(*rig.engine), host_(rig.host), position_(rig.position), where_(where) {}

    void run() {
        compareBoards(*engine_.board, position_, White, "the position");
        compareCaptures();
        QValueList<LegalMove> quiet;
        engine_.FillNotCapturingMoveList(&quiet, engine_.board);
        MoveStack<BitMove<N>> stack;
        generator_.listQuiet(stack);
        compare("number of quiet moves", quiet.count(), generator_.countQuiet());
        compareMoves(quiet, stack);
        compareValues();
    }

private:
    void compare(const std::string &what, long long byEngine, long long onBits) const {
        wantSame(what + ' ' + std::to_string(byEngine), what + ' ' + std::to_string(onBits),
                 where_);
    }

    void compareBoards(const board &byEngine, const BitPosition<N> &onBits, bool whiteToMove,
                       const std::string &what) const {
        board written(N);
        written.whiteToMove = whiteToMove;
        onBits.writeTo(written);
        wantSame(picture(byEngine), picture(written), what + ", " + where_);
        compare("key of " + what, byEngine.HKey(), onBits.key(whiteToMove));
    }

    void compareMoves(const QValueList<LegalMove> &list, const MoveStack<BitMove<N>> &stack) const {
        compare("number of moves", list.count(), static_cast<int>(stack.size()));
        std::size_t i = 0;
        for (LegalMove m : list) {
            const BitMove<N> &bits = stack[i++];
            wantSame(moveText(LegalMove(m.path[0], m.path[m.path.size() - 1])),
                     moveText(LegalMove(Squares::squareOf(bits.from), Squares::squareOf(bits.to))),
                     where_);
            board after(engine_.board);
            engine_.makeMove(&after, &m);
            compareBoards(after, position_.template after<White>(bits), !White, moveText(m));
        }
    }

    void compareCaptures() {
        engine_.FillMoveList();
        const auto boxes = std::exchange(host_.boxes, {});
        MoveStack<BitMove<N>> stack;
        {
            const CaptureLimitScope report;
            if (generator_.canCapture())
                generator_.listCaptures(stack);
        }
        if (boxes != host_.boxes)
            reportFault("different boxes", where_);
        if (engine_.isCapture() || stack.size() > 0)
            compareMoves(engine_.moveList, stack);
    }

    void compareValues() {
        heuristic h;
        int freedom = 0;
        bool canPass = false;
        heuristic *passages = engine_.doHeuristic(&h, freedom, canPass);
        const BitAnalysis<N> bits(position_, White);
        const auto white = bits.whiteCanPass() ? bits.whitePassageMen() : 0;
        const auto black = bits.blackCanPass() ? bits.blackPassageMen() : 0;
        const int side = White ? 1 : -1;
        compare("a man can pass", canPass, bits.canPass());
        compare("freedom", freedom, side * AbstractEngine::freedomValue * bits.freedom());
        const BitMaterial<N, Rules.flyingKings> material(*AbstractEngine::pSQV,
                                                         AbstractEngine::isGambit);
        compare("value", engine_.materialScore(nullptr), side * material.balance(position_, 0, 0));
        compare("value with passages", engine_.materialScore(passages),
                side * material.balance(position_, white, black));
    }

    AbstractEngine &engine_;
    RecordingHost &host_;
    const BitPosition<N> position_;
    BitMoveGenerator<N, Rules, White> generator_{position_};
    const std::string &where_;
};

template <int N, const RuleTraits &Rules>
void compare(EngineRig &rig, const std::string &where) {
    if (rig.position.whiteToMove)
        Comparison<N, Rules, true>(rig, where).run();
    else
        Comparison<N, Rules, false>(rig, where).run();
}

void bitsSayWhatTheEngineSays(Bytes &bytes) {
    const bool gambit = bytes.below(2) == 1;
    const Situation situation = readSituation(bytes);
    EngineRig rig(situation.rules, situation.position);
    rig.values.reFill(situation.position.size, gambit);
    AbstractEngine::isGambit = gambit;
    dispatchBits(situation.rules, situation.position.size,
                 [&](auto form) { compare<form.squares, form.rules>(rig, describe(situation)); });
}

} // namespace

std::span<const Property> properties() {
    static constexpr Property all[] = {bitsSayWhatTheEngineSays};
    return all;
}
