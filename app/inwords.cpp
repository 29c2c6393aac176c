#include "app/inwords.h"

#include "rules/board.h"
#include "rules/legalmove.h"
#include "view/boardcursor.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

QString translated(const char *text) {
    return QCoreApplication::translate("Draughts", text);
}

const char *pieceInWords(unsigned char code) {
    switch (code & codePiece) {
    case whiteMan:
        return QT_TRANSLATE_NOOP("Draughts", "%1, white man");
    case whiteKing:
        return QT_TRANSLATE_NOOP("Draughts", "%1, white king");
    case blackMan:
        return QT_TRANSLATE_NOOP("Draughts", "%1, black man");
    case blackKing:
        return QT_TRANSLATE_NOOP("Draughts", "%1, black king");
    default:
        return QT_TRANSLATE_NOOP("Draughts", "%1, empty");
    }
}

// `last` joins the last two: "%1 or %2".
QString joined(const QList<XY> &squares, const char *last) {
    QStringList names;
    for (const XY &square : squares)
        names << squareName(square);
    names.removeDuplicates();
    if (names.size() < 2)
        return names.join(QString());
    const QString end = names.takeLast();
    return translated(last).arg(names.join(QStringLiteral(", ")), end);
}

bool isCrowned(const board &position, const LegalMove &move) {
    const unsigned char code = position.Get(move.from());
    return (code & codeMan) != 0 &&
           move.to().y == promotionRow((code & codeWhite) != 0, position.size);
}

} // namespace

QString squareInWords(const board &position, XY square) {
    return translated(pieceInWords(position.Get(square))).arg(squareName(square));
}

QString moveInWords(const board &position, const LegalMove &move) {
    const bool white = (position.Get(move.from()) & codeWhite) != 0;
    const QString from = squareName(move.from());
    const QString to = squareName(move.to());
    QString sentence;
    if (move.isCapture()) {
        const char *text = white ? QT_TRANSLATE_NOOP("Draughts", "White takes %1, %2 to %3.")
                                 : QT_TRANSLATE_NOOP("Draughts", "Black takes %1, %2 to %3.");
        const QString taken = joined({move.taken.begin(), move.taken.end()},
                                     QT_TRANSLATE_NOOP("Draughts", "%1 and %2"));
        sentence = translated(text).arg(taken, from, to);
    } else {
        const char *text = white ? QT_TRANSLATE_NOOP("Draughts", "White %1 to %2.")
                                 : QT_TRANSLATE_NOOP("Draughts", "Black %1 to %2.");
        sentence = translated(text).arg(from, to);
    }
    if (isCrowned(position, move))
        sentence += QLatin1Char(' ') + translated(QT_TRANSLATE_NOOP("Draughts", "It is crowned."));
    return sentence;
}

QString positionInWords(const board &position) {
    int white = 0;
    int black = 0;
    position.countPieces(white, black);
    const char *mover = position.whiteToMove ? QT_TRANSLATE_NOOP("Draughts", "White to move.")
                                             : QT_TRANSLATE_NOOP("Draughts", "Black to move.");
    const char *counts = QT_TRANSLATE_NOOP("Draughts", "White %1, black %2.");
    return translated(mover) + QLatin1Char(' ') + translated(counts).arg(white).arg(black);
}

QString anyOf(const QList<XY> &squares) {
    return joined(squares, QT_TRANSLATE_NOOP("Draughts", "%1 or %2"));
}
