#include "tools/common/positionline.h"

#include "rules/boardsizes.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr int mostPlies = 1000000;

constexpr int fieldCount = 6;
enum Field { fieldSize, fieldPly, fieldKey, fieldScore, fieldHorizon, fieldSquares };

// The code of a square's two letters, -1 when they are not such.
int codeOf(const QString &letters) {
    constexpr struct {
        const char *letters;
        int code;
    } known[] = {
        {"--", 0}, {"wm", whiteMan}, {"wK", whiteKing}, {"bm", blackMan}, {"bK", blackKing}};
    for (const auto &square : known) {
        if (letters == square.letters)
            return square.code;
    }
    return -1;
}

QString checkNumbers(const QStringList &fields) {
    bool good = false;
    const int ply = fields[fieldPly].toInt(&good);
    if (!good || ply < 0)
        return "the ply counter is not a number from 0 up";
    if (ply > mostPlies)
        return QString("the ply counter is above %1").arg(mostPlies);
    fields[fieldKey].toUInt(&good);
    if (!good)
        return "the key is not a number";
    for (const Field field : {fieldScore, fieldHorizon}) {
        fields[field].toInt(&good);
        if (!good)
            return "score and horizon must be numbers";
    }
    return {};
}

QString readSquares(const QString &text, board &b) {
    if (text.size() != qsizetype{2} * b.size * b.size) {
        return QString("expected %1 letters for %2 squares, found %3")
            .arg(2 * b.size * b.size)
            .arg(b.size * b.size)
            .arg(text.size());
    }
    for (int x = 0; x < b.size; ++x) {
        for (int y = 0; y < b.size; ++y) {
            const QString letters = text.mid(2 * (x * b.size + y), 2);
            const int code = codeOf(letters);
            if (code < 0)
                return QString("unknown square \"%1\" at (%2,%3)").arg(letters).arg(x).arg(y);
            if (code != 0 && (x + y) % 2 != 0)
                return QString("a piece on the light square (%1,%2)").arg(x).arg(y);
            b.squares[x][y] = static_cast<unsigned char>(code);
        }
    }
    return {};
}

// "one, two or three"
QString alternatives(QStringList words) {
    const QString last = words.takeLast();
    return words.join(", ") + " or " + last;
}

} // namespace

std::optional<board> readPositionLine(const QString &line, QString &error) {
    const QStringList fields = line.simplified().split(' ', Qt::SkipEmptyParts);
    if (fields.size() != fieldCount) {
        error =
            QString("a position has %1 fields (size, ply, key, score, horizon, squares), not %2")
                .arg(fieldCount)
                .arg(fields.size());
        return {};
    }
    const int size = fields[fieldSize].toInt();
    if (!isBoardSize(size)) {
        error = QString("the size must be %1, not \"%2\"").arg(sizeWords(), fields[fieldSize]);
        return {};
    }
    board b(size);
    error = checkNumbers(fields);
    if (error.isEmpty())
        error = readSquares(fields[fieldSquares], b);
    if (!error.isEmpty())
        return {};
    b.plyCount = fields[fieldPly].toInt();
    b.whiteToMove = b.plyCount % 2 == 0;
    return b;
}

std::optional<RuleSet> ruleSetOf(const QString &word) {
    const auto *row = std::ranges::find(ruleRows, word, &RuleRow::word);
    return row == std::end(ruleRows) ? std::nullopt : std::optional(row->id);
}

QString ruleWords() {
    QStringList words;
    for (const RuleRow &row : ruleRows)
        words << row.word;
    return alternatives(words);
}

QString sizeWords() {
    QStringList words;
    for (const BoardSize &size : boardSizes)
        words << QString::number(size.squares);
    return alternatives(words);
}
