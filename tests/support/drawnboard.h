// Positions as drawings and move lists as text, so that a person can check a test.
#ifndef TESTS_SUPPORT_DRAWNBOARD_H
#define TESTS_SUPPORT_DRAWNBOARD_H

#include "base/qvaluelist.h"
#include "rules/board.h"
#include "rules/legalmove.h"

#include <functional>
#include <string>

// A position from its drawing: the side to move ('w' or 'b'), then the rows from the top down, all
// separated by blanks; '.' empty, 'w' and 'b' men, 'W' and 'B' kings. The number of rows is the
// board's size, which becomes XY::B_SIZE as well. A piece on a light square fails the test.
board drawn(const std::string &picture);

// The letter of a square code: as above, 'x' a piece that is being taken.
char letterOf(int code);
// Rows from the top, one a line, of the letters that `letterAt` gives.
std::string drawing(int size, const std::function<char(int x, int y)> &letterAt);
// The drawing of a position, one row a line.
std::string picture(const board &b);

// "(1,1)-(2,2)" or "(1,1)x(3,3)x(5,1)"; a list has its moves separated by blanks.
std::string moveText(const LegalMove &m);
std::string moveText(const QValueList<LegalMove> &list);

#endif
