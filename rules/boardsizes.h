// The sizes of boards that can be played on.
#ifndef RULES_BOARDSIZES_H
#define RULES_BOARDSIZES_H

#include <QtGlobal>

#include <algorithm>

struct BoardSize {
    int squares;      // a side; even, at most maxBoardSize
    const char *name; // in the settings, to be translated in the context "fsettings"
};

inline constexpr BoardSize boardSizes[] = {
    {6, QT_TRANSLATE_NOOP("fsettings", "6 for fun")},
    {8, QT_TRANSLATE_NOOP("fsettings", "8 checkers,brazylian")},
    {10, QT_TRANSLATE_NOOP("fsettings", "10 international")},
    {12, QT_TRANSLATE_NOOP("fsettings", "12 canadian")},
};
inline constexpr int defaultSizeItem = 2;
inline constexpr int defaultSquares = boardSizes[defaultSizeItem].squares;

constexpr bool isBoardSize(int squares) {
    return std::ranges::find(boardSizes, squares, &BoardSize::squares) != std::end(boardSizes);
}

#endif
