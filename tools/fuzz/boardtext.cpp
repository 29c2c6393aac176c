// Fuzzes the board's text form: whatever is read, what is then written reads back as the same.

#include "rules/board.h"
#include "tools/fuzz/situation.h"

#include <QIODevice>
#include <QString>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

QString written(const board &b) {
    QString text;
    QTextStream stream(&text);
    b.toStream(stream);
    stream.flush();
    return text;
}

void read(board &b, QString text) {
    QTextStream stream(&text, QIODevice::ReadOnly);
    b.fromStream(stream);
}

bool isSame(const board &a, const board &b) {
    return std::memcmp(a.squares, b.squares, sizeof a.squares) == 0 && a.plyCount == b.plyCount &&
           a.whiteToMove == b.whiteToMove && a.hashScore == b.hashScore &&
           a.hashHorizon == b.hashHorizon;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    // The reader's complaint about a key would drown what the fuzzer says.
    static const bool quiet = std::freopen("/dev/null", "w", stdout) != nullptr;
    Bytes bytes(data, size);
    Situation situation{RuleSet::International, board(quiet ? allBoardSizes[bytes.below(4)] : 6)};
    board &b = situation.position;
    const QByteArray text = bytes.rest();
    read(b, QString::fromUtf8(text));
    if (b.whiteToMove != (b.plyCount % 2 == 0))
        reportFault(situation, "the side to move does not follow from the ply counter");
    board again(b.size);
    read(again, written(b));
    if (!isSame(b, again))
        reportFault(situation, "what was written reads differently");

    // Letters of one byte each read the same from bytes as from a string.
    board fromBytes(b.size);
    QTextStream stream(text);
    fromBytes.fromStream(stream);
    const bool plainLetters = std::all_of(text.begin(), text.end(), [](char c) { return c > 0; });
    if (plainLetters && !isSame(b, fromBytes))
        reportFault(situation, "bytes read differently from a string");
    return 0;
}
