#include "search/listingwatch.h"

#include <utility>

ListingWatch::ListingWatch(Question goesOn) : goesOn_(std::move(goesOn)) {}

void ListingWatch::ask() {
    restart();
    if (goesOn_ && !givenUp_)
        givenUp_ = !goesOn_();
}
