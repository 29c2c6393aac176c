#include "rules/listingwatch.h"

#include <utility>

namespace {

// About a millisecond with engines, some microseconds with bit sets.
constexpr int jumpsBetweenQuestions = 1000;

ListingWatch::Question question = nullptr;

} // namespace

ListingWatch::ListingWatch(Question wanted) : outer_(std::exchange(question, wanted)) {}

ListingWatch::~ListingWatch() {
    question = outer_;
    givenUp = false;
}

void ListingWatch::ask() {
    jumpsLeft = jumpsBetweenQuestions;
    if (question != nullptr && !givenUp)
        givenUp = !question();
}
