// Rule positions: what each rule set lists, in order, and what playing a move leaves.

#include "tests/support/enginerig.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace {

// A position of positions.txt: its drawings and lists by what stands before the colon.
using Position = std::map<std::string, std::string>;

std::vector<Position> readPositions() {
    std::ifstream file(TEST_DATA "/positions.txt");
    EXPECT_TRUE(file.is_open());
    std::vector<Position> positions;
    std::string line, key;
    while (std::getline(file, line)) {
        const std::size_t colon = line.find(": ");
        if (line.empty() || line.starts_with('#'))
            continue;
        if (line.starts_with(' ')) {
            positions.back()[key] += line;
            continue;
        }
        key = line.substr(0, line.find(':'));
        if (key == "position")
            positions.emplace_back();
        positions.back()[key] = colon == std::string::npos ? "" : line.substr(colon + 2);
        if (key == "position")
            key = "drawing";
    }
    return positions;
}

TEST(Moves, RulePositions) {
    for (Position &p : readPositions()) {
        p.try_emplace("polish", p["international"]);
        for (const RuleRow &rules : ruleRows) {
            SCOPED_TRACE(p["position"] + ", " + rules.word);
            const std::string want = p[rules.word];
            EngineRig rig(rules.id, p["drawing"]);
            EXPECT_EQ(rig.engine->FillMoveList(), want == "-");
            EXPECT_EQ(moveText(rig.engine->moveList), want == "-" ? "" : want);
            EXPECT_EQ(rig.engine->isCapture(), want.find('x') != std::string::npos);
            EXPECT_EQ(rig.engine->getLegalMove(rig.engine->moveList.count()), nullptr);
        }
    }
}

TEST(Moves, WhatAMoveLeaves) {
    for (Position &p : readPositions()) {
        if (!p.contains("after"))
            continue;
        EngineRig rig(RuleSet::International, p["drawing"]);
        rig.position.hashScore = 7;
        rig.engine->FillMoveList();
        rig.engine->makeMove(&rig.position, rig.engine->getLegalMove(0));
        EXPECT_EQ(picture(rig.position), picture(drawn(p["after"]))) << p["position"];
        EXPECT_EQ(rig.position.plyCount, 1) << p["position"];
        EXPECT_EQ(rig.position.hashScore, 7) << p["position"];
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
        {"black, free", "b ...... ...... ...... ...... .....b ......", true},
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

TEST(Moves, ABlockedManLosesItsMark) {
    EngineRig rig(RuleSet::International, "w .b.... w..... ...... ...... ...... ......");
    rig.position.squares[0][4] |= codeCanMove;
    rig.engine->FillMoveList();
    EXPECT_EQ(rig.position.squares[0][4], whiteMan);
}

} // namespace
