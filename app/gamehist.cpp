#include "app/gamehist.h"

gameHist::gameHist() {
    clear();
}

gameHist::~gameHist() = default;

void gameHist::clear() {
    positions.clear();
    current = positions.begin();
}

void gameHist::insert(const board *b) {
    // The position may be one of those that are dropped.
    const board copy(*b);
    if (!positions.isEmpty())
        positions.truncate(current.index() + 1);
    positions.append(copy);
    current = --positions.end();
}

bool gameHist::next() {
    if (!canFwd()) {
        emit noNext();
        return false;
    }
    ++current;
    return true;
}

bool gameHist::prev() {
    if (!canPrev()) {
        emit noPrevious();
        return false;
    }
    --current;
    return true;
}

bool gameHist::canFwd() const {
    return current.index() + 1 < positions.count();
}

bool gameHist::canPrev() const {
    return current.index() > 0;
}

board *gameHist::getBoard() {
    return positions.isEmpty() ? nullptr : &*current;
}
