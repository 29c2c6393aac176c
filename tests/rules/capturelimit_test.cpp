// Captures of great length. On 12 x 12 a man on (0,0) among pieces on all odd, odd squares can make
// at most 25 jumps: they are the edges of a graph whose only vertices of odd degree are (0,0) and
// (10,10), so every sequence ends on (10,10), and what one leaves over are closed circuits.

#include "rules/amengine.h"
#include "tests/support/enginerig.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Box = RecordingHost::Box;

board lattice(unsigned char piece) {
    board b(12);
    b.clear();
    b.squares[0][0] = piece;
    for (int x = 1; x < 10; x += 2) {
        for (int y = 1; y < 10; y += 2)
            b.squares[x][y] = blackMan;
    }
    return b;
}

struct Lengths {
    unsigned shortest = 99;
    unsigned longest = 0;
};

Lengths lengths(const QValueList<LegalMove> &list) {
    Lengths found;
    for (const LegalMove &m : list) {
        found.shortest = std::min(found.shortest, m.taken.size());
        found.longest = std::max(found.longest, m.taken.size());
    }
    return found;
}

TEST(CaptureLimit, TwentyFourJumpsAreListed) {
    EngineRig rig(Rules::International, lattice(whiteMan));
    rig.position.squares[9][9] = 0; // the way ends on (8,8)
    rig.engine->FillMoveList();
    EXPECT_EQ(lengths(rig.engine->moveList).shortest, 24U);
    EXPECT_EQ(lengths(rig.engine->moveList).longest, 24U);
    EXPECT_EQ(rig.engine->moveList.first().to(), XY(8, 8));
    EXPECT_TRUE(rig.host.boxes.empty());
}

// The smallest circuit to leave over has four jumps, so 21 is the next length.
TEST(CaptureLimit, TwentyFiveJumpsAreDroppedWithOneBoxAtTheEnd) {
    const struct {
        Rules rules;
        unsigned char piece;
        const char *title;
    } cases[] = {{Rules::International, whiteMan, "IntEngine::genCapManMove"},
                 {Rules::Polish, whiteMan, "IntEngine::genCapManMove"},
                 {Rules::American, whiteKing, "AmEngine::genCapKingMove"}};
    for (const auto &c : cases) {
        EngineRig rig(c.rules, lattice(c.piece));
        Lengths whenShown;
        rig.host.onBox = [&] { whenShown = lengths(rig.engine->moveList); };
        for (std::size_t listing = 1; listing <= 2; ++listing) {
            rig.engine->FillMoveList();
            EXPECT_EQ(rig.host.boxes,
                      std::vector<Box>(listing, Box{BoxKind::Warning, c.title, "level too high"}));
            const Lengths found = lengths(rig.engine->moveList);
            EXPECT_EQ(found.longest, 21U);
            EXPECT_EQ(found.shortest == 21U, c.rules == Rules::International);
            EXPECT_EQ(whenShown.shortest, found.shortest) << "shown before the list was complete";
        }
    }
}

TEST(CaptureLimit, OneBoxForAWholeSearch) {
    EngineRig rig(Rules::International, lattice(whiteMan));
    rig.statistic.setReqDepth(1);
    rig.search();
    EXPECT_EQ(rig.host.boxes.size(), 1U);
}

// A working record that has 25 jumps behind it already.
TEST(CaptureLimit, TheGeneratorsAtLevel26) {
    const std::string man = "w ...... ...... ...... ...... .b.... w.....";
    LegalMove working;
    working.insPath({0, 0}, 25);
    working.insTaken({3, 3}, 24);

    EngineRig american(Rules::American, man);
    american.engine->genCapManMove({0, 0}, &american.position, 26, &working);
    EXPECT_TRUE(american.engine->moveList.isEmpty());
    EXPECT_EQ(
        american.host.boxes,
        std::vector<Box>(1, Box{BoxKind::Warning, "AmEngine::genCapManMove", "level too high"}));

    EngineRig flying(Rules::International, "w ...... ...... ...... ...... .b.... W.....");
    EXPECT_TRUE(flying.engine->genCapKingMove({0, 0}, &flying.position, 26, &working));
    ASSERT_EQ(flying.engine->moveList.count(), 4) << "a flying king has no limit";
    EXPECT_EQ(flying.engine->moveList.first().path.size(), 27U);
    EXPECT_EQ(flying.engine->moveList.first().taken.size(), 26U);
    EXPECT_TRUE(flying.host.boxes.empty());
}

} // namespace
