// Captures of great length. On 12 x 12 a man on (0,0) among pieces on all odd, odd squares can make
// at most 25 jumps: they are the edges of a graph whose only vertices of odd degree are (0,0) and
// (10,10), so every sequence ends on (10,10), and what one leaves over are closed circuits. The
// smallest has four jumps. With the piece on (9,9) gone the way ends on (8,8).

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
    const char *box;
} limited[] = {
    {RuleSet::International, whiteMan, "warning: IntEngine::genCapManMove: level too high [Ok]\n"},
    {RuleSet::Polish, whiteMan, "warning: IntEngine::genCapManMove: level too high [Ok]\n"},
    {RuleSet::American, whiteKing, "warning: AmEngine::genCapKingMove: level too high [Ok]\n"}};

TEST(CaptureLimit, ATwentyFifthJumpIsDroppedWithABoxAtTheEnd) {
    for (const auto &c : limited) {
        EngineRig rig(c.rules, lattice(c.piece));
        rig.host.onBox = [&] { EXPECT_EQ(longest(rig.engine->moveList), 21U) << "too early"; };
        rig.engine->FillMoveList();
        EXPECT_EQ(rig.host.boxes, c.box);
    }
}

TEST(CaptureLimit, TwentyFourJumpsAreAllowed) {
    for (const auto &c : limited) {
        EngineRig rig(c.rules, lattice(c.piece));
        rig.position.squares[9][9] = 0;
        rig.engine->FillMoveList();
        EXPECT_EQ(rig.host.boxes, "") << c.box;
        EXPECT_EQ(longest(rig.engine->moveList), 24U) << c.box;
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
    EXPECT_EQ(rig.host.boxes, "");
}

} // namespace
