// What the bit sets say of a position is what the engine says: moves, keys, analysis, evaluation.

#include "bits/bitanalysis.h"
#include "bits/bitmaterial.h"
#include "bits/bitmovegenerator.h"
#include "eval/heuristic.h"
#include "tests/properties/harness.h"
#include "tests/properties/situation.h"
#include "tests/support/enginerig.h"

namespace {

// What one way of playing says, in words.
struct Account {
    std::string position, captures, quiet, boxes, values;
};

std::string boxesOf(RecordingHost &host) {
    std::string text;
    for (const RecordingHost::Box &box : host.boxes)
        text += box.title.toStdString() + ": " + box.text.toStdString() + '\n';
    host.boxes.clear();
    return text;
}

// A move, the number of pieces it takes, the position after it and that one's key.
std::string moveLine(const XY &from, const XY &to, int taken, const board &after, unsigned key) {
    return moveText(LegalMove(from, to)) + " takes " + std::to_string(taken) + ", key " +
           std::to_string(key) + '\n' + picture(after);
}

std::string engineMoves(QValueList<LegalMove> &list, AbstractEngine &engine) {
    std::string text;
    for (LegalMove &m : list) {
        board after(engine.board);
        engine.makeMove(&after, &m);
        text += moveLine(m.from(), m.to(), static_cast<int>(m.taken.size()), after, after.HKey());
    }
    return text;
}

std::string number(const char *name, int value) {
    return std::string(name) + ' ' + std::to_string(value) + '\n';
}

// Pieces of this code on squares of passages.
std::string passing(const board &b, unsigned char man, auto isPassage) {
    std::string text;
    for (int x = 0; x < b.size; ++x) {
        for (int y = x % 2; y < b.size; y += 2) {
            if ((b.squares[x][y] & codePiece) == man && isPassage(x, y))
                text += LegalMove::XYtoString({x, y}).toStdString();
        }
    }
    return text + " may pass\n";
}

std::string engineValues(AbstractEngine &engine) {
    const board &b = *engine.board;
    heuristic analysis;
    int freedom = 0;
    bool canPass = false;
    heuristic *passages = engine.doHeuristic(&analysis, freedom, canPass);
    const auto isPassage = [&](int x, int y) { return analysis.getPassage(x, y) != 0; };
    return number("can pass", canPass) + number("freedom", freedom) +
           passing(b, whiteMan, isPassage) + passing(b, blackMan, isPassage) +
           number("value", engine.materialScore(nullptr)) +
           number("with passages", engine.materialScore(passages));
}

Account engineAccount(EngineRig &rig) {
    Account account;
    AbstractEngine &engine = *rig.engine;
    account.position = picture(rig.position) + std::to_string(rig.position.HKey());
    engine.FillMoveList();
    account.boxes = boxesOf(rig.host);
    if (engine.isCapture())
        account.captures = engineMoves(engine.moveList, engine);
    QValueList<LegalMove> quiet;
    engine.FillNotCapturingMoveList(&quiet, &rig.position);
    account.quiet = number("moves", quiet.count()) + engineMoves(quiet, engine);
    account.values = engineValues(engine);
    return account;
}

template <int N, const RuleTraits &Rules, bool White>
class BitAccount {
    using Squares = DarkSquares<N>;

public:
    explicit BitAccount(const board &b) : position_(b) {}

    Account give(EngineRig &rig) {
        Account account;
        board written(N);
        position_.writeTo(written);
        written.whiteToMove = White;
        account.position = picture(written) + std::to_string(position_.key(White));
        MoveStack<BitMove<N>> stack;
        BitMoveGenerator<N, Rules, White> generator(position_);
        {
            const CaptureLimitScope report;
            if (generator.canCapture())
                generator.listCaptures(stack);
        }
        account.boxes = boxesOf(rig.host);
        account.captures = moves(stack);
        stack.cut(0);
        generator.listQuiet(stack);
        account.quiet = number("moves", generator.countQuiet()) + moves(stack);
        account.values = values();
        return account;
    }

private:
    std::string moves(const MoveStack<BitMove<N>> &stack) const {
        std::string text;
        for (std::size_t i = 0; i < stack.size(); ++i) {
            const BitPosition<N> next = position_.template after<White>(stack[i]);
            board after(N);
            next.writeTo(after);
            after.whiteToMove = !White;
            text += moveLine(Squares::squareOf(stack[i].from), Squares::squareOf(stack[i].to),
                             countBits(stack[i].taken), after, next.key(!White));
        }
        return text;
    }

    std::string values() const {
        const BitAnalysis<N> analysis(position_, White);
        board b(N);
        position_.writeTo(b);
        const auto white = analysis.whiteCanPass() ? analysis.whitePassageMen() : 0;
        const auto black = analysis.blackCanPass() ? analysis.blackPassageMen() : 0;
        const auto isIn = [](auto set) {
            return [set](int x, int y) { return (set & Squares::square(x, y)) != 0; };
        };
        const BitMaterial<N, Rules.flyingKings> material(*AbstractEngine::pSQV,
                                                         AbstractEngine::isGambit);
        const int side = White ? 1 : -1;
        return number("can pass", analysis.canPass()) +
               number("freedom", side * AbstractEngine::freedomValue * analysis.freedom()) +
               passing(b, whiteMan, isIn(white)) + passing(b, blackMan, isIn(black)) +
               number("value", side * material.balance(position_, 0, 0)) +
               number("with passages", side * material.balance(position_, white, black));
    }

    const BitPosition<N> position_;
};

template <int N, const RuleTraits &Rules>
Account accountOf(EngineRig &rig) {
    const board &b = rig.position;
    return b.whiteToMove ? BitAccount<N, Rules, true>(b).give(rig)
                         : BitAccount<N, Rules, false>(b).give(rig);
}

template <int N>
Account accountOf(RuleSet rules, EngineRig &rig) {
    return rules == RuleSet::International ? accountOf<N, internationalRules>(rig)
           : rules == RuleSet::American    ? accountOf<N, americanRules>(rig)
                                           : accountOf<N, polishRules>(rig);
}

Account bitAccount(RuleSet rules, EngineRig &rig) {
    const int size = rig.position.size;
    return size == 6    ? accountOf<6>(rules, rig)
           : size == 8  ? accountOf<8>(rules, rig)
           : size == 10 ? accountOf<10>(rules, rig)
                        : accountOf<12>(rules, rig);
}

void bitsSayWhatTheEngineSays(Bytes &bytes) {
    const bool gambit = bytes.below(2) == 1;
    const Situation situation = readSituation(bytes);
    EngineRig rig(situation.rules, situation.position);
    rig.values.reFill(situation.position.size, gambit);
    AbstractEngine::isGambit = gambit;
    const Account onBits = bitAccount(situation.rules, rig);
    const Account byEngine = engineAccount(rig);
    const std::string where = describe(situation);
    wantSame(byEngine.position, onBits.position, where);
    wantSame(byEngine.boxes, onBits.boxes, where);
    wantSame(byEngine.captures, onBits.captures, where);
    wantSame(byEngine.quiet, onBits.quiet, where);
    wantSame(byEngine.values, onBits.values, where);
}

} // namespace

std::span<const Property> properties() {
    static constexpr Property all[] = {{"bits", bitsSayWhatTheEngineSays}};
    return all;
}
