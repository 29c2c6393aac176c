// Squares and moves in words, for those who do not see the board; in the user's language.
#ifndef APP_INWORDS_H
#define APP_INWORDS_H

#include "rules/xy.h"

#include <QList>

class LegalMove;
class QString;
class board;

// The place and what stands there: "c3, white man"; "d4, empty".
QString squareInWords(const board &position, XY square);

// "Black takes c5, d6 to b4." or "White c3 to d4.", and where it applies that the man is crowned.
// `position` is the one before the move, whosever turn it says it is.
QString moveInWords(const board &position, const LegalMove &move);

// "White to move. White 20, black 19."
QString positionInWords(const board &position);

// Names of squares, each once: "c3"; "c3 or e5"; "c3, e5 or g5".
QString anyOf(const QList<XY> &squares);

#endif
