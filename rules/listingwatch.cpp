#include "rules/listingwatch.h"

#include <utility>

namespace {

ListingWatch::Question question = nullptr;

} // namespace

ListingWatch::ListingWatch(Question wanted) : outer_(std::exchange(question, wanted)) {
    restart();
}

ListingWatch::~ListingWatch() {
    question = outer_;
    givenUp = false;
}

void ListingWatch::ask() {
    restart();
    if (question != nullptr && !givenUp)
        givenUp = !question();
}
