// ListingWatch: long listings of captures are interrupted now and then, and can be given up.
#ifndef SEARCH_LISTINGWATCH_H
#define SEARCH_LISTINGWATCH_H

#include <functional>

// Flying kings on a board full of prey can take in so many orders that the listing of one position
// lasts for seconds. A watch counts the jumps of all listings that are made under it and asks its
// question every few thousand; when the answer is no, the running listing and all that follow under
// it end at the next jump, with a part of the moves. For a search that is broken off, then, and
// will not use them.
class ListingWatch {
public:
    // Whether listings are to go on. May process events.
    using Question = std::function<bool()>;

    // Without a question every listing is completed.
    ListingWatch() = default;
    explicit ListingWatch(Question goesOn);
    ListingWatch(const ListingWatch &) = delete;
    ListingWatch &operator=(const ListingWatch &) = delete;

    // Counts a jump; true when the listing is to end.
    bool countJump() {
        if (--jumpsLeft_ < 0)
            ask();
        return givenUp_;
    }
    // Whether listings under this watch have been given up.
    bool isGivenUp() const { return givenUp_; }
    // Events have just been processed for another reason: counts from the beginning.
    void restart() { jumpsLeft_ = jumpsBetweenQuestions; }

private:
    // A few milliseconds with engines, a fraction of one with bit sets; in ordinary positions more
    // than the search lists between two rounds of events.
    static constexpr int jumpsBetweenQuestions = 4000;

    void ask();

    Question goesOn_;
    int jumpsLeft_ = jumpsBetweenQuestions;
    bool givenUp_ = false;
};

#endif
