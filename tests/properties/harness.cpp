#include "tests/properties/harness.h"

#include "rules/boardsizes.h"
#include "rules/legalmove.h"

#include <cstdio>
#include <cstdlib>

namespace {

// What a byte's low bits put on a square.
constexpr unsigned char pieces[] = {0,         whiteMan, blackMan, whiteKing,
                                    blackKing, whiteMan, blackMan, 0};

// Flying kings capture by so many routes where many pieces stand about that nobody lists them.
constexpr int mostAmongKings = 18;

void playGame(Bytes &bytes, RuleSet rules, board &b) {
    const auto engine = newEngine(rules, &b, 1, nullptr, b.size);
    while (!bytes.empty() && !engine->FillMoveList())
        engine->makeMove(&b, engine->getLegalMove(bytes.below(engine->moveList.count())));
}

// Each byte leaves up to seven dark squares free and puts a piece on the next, marked or not.
void scatter(Bytes &bytes, board &b) {
    b.clear();
    int placed = 0;
    bool kings = false;
    const int rowsUp = b.size / 2;
    for (int at = 0; !bytes.empty(); ++at) {
        const int byte = bytes.take();
        at += byte / 8 % 8;
        const unsigned char piece = pieces[byte % 8];
        kings = kings || (piece & codeKing) != 0;
        if (at >= b.size * rowsUp || (kings && placed >= mostAmongKings))
            break;
        const int x = at / rowsUp;
        const int mark = piece != 0 && byte >= 128 ? codeCanMove : 0;
        b.squares[x][2 * (at % rowsUp) + x % 2] = static_cast<unsigned char>(piece | mark);
        placed += piece != 0;
    }
}

} // namespace

// The name is the fuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Bytes bytes(data, size);
    bytes.oneOf(properties())(bytes);
    return 0;
}

void want(bool good, const std::string &what, const std::string &where) {
    if (good)
        return;
    std::fprintf(stderr, "FAULT: %s\n%s\n", what.c_str(), where.c_str());
    std::abort();
}

void wantSame(const std::string &a, const std::string &b, const std::string &where) {
    if (a != b)
        want(false, "these are to be the same:\n" + a + "\n-- and --\n" + b, where);
}

void wantSound(const hashTable &table, const std::string &where) {
    int occupied = 0;
    for (int i = 0; i < table.size; ++i) {
        unsigned slot = 0;
        if (table.Tempty[i])
            continue;
        ++occupied;
        want(table.find(&table.Tboards[i], slot) == 1, "a stored position is not found", where);
        want(slot == static_cast<unsigned>(i), "a stored position is found elsewhere", where);
    }
    want(occupied == table.count, "the table's count is wrong", where);
}

Situation readSituation(Bytes &bytes) {
    const int first = bytes.take();
    const int size = boardSizes[first / 3 % std::size(boardSizes)].squares;
    XY::B_SIZE = size;
    Situation situation{ruleRows[first % std::size(ruleRows)].id, board(size)};
    board &b = situation.position;
    if (first / 24 % 2 == 0) {
        playGame(bytes, situation.rules, b);
    } else {
        scatter(bytes, b);
        b.whiteToMove = first / 12 % 2 == 0;
        b.plyCount = b.whiteToMove ? 40 : 41;
    }
    return situation;
}

std::string describe(const Situation &situation) {
    return std::string("position ") + rowOf(situation.rules).word + " normal 4 " +
           textOf(situation.position);
}
