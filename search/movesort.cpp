#include "search/movesort.h"

#include "rules/legalmove.h"

#include <utility>
#include <vector>

namespace {

// The list's entries in a heap with the smallest score on top; entry 0 is not used. The moves stay
// where they are in the list and only pointers to them move about.
class MoveHeap {
public:
    explicit MoveHeap(QValueList<LegalMove> &list) {
        entries_.reserve(static_cast<unsigned>(list.count()) + 1);
        entries_.push_back({0, nullptr});
        for (LegalMove &m : list)
            push({m.score, &m});
    }

    // Removes the top and returns it.
    LegalMove *pop() {
        LegalMove *top = entries_[1].move;
        entries_[1] = entries_.back();
        entries_.pop_back();
        pushDown();
        return top;
    }

private:
    struct Entry {
        int score;
        LegalMove *move;
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
    for (int left = list.count(); left > 0; --left)
        sorted.append(std::move(*heap.pop()));
    list.swap(sorted);
}
