// ListingWatch: long listings of captures look up now and then, and can be given up.
#ifndef RULES_LISTINGWATCH_H
#define RULES_LISTINGWATCH_H

// Flying kings on a board full of prey can take in so many orders that the listing of one position
// lasts for seconds. While a scope of this class lives, `wanted` is called after so many jumps of
// all listings together; when it answers false the running listing and all that follow in the scope
// end at the next jump, with a part of the moves. For a search that is broken off, then, and will
// not use them. Without a scope every listing is completed.
class ListingWatch {
public:
    using Question = bool (*)();

    explicit ListingWatch(Question wanted);
    ~ListingWatch();
    ListingWatch(const ListingWatch &) = delete;
    ListingWatch &operator=(const ListingWatch &) = delete;

    // Counts a jump; true when the listing is to end.
    static bool countJump() {
        if (--jumpsLeft < 0)
            ask();
        return givenUp;
    }
    // Whether listings of this scope have been given up.
    static bool isGivenUp() { return givenUp; }
    // The search has looked up by itself: counts from the beginning.
    static void restart() { jumpsLeft = jumpsBetweenQuestions; }

private:
    // A few milliseconds with engines, a fraction of one with bit sets; in ordinary positions more
    // than the search lists between two looks of its own.
    static constexpr int jumpsBetweenQuestions = 4000;

    static void ask();

    inline static int jumpsLeft = 0;
    inline static bool givenUp = false;

    Question outer_;
};

#endif
