// What the bit sets say of a position is what the engine says: moves, keys, analysis, evaluation.

#include "bits/bitanalysis.h"
#include "bits/bitkey.h"
#include "bits/bitmaterial.h"
#include "bits/bitmovegenerator.h"
#include "bits/dispatch.h"
#include "eval/heuristic.h"
#include "tests/properties/harness.h"
#include "tests/support/enginerig.h"

#include <sstream>

namespace {

std::string boardText(const board &b, unsigned key) {
    return picture(b) + std::to_string(key) + '\n';
}

std::string valuesText(bool canPass, int freedom, int value, int valueWithPassages) {
    std::ostringstream text;
    text << "a man can pass " << canPass << ", freedom " << freedom << ", value " << value
         << ", with passages " << valueWithPassages << '\n';
    return text.str();
}

std::string saidByEngine(EngineRig &rig) {
    AbstractEngine &engine = *rig.engine;
    std::string text = boardText(rig.position, rig.position.HKey());
    const auto tellMoves = [&](const QValueList<LegalMove> &moves) {
        text += std::to_string(moves.count()) + " moves\n";
        for (LegalMove m : moves) {
            board after(rig.position);
            engine.makeMove(&after, &m);
            text += moveText(LegalMove(m.path[0], m.path[m.path.size() - 1])) + '\n';
            text += boardText(after, after.HKey());
        }
    };
    engine.FillMoveList();
    tellMoves(engine.isCapture() ? engine.moveList : QValueList<LegalMove>());
    QValueList<LegalMove> quiet;
    engine.FillNotCapturingMoveList(&quiet, &rig.position);
    tellMoves(quiet);
    heuristic h;
    int freedom = 0;
    bool canPass = false;
    heuristic *passages = engine.doHeuristic(&h, freedom, canPass);
    return text + rig.host.takeBoxes() +
           valuesText(canPass, freedom, engine.materialScore(nullptr),
                      engine.materialScore(passages));
}

template <class Form, bool White>
std::string valuesOnBits(const BitPosition<Form::squares> &p) {
    const BitAnalysis<Form::squares> bits(p, White);
    const BitMaterial<Form::squares, Form::rules.flyingKings> material(*AbstractEngine::pSQV,
                                                                       AbstractEngine::isGambit);
    const int side = White ? 1 : -1;
    const typename BitPosition<Form::squares>::Set noMen{};
    const int withPassages = material.balance(p, bits.whitePassageMen(), bits.blackPassageMen());
    return valuesText(bits.canPass(), side * AbstractEngine::freedomValue * bits.freedom(),
                      side * material.balance(p, noMen, noMen), side * withPassages);
}

template <class Form, bool White>
std::string saidByBits(EngineRig &rig) {
    constexpr int N = Form::squares;
    const BitPosition<N> position(rig.position);
    std::string text;
    const auto tellBoard = [&](const BitPosition<N> &p, bool whiteToMove) {
        board written(N);
        written.whiteToMove = whiteToMove;
        p.writeTo(written);
        text += boardText(written, BitKey<N>::of(p, whiteToMove));
    };
    const auto tellMoves = [&](const MoveStack<BitMove<N>> &moves, std::size_t count) {
        text += std::to_string(count) + " moves\n";
        for (std::size_t i = 0; i < moves.size(); ++i) {
            text += moveText(LegalMove(DarkSquares<N>::squareOf(moves[i].from),
                                       DarkSquares<N>::squareOf(moves[i].to)));
            text += '\n';
            tellBoard(position.template after<White>(moves[i]), !White);
        }
    };
    tellBoard(position, White);
    BitMoveGenerator<N, Form::rules, White> generator(position);
    MoveStack<BitMove<N>> captures;
    auto report = std::make_unique<CaptureLimitScope>();
    ListingWatch unwatched;
    if (generator.canCapture())
        generator.listCaptures(captures, unwatched);
    report.reset();
    tellMoves(captures, captures.size());
    MoveStack<BitMove<N>> quiet;
    const int count = generator.countQuiet();
    generator.listQuiet(quiet, count);
    tellMoves(quiet, static_cast<std::size_t>(count));
    return text + rig.host.takeBoxes() + valuesOnBits<Form, White>(position);
}

void bitsSayWhatTheEngineSays(Bytes &bytes) {
    const bool gambit = bytes.below(2) == 1;
    const Situation situation = readSituation(bytes);
    EngineRig rig(situation.rules, situation.position);
    rig.values.reFill(situation.position.size, gambit);
    AbstractEngine::isGambit = gambit;
    dispatchBits(situation.rules, situation.position.size, [&](auto form) {
        using Form = decltype(form);
        const std::string onBits =
            rig.position.whiteToMove ? saidByBits<Form, true>(rig) : saidByBits<Form, false>(rig);
        wantSame(saidByEngine(rig), onBits, describe(situation));
    });
}

} // namespace

std::span<const Property> properties() {
    static constexpr Property all[] = {bitsSayWhatTheEngineSays};
    return all;
}
