// The position in words, for those who do not see the board.
#ifndef APP_BOARDDESCRIPTION_H
#define APP_BOARDDESCRIPTION_H

class QString;
class board;

// Whose move it is, the piece counts and the squares of each kind of piece that there is, in the
// user's language: "White to move. White 2, black 1. White men: (0,0) (2,2). Black kings: (5,5)."
// Squares stand in the notation of moves, row by row from white's side.
QString boardDescription(const board &position);

#endif
