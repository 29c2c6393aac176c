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
    while (canFwd())
        positions.remove(--positions.end());
    current = positions.append(copy);
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
    return !positions.isEmpty() && current != --positions.end();
}

bool gameHist::canPrev() const {
    return current != positions.begin();
}

board *gameHist::getBoard() {
    return positions.isEmpty() ? nullptr : &*current;
}
