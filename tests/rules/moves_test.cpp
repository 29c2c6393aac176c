// Rule positions: what each rule set lists, in order, and what playing a move leaves.

#include "tests/support/enginerig.h"

#include <gtest/gtest.h>

namespace {

// Expected lists in order; an empty one: the side to move has lost. The Polish list is the
// international one where it is not given. `after`: what the first international move leaves.
const struct {
    const char *name, *picture, *international, *american;
    const char *polish = nullptr, *after = nullptr;
} positions[] = {
    {"men capture backwards, American ones do not", "w ...... ...... ...... ..w... .b.... ......",
     "(2,2)x(0,0)", "(2,2)-(1,3) (2,2)-(3,3)"},
    {"the longest capture, or a free choice",
     "w ........ ........ ........ ....b... ........ ..b...B. .w...w.. ........",
     "(1,1)x(3,3)x(5,5)", "(1,1)x(3,3)x(5,5) (5,1)x(7,3)", "(1,1)x(3,3)x(5,5) (5,1)x(7,3)"},
    {"equally long captures, by direction",
     "b ........ ........ ...w.W.. ....b... ...w.w.. ........ ........ ........",
     "(4,4)x(6,6) (4,4)x(6,2) (4,4)x(2,2) (4,4)x(2,6)", "(4,4)x(6,2) (4,4)x(2,2)"},
    {"flying and short kings", "w ...... ...... ...... ..W... ...... ......",
     "(2,2)-(3,3) (2,2)-(4,4) (2,2)-(5,5) (2,2)-(3,1) (2,2)-(4,0) (2,2)-(1,1) (2,2)-(0,0) "
     "(2,2)-(1,3) (2,2)-(0,4)",
     "(2,2)-(3,3) (2,2)-(3,1) (2,2)-(1,1) (2,2)-(1,3)"},
    {"a flying king stops anywhere behind a distant piece",
     "w ........ ........ ........ ....b... ........ ........ .W...... ........",
     "(1,1)x(5,5) (1,1)x(6,6) (1,1)x(7,7)", "(1,1)-(2,2) (1,1)-(2,0) (1,1)-(0,0) (1,1)-(0,2)"},
    {"but only where the capture goes on, if it does somewhere",
     "w ........ ........ ........ ......b. ...b.... ........ ........ W.......",
     "(0,0)x(5,5)x(7,3)", "(0,0)-(1,1)"},
    {"no jump over edge pieces, pairs or own pieces",
     "w ........ b.....b. .....b.. ........ ...W.... ........ .w...... ......b.",
     "(1,1)-(0,2) (1,1)-(2,2) (3,3)-(4,4) (3,3)-(4,2) (3,3)-(5,1) (3,3)-(2,2) (3,3)-(2,4) "
     "(3,3)-(1,5)",
     "(1,1)-(0,2) (1,1)-(2,2) (3,3)-(4,4) (3,3)-(4,2) (3,3)-(2,2) (3,3)-(2,4)"},
    {"a jumped piece blocks the way to (1,3)",
     "w ........ ........ ........ ........ .b...b.. ..b..... .....b.. W.......",
     "(0,0)x(4,4)x(6,2)x(4,0)", "(0,0)-(1,1)", "(0,0)x(3,3)x(6,0) (0,0)x(4,4)x(6,2)x(4,0)"},
    {"around in a circle, no piece twice",
     "w ........ ........ ........ ..b.b... ........ ..b.b... ...w.... ........",
     "(3,1)x(5,3)x(3,5)x(1,3)x(3,1) (3,1)x(1,3)x(3,5)x(5,3)x(3,1)",
     "(3,1)x(5,3)x(3,5) (3,1)x(1,3)x(3,5)", nullptr,
     "b ........ ........ ........ ........ ........ ........ ...w.... ........"},
    {"a crown where the move ends", "w .b.... ..w... ...... ...... ...... ......", "(2,4)-(3,5)",
     "(2,4)-(3,5)", nullptr, "b .b.W.. ...... ...... ...... ...... ......"},
    {"over the promotion row and on", "w ...... ..b.b. .w.... ...... ...... ......",
     "(1,3)x(3,5)x(5,3)", "(1,3)x(3,5)", nullptr, "b ...... ...... .....w ...... ...... ......"},
    {"the same for black", "b ...... ...... ...... ....b. .w.w.. ......", "(4,2)x(2,0)x(0,2)",
     "(4,2)x(2,0)"},
    {"blocked but for a capture backwards", "w ...... ..b... .b.... w..... .b.... ......",
     "(0,2)x(2,0)", ""},
    {"blocked, black", "b ...... ...... .....b ....w. ...w.. ......", "", ""},
    {"no piece left", "w .b.... ...... ...... ...... ...... ......", "", ""},
};

TEST(Moves, RulePositions) {
    for (const auto &p : positions) {
        const char *const polish = p.polish != nullptr ? p.polish : p.international;
        const struct {
            RuleSet rules;
            const char *engine;
            std::string want;
        } expected[] = {{RuleSet::International, "IntEngine", p.international},
                        {RuleSet::American, "AmEngine", p.american},
                        {RuleSet::Polish, "PolEngine", polish}};
        for (const auto &[rules, engine, want] : expected) {
            EngineRig rig(rules, p.picture);
            EXPECT_STREQ(rig.engine->className(), engine);
            EXPECT_EQ(rig.engine->FillMoveList(), want.empty()) << p.name;
            EXPECT_EQ(moveText(rig.engine->moveList), want) << p.name << ", " << engine;
            EXPECT_EQ(rig.engine->isCapture(), want.find('x') != std::string::npos) << p.name;
            EXPECT_EQ(rig.engine->getLegalMove(rig.engine->moveList.count()), nullptr);
        }
    }
}

TEST(Moves, WhatAMoveLeaves) {
    for (const auto &p : positions) {
        if (p.after == nullptr)
            continue;
        EngineRig rig(RuleSet::International, p.picture);
        rig.position.hashScore = 7;
        rig.engine->FillMoveList();
        rig.engine->makeMove(&rig.position, rig.engine->getLegalMove(0));
        EXPECT_EQ(picture(rig.position), picture(drawn(p.after))) << p.name;
        EXPECT_EQ(rig.position.plyCount, 1) << p.name;
        EXPECT_EQ(rig.position.hashScore, 7) << p.name;
    }
}

// The man on (1,1) could capture, the one on (3,1) is blocked, the king has nothing to mark.
TEST(Moves, QuietMovesAloneAndTheMarksTheyLeave) {
    for (const RuleRow &rules : ruleRows) {
        EngineRig rig(rules.id, "w ...... ...... ...... b.b.b. .w.w.W ......");
        rig.position.squares[3][1] |= codeCanMove;
        rig.position.squares[0][2] |= codeCanMove;
        QValueList<LegalMove> list;
        list.append(LegalMove({9, 9}, {8, 8}));
        EXPECT_TRUE(rig.engine->FillNotCapturingMoveList(&list, &rig.position));
        EXPECT_EQ(moveText(list), "(5,1)-(4,0)");
        EXPECT_EQ(rig.position.squares[3][1], whiteMan) << "cannot move";
        rig.position.squares[2][2] = 0;
        rig.engine->FillNotCapturingMoveList(&list, &rig.position);
        EXPECT_EQ(moveText(list), "(1,1)-(2,2) (3,1)-(2,2) (5,1)-(4,0)");
        EXPECT_EQ(rig.position.squares[1][1], whiteMan | codeCanMove);
        EXPECT_EQ(rig.position.squares[5][1], whiteKing);
    }
}

// As the last listing for the side to move has marked them.
TEST(Moves, MenAboutToPass) {
    const struct {
        const char *name, *picture;
        bool aboutToPass;
    } cases[] = {
        {"white, free", "w ...... w..... ...... ...... ...... ......", true},
        {"white, blocked", "w .b.... w..... ...... ...... ...... ......", false},
        {"white, two rows to go", "w ...... ...... .w.... ...... ...... ......", false},
        {"black, free", "b ...... ...... ...... ...... .....b ......", true},
        {"black, blocked", "b ...... ...... ...... ...... .....b ....w.", false},
        {"white on black's last row but one", "w ...... ...... ...... ...... .w.... ......", false},
    };
    for (const auto &c : cases) {
        EngineRig rig(RuleSet::International, c.picture);
        EXPECT_FALSE(rig.engine->aboutToPass()) << c.name << ", before any listing";
        rig.engine->FillMoveList();
        EXPECT_EQ(rig.engine->aboutToPass(), c.aboutToPass) << c.name;
        rig.position.whiteToMove = !rig.position.whiteToMove;
        EXPECT_EQ(rig.engine->aboutToPass(), c.aboutToPass) << c.name << ", the other to move";
    }
}

} // namespace
