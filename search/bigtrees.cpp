// The trees of positions with captures by the thousand: what has been searched of them is kept in
// few bytes, and what is no longer wanted is let go of bit by bit.

#include "search/abstractengine.h"

#include <cstring>
#include <iterator>

namespace {

using Bytes = std::vector<unsigned char>;

void put(Bytes &bytes, const void *value, std::size_t size) {
    const auto *from = static_cast<const unsigned char *>(value);
    bytes.insert(bytes.end(), from, from + size);
}

// The number of squares, then a byte for each: sixteen columns and rows are more than enough.
void putSquares(Bytes &bytes, const QArray<XY> &squares) {
    bytes.push_back(static_cast<unsigned char>(squares.size()));
    for (const XY &square : squares)
        bytes.push_back(static_cast<unsigned char>(square.x << 4 | square.y));
}

// Reads what the functions above have written.
class Reader {
public:
    explicit Reader(const Bytes &bytes) : at_(bytes.data()), end_(at_ + bytes.size()) {}

    bool atEnd() const { return at_ == end_; }
    int number() {
        int value = 0;
        std::memcpy(&value, at_, sizeof value);
        at_ += sizeof value;
        return value;
    }
    void squares(QArray<XY> &squares) {
        squares.resize(*at_++);
        for (XY &square : squares) {
            square = XY(*at_ >> 4, *at_ & 15);
            ++at_;
        }
    }
    Bytes bytes(int count) {
        const unsigned char *from = at_;
        at_ += count;
        return Bytes(from, at_);
    }

private:
    const unsigned char *at_;
    const unsigned char *const end_;
};

// Removes up to so many moves from the end of the list, with the engines and boards that they own.
void release(QValueList<LegalMove> &list, int most) {
    for (; most > 0 && !list.isEmpty(); --most) {
        const auto last = std::prev(list.end());
        delete last->subEngine;
        delete last->subBoard;
        list.remove(last);
    }
}

} // namespace

AbstractEngine::~AbstractEngine() {
    release(moveList, moveList.count());
    release(discarded_, discarded_.count());
    board = nullptr;
}

void AbstractEngine::rest() {
    if (moveList.isEmpty())
        return;
    Bytes bytes;
    bytes.reserve(packedSize()); // copying and growing would take longer than all the rest
    packInto(bytes);
    release(moveList, moveList.count());
    atRest_.swap(bytes);
}

// What packInto() will add.
std::size_t AbstractEngine::packedSize() const {
    std::size_t bytes = atRest_.size();
    for (const LegalMove &m : moveList) {
        bytes += sizeof m.score + 1 + m.path.size() + 1 + m.taken.size() + sizeof(int);
        bytes += m.subEngine != nullptr ? m.subEngine->packedSize() : 0;
    }
    return bytes;
}

// Move by move: score, squares, then the number of bytes that the list below takes and those.
// Reductions are set anew whenever a list is searched again; boards follow from the moves.
void AbstractEngine::packInto(Bytes &bytes) const {
    bytes.insert(bytes.end(), atRest_.begin(), atRest_.end());
    for (const LegalMove &m : moveList) {
        put(bytes, &m.score, sizeof m.score);
        putSquares(bytes, m.path);
        putSquares(bytes, m.taken);
        const std::size_t lengthAt = bytes.size();
        int length = 0;
        put(bytes, &length, sizeof length);
        if (m.subEngine == nullptr)
            continue;
        m.subEngine->packInto(bytes);
        length = static_cast<int>(bytes.size() - lengthAt - sizeof length);
        std::memcpy(&bytes[lengthAt], &length, sizeof length);
    }
}

void AbstractEngine::wake() {
    for (Reader reader(atRest_); !reader.atEnd();) {
        LegalMove &m = *moveList.append(LegalMove());
        m.score = reader.number();
        reader.squares(m.path);
        reader.squares(m.taken);
        const int length = reader.number();
        if (length == 0)
            continue;
        m.subBoard = new ::board(board);
        makeMove(m.subBoard, &m);
        m.subEngine = selfClone(m.subBoard, depth, statistic, size);
        m.subEngine->atRest_ = reader.bytes(length);
    }
    atRest_ = Bytes();
}

// Half of what is left each time: there is never more of it than twice the longest list.
void AbstractEngine::releaseMoves() {
    atRest_ = Bytes();
    release(discarded_, discarded_.count() / 2);
    if (isCrowded())
        discarded_.takeAll(moveList);
    release(moveList, moveList.count());
}

void AbstractEngine::freeDiscarded() {
    release(discarded_, crowd);
}
