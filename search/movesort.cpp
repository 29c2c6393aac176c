#include "search/movesort.h"

#include "rules/legalmove.h"

#include <utility>
#include <vector>

namespace {

using Place = QValueList<LegalMove>::iterator;

// The list's entries in a heap with the smallest score on top; entry 0 is not used. The moves stay
// where they are in the list.
class MoveHeap {
public:
    explicit MoveHeap(QValueList<LegalMove> &list) {
        entries_.reserve(static_cast<unsigned>(list.count()) + 1);
        entries_.push_back({0, list.end()});
        for (Place move = list.begin(); move != list.end(); ++move)
            push({move->score, move});
    }

    // Removes the top and returns its place in the list.
    Place pop() {
        const Place move = entries_[1].move;
        entries_[1] = entries_.back();
        entries_.pop_back();
        pushDown();
        return move;
    }

private:
    struct Entry {
        int score;
        Place move;
    };

    void push(Entry entry) {
        entries_.push_back(entry);
        for (std::size_t i = entries_.size() - 1; i > 1 && less(i, i / 2); i /= 2)
            std::swap(entries_[i], entries_[i / 2]);
    }

    void pushDown() {
        const std::size_t count = entries_.size() - 1;
        for (std::size_t r = 1; 2 * r <= count;) {
            const std::size_t left = 2 * r;
            if (left == count) {
                if (less(left, r))
                    std::swap(entries_[r], entries_[left]);
                return;
            }
            const std::size_t child = less(left + 1, left) ? left + 1 : left;
            if (!less(child, r))
                return;
            std::swap(entries_[r], entries_[child]);
            r = child;
        }
    }

    bool less(std::size_t a, std::size_t b) const { return entries_[a].score < entries_[b].score; }

    std::vector<Entry> entries_;
};

} // namespace

void sortByScore(QValueList<LegalMove> &list) {
    MoveHeap heap(list);
    QValueList<LegalMove> sorted;
    while (!list.isEmpty())
        sorted.take(list, heap.pop());
    list.swap(sorted);
}
