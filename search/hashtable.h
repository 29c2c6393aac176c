// hashTable: the search's transposition table, an open-addressing table of whole positions.
#ifndef SEARCH_HASHTABLE_H
#define SEARCH_HASHTABLE_H

#include "rules/board.h"

#include <memory>

class QTextStream;
struct Score;

// Positions with the search record that each carries. Two positions are the same entry when their
// sizes and the pieces on their squares are equal; side to move and marks are not compared.
// Collisions are resolved by quadratic probing: slots h, h + 1, h + 4, h + 9, ... modulo the size;
// after eleven occupied slots a look-up gives up.
class hashTable {
public:
    const int size;                   // number of slots
    int count;                        // number of occupied slots
    std::unique_ptr<board[]> Tboards; // stored positions; the table owns them
    std::unique_ptr<int[]> Tscore;    // stored hashScore of each slot
    std::unique_ptr<bool[]> Tempty;   // true for a free slot

    // Allocates `entries` slots, all free. For each array that cannot be allocated an information
    // box says so; such a table, and one without slots, finds and stores nothing.
    explicit hashTable(int entries);
    ~hashTable();
    hashTable(const hashTable &) = delete;
    hashTable &operator=(const hashTable &) = delete;

    // Frees every slot; the stored positions are not touched.
    void clear();
    // The first slot of a position's probe path: its key modulo the size; 0 without slots.
    unsigned int HKey(const board *b) const;
    static bool areEqual(const board *a, const board *b);
    // 1 and the position's slot when it is stored; 0 and the first free slot on its probe path when
    // it is not; -1 and 0 when eleven occupied slots hold other positions.
    int find(const board *b, unsigned int &idx) const;
    // The position in slot i, valid while the slot is occupied.
    board *getBoard(int i) { return &Tboards[i]; }

    // Stores a position with its search record: 1, or 0 when there is no room on its probe path or
    // a record with the same or a farther horizon is there already.
    int insert(const board *b);
    // Stores a position in slot `idx` without probing: 1, or 0 when its two window bounds are
    // equal.
    int insert(const board *b, unsigned int idx);

    // If the position is stored with a horizon beyond `s.depth`, `s` becomes its score and horizon
    // (the score negated by chooseNegScore).
    void chooseScore(const board *b, Score &s) const;
    void chooseNegScore(const board *b, Score &s) const;

    // Text dump: a line with size and count, then for each occupied slot a line with index and
    // score and the position's line. Always 1.
    int toStream(QTextStream &ts) const;
    void appendOneElement(QTextStream &ts, int i) const;
    // Reads the positions of n x n squares from a dump, or from bare position lines, each into the
    // first slot of its probe path. The text holds no window bounds; the positions get bounds that
    // no search fits into, so they can be looked up but never answer a search. Always 0.
    int fromStream(QTextStream &ts, int n);

    // Follows the probe path from `slot` to the first slot that is free or for which `wanted`
    // holds: true and that slot; false and 0 when there is none within the limit.
    template <class Wanted>
    bool probe(unsigned int slot, Wanted wanted, unsigned int &idx) const {
        unsigned int step = 1;
        for (int tries = 0; tries <= probeLimit; ++tries) {
            idx = slot;
            if (Tempty[slot] || wanted(slot))
                return true;
            slot = (slot + step) % static_cast<unsigned int>(size);
            step += 2;
        }
        idx = 0;
        return false;
    }
    // Stores a position with its record in slot `idx`, whatever is there.
    void place(unsigned int idx, const board *b);
    // There are slots, and all arrays were allocated.
    bool usable() const {
        return size > 0 && Tboards != nullptr && Tscore != nullptr && Tempty != nullptr;
    }

private:
    static constexpr int probeLimit = 10; // a look-up compares one slot more than this
};

#endif
