// gameHist: every position of the game, and the one being shown.
#ifndef APP_GAMEHIST_H
#define APP_GAMEHIST_H

#include "base/qvaluelist.h"
#include "rules/board.h"

#include <QObject>

// A list of copies of positions with a cursor on one of them; the cursor is at the list's end only
// while the list is empty. The list has no limit. Callers keep the boards they pass in.
class gameHist : public QObject {
    Q_OBJECT

public:
    gameHist();
    ~gameHist() override;

    // Forgets every position.
    void clear();
    // Drops the positions after the current one, appends a copy of `b` (not null) and makes it the
    // current one.
    void insert(const board *b);
    // One step forward or back. At the end of the list: false, the signal below, no change.
    bool next();
    bool prev();
    bool canFwd() const;
    bool canPrev() const;
    // The history's own copy of the current position, valid until that entry is dropped; null when
    // there is none.
    board *getBoard();

signals:
    void noNext();     // next() has failed
    void noPrevious(); // prev() has failed

protected:
    QValueList<board>::iterator current;
    QValueList<board> positions;
};

#endif
