#include "app/boarddescription.h"

#include "rules/board.h"
#include "rules/legalmove.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

QString squaresOf(const board &position, int code) {
    QStringList squares;
    for (int y = 0; y < position.size; ++y) {
        for (int x = y % 2; x < position.size; x += 2) {
            if ((position.squares[x][y] & codePiece) == code)
                squares << LegalMove::XYtoString({x, y});
        }
    }
    return squares.join(QLatin1Char(' '));
}

QString translated(const char *text) {
    return QCoreApplication::translate("Draughts", text);
}

} // namespace

QString boardDescription(const board &position) {
    constexpr struct {
        int code;
        const char *text;
    } kinds[] = {{whiteMan, QT_TRANSLATE_NOOP("Draughts", "White men: %1.")},
                 {whiteKing, QT_TRANSLATE_NOOP("Draughts", "White kings: %1.")},
                 {blackMan, QT_TRANSLATE_NOOP("Draughts", "Black men: %1.")},
                 {blackKing, QT_TRANSLATE_NOOP("Draughts", "Black kings: %1.")}};
    int white = 0;
    int black = 0;
    position.countPieces(white, black);
    QStringList sentences = {
        translated(position.whiteToMove ? QT_TRANSLATE_NOOP("Draughts", "White to move.")
                                        : QT_TRANSLATE_NOOP("Draughts", "Black to move.")),
        translated(QT_TRANSLATE_NOOP("Draughts", "White %1, black %2.")).arg(white).arg(black)};
    for (const auto &[code, text] : kinds) {
        const QString squares = squaresOf(position, code);
        if (!squares.isEmpty())
            sentences << translated(text).arg(squares);
    }
    return sentences.join(QLatin1Char(' '));
}
