// Captures of great length. On 12 x 12 a man on (0,0) among pieces on all odd, odd squares can make
// at most 25 jumps: they are the edges of a graph whose only vertices of odd degree are (0,0) and
// (10,10), so every sequence ends on (10,10), and what one leaves over are closed circuits. The
// smallest has four jumps. With the piece on (9,9) gone the way ends on (8,8).

#include "bits/bitmovegenerator.h"
#include "rules/amengine.h"
#include "tests/support/enginerig.h"

#include <gtest/gtest.h>

namespace {

board lattice(unsigned char piece) {
    board b(12);
    b.clear();
    b.squares[0][0] = piece;
    for (int i = 0; i < 25; ++i)
        b.squares[1 + i / 5 * 2][1 + i % 5 * 2] = blackMan;
    return b;
}

unsigned longest(const QValueList<LegalMove> &list) {
    unsigned most = 0;
    for (const LegalMove &m : list)
        most = std::max(most, m.taken.size());
    return most;
}

const struct {
    RuleSet rules;
    unsigned char piece;
    const char *title;
} limited[] = {{RuleSet::International, whiteMan, "IntEngine::genCapManMove"},
               {RuleSet::Polish, whiteMan, "IntEngine::genCapManMove"},
               {RuleSet::American, whiteKing, "AmEngine::genCapKingMove"}};

TEST(CaptureLimit, TwentyFiveJumpsAreDroppedWithOneBoxAtTheEnd) {
    for (const auto &c : limited) {
        EngineRig rig(c.rules, lattice(c.piece));
        const RecordingHost::Box box{BoxKind::Warning, c.title, "level too high"};
        rig.host.onBox = [&] { EXPECT_EQ(longest(rig.engine->moveList), 21U) << "too early"; };
        rig.engine->FillMoveList();
        EXPECT_EQ(rig.host.boxes, std::vector(1, box)) << c.title;
        rig.engine->FillMoveList();
        EXPECT_EQ(rig.host.boxes, std::vector(2, box)) << c.title;
    }
}

TEST(CaptureLimit, TwentyFourJumpsAreAllowed) {
    for (const auto &c : limited) {
        EngineRig rig(c.rules, lattice(c.piece));
        rig.position.squares[9][9] = 0;
        rig.engine->FillMoveList();
        EXPECT_TRUE(rig.host.boxes.empty());
        EXPECT_EQ(longest(rig.engine->moveList), 24U);
        EXPECT_EQ(rig.engine->moveList.first().to(), XY(8, 8));
    }
}

TEST(CaptureLimit, AWholeSearchShowsOneBox) {
    EngineRig rig(RuleSet::International, lattice(whiteMan));
    rig.statistic.setReqDepth(1);
    rig.search();
    EXPECT_EQ(rig.host.boxes.size(), 1U);
}

template <const RuleTraits &Rules>
std::size_t listedOnBits(const board &b, ListingWatch &watch) {
    BitMoveGenerator<12, Rules, true> generator{BitPosition<12>(b)};
    MoveStack<BitMove<12>> stack;
    generator.canCapture();
    generator.listCaptures(stack, watch);
    const std::size_t moves = stack.size();
    stack.cut(0);
    return moves;
}

// The whole listings have thousands of moves; a flying king's would take minutes.
TEST(ListingWatch, AListingThatIsGivenUpEndsAtTheNextJump) {
    const struct {
        RuleSet rules;
        unsigned char piece;
        std::size_t (*onBits)(const board &, ListingWatch &);
    } cases[] = {{RuleSet::Polish, whiteMan, listedOnBits<polishRules>},
                 {RuleSet::American, whiteKing, listedOnBits<americanRules>},
                 {RuleSet::Polish, whiteKing, listedOnBits<polishRules>}};
    for (const auto &c : cases) {
        EngineRig rig(c.rules, lattice(c.piece));
        const CaptureLimitScope quiet;
        int questions = 0;
        ListingWatch watch([&] { return ++questions % 2 != 0; });
        rig.engine->listMoves(watch);
        EXPECT_EQ(questions, 2) << "asked once more after \"go on\"";
        EXPECT_TRUE(watch.isGivenUp());
        EXPECT_LT(rig.engine->moveList.count(), 8002);
        EXPECT_LT(c.onBits(rig.position, watch), 100U) << "given up for good";
        EXPECT_EQ(questions, 2);
    }
}

// A working record that has 25 jumps behind it already.
TEST(CaptureLimit, FlyingKingsHaveNone) {
    LegalMove working;
    working.insPath({0, 0}, 25);
    working.insTaken({3, 3}, 24);
    EngineRig rig(RuleSet::International, "w ...... ...... ...... ...... .b.... W.....");
    auto &engine = dynamic_cast<IntEngine &>(*rig.engine);
    EXPECT_TRUE(engine.genCapKingMove({0, 0}, &rig.position, 26, &working));
    ASSERT_EQ(engine.moveList.count(), 4);
    EXPECT_EQ(engine.moveList.first().taken.size(), 26U);
    EXPECT_TRUE(rig.host.boxes.empty());
}

} // namespace
