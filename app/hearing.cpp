// Draughts: what is told to those who do not see the board.

#include "app/draughts.h"

#include "app/inwords.h"
#include "forms/announcer.h"
#include "rules/board.h"
#include "search/abstractengine.h"
#include "search/thinkstatistic.h"
#include "view/boardcursor.h"
#include "view/drcanvas.h"
#include "view/mycanvasview.h"

#include <algorithm>

// The toolkit announces every setting, also of what is there already.
void Draughts::describeBoard() {
    const QString description = positionInWords(*pBoard);
    if (pView->accessibleDescription() != description)
        pView->setAccessibleDescription(description);
}

SquareReport Draughts::reportSquare(XY square) const {
    const bool chosen = std::find(selection.begin(), selection.end(), square) != selection.end();
    SquareReport report = {squareInWords(*pBoard, square), QString(), chosen};
    if ((pBoard->Get(square) & codeTaken) != 0)
        report.states = tr("being taken");
    else if (chosen)
        report.states = tr("chosen");
    else if (pCanvas->isMarked(square.x, square.y) == MarkNext)
        report.states = tr("offered");
    else if (canMove(square))
        report.states = pEngine->isCapture() ? tr("can capture") : tr("can move");
    return report;
}

bool Draughts::canMove(XY square) const {
    return phase_ == Phase::Waiting && movingPieces().contains(square);
}

// Where the legal moves begin; the same square as often as there are moves from it.
QList<XY> Draughts::movingPieces() const {
    QList<XY> squares;
    for (const LegalMove &move : *pEngine->getMoveList())
        squares << move.from();
    return squares;
}

// The squares that the move being entered may go on to.
QString Draughts::offer() const {
    return tr("From %1 to %2.")
        .arg(squareName(selection.last()), anyOf({targets.begin(), targets.end()}));
}

// Why the last square tapped begins no move and goes on with none.
QString Draughts::refusal() const {
    const XY square = selection.last();
    const QString name = squareName(square);
    const unsigned char code = pBoard->Get(square);
    const bool own = (code & (pBoard->whiteToMove ? codeWhite : codeBlack)) != 0;
    if (code == 0 && selection.size() > 1)
        return tr("%1 cannot go to %2.").arg(squareName(selection[0]), name);
    if (code == 0)
        return tr("%1 is empty.").arg(name);
    if (!own)
        return tr("%1 is not your piece.").arg(name);
    if (pEngine->isCapture())
        return tr("%1 cannot move: you must capture with %2.").arg(name, anyOf(movingPieces()));
    return tr("%1 cannot move.").arg(name);
}

// Of a game in which the side to move cannot.
QString Draughts::winner() const {
    const bool whiteWins = pBoard->whiteToMove == pStat->giveAway;
    return whiteWins ? tr("White has won.") : tr("Black has won.");
}
