// Minutes of computer against computer: no warning, sprites always right, memory flat.

#include "tests/app/gamerig.h"

#include <QFile>

namespace {

// Resident memory in kilobytes.
long residentKb() {
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLong() * 4;
}

} // namespace

class SoakTest : public GameTest, public testing::WithParamInterface<std::tuple<int, int>> {};

TEST_P(SoakTest, HundredsOfPliesLeaveOnlyTheHistoryBehind) {
    constexpr int plies = 6000;
    const auto [rules, size] = GetParam();
    game.setRules(rules);
    game.setBSize(size);
    long settled = 0;
    for (int ply = 0, inGame = 0; ply < plies; ++ply, ++inGame) {
        if (!game.flying()) {
            const std::string ended = boxes();
            ASSERT_TRUE(ended.empty() || ended == "Game Over: Game Over; ") << ended;
            host.fixedSeed += 1;
            game.pHist->clear();
            game.pSettings->cmbPlayers->setCurrentIndex(computers);
            game.newGame();
        }
        game.setLevel(ply % 2);
        land();
        expectAgreement();
        if (ply == plies / 2)
            settled = residentKb();
    }
    boxes();
    const long grown = residentKb() - settled;
    EXPECT_LT(grown, 4096) << "kilobytes in the second half";
}

INSTANTIATE_TEST_SUITE_P(All, SoakTest,
                         testing::Combine(testing::Range(0, 3), testing::Range(0, 4)));
