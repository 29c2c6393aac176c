// BitMoveGenerator: moves of a bit position, in the order and number of the rule engines'.
#ifndef BITS_BITMOVEGENERATOR_H
#define BITS_BITMOVEGENERATOR_H

#include "bits/bitcaptures.h"

// Lists and counts the moves of one side of one position, by one rule set. The position is not
// changed; moves go on top of a stack that the caller keeps.
template <int N, const RuleTraits &Rules, bool White>
class BitMoveGenerator {
    using Squares = DarkSquares<N>;
    using Bits = typename Squares::Bits;
    using Set = typename Squares::Set;
    using Stack = MoveStack<BitMove<N>>;
    using Jumps = BitJumps<N, Rules, White>;

public:
    explicit BitMoveGenerator(const BitPosition<N> &p)
        : position_(p), enemy_(p.template side<!White>()),
          kings_(p.template side<White>() & p.kings), men_(p.template men<White>()),
          empty_(p.empty()) {}

    // Some own piece can capture. To be asked first.
    bool canCapture() {
        Set places{};
        forEachDirection([&](auto d) {
            if constexpr (Jumps::template jumps<false, d>)
                places |= Squares::template jumpFrom<d>(enemy_, empty_);
        });
        if (!isEmpty(kings_))
            survey_ = surveyKings(kings_, enemy_, empty_);
        return survey_.capture || !isEmpty(men_ & places);
    }

    // Number of non-capturing moves; to be asked after canCapture().
    int countQuiet() const {
        return countBits(left() & empty_) + countBits(right() & empty_) + survey_.moves;
    }

    // Appends the non-capturing moves, `count` as countQuiet() told: by piece in square order; a
    // man's left target first, a king's directions in their order and outwards.
    void listQuiet(Stack &stack, int count) const {
        const Bits canLeft = movers<leftward>(left());
        const Bits canRight = movers<rightward>(right());
        const Bits kings = asBits(kings_);
        // Each man's two moves are written and one or both kept, without a branch.
        BitMove<N> *end = stack.room(static_cast<unsigned>(count) + 1);
        for (Bits rest = canLeft | canRight | kings; rest != 0;) {
            const int from = takeLowest(rest);
            *end = quietMove(from, from + Squares::stride(leftward));
            end += hasBit(canLeft, from);
            *end = quietMove(from, from + Squares::stride(rightward));
            end += hasBit(canRight, from);
            if (hasBit(kings, from))
                forEachDirection([&](auto d) { end = listRay<d>(end, from); });
        }
        stack.extendTo(end);
    }

    // Appends the legal captures in the order of generation, under a watch; to be asked after
    // canCapture().
    void listCaptures(Stack &stack, ListingWatch &watch) const {
        BitCaptures<N, Rules, White>::list(position_, Rules.flyingKings && survey_.capture, stack,
                                           watch);
    }

private:
    static constexpr int leftward = White ? 3 : 2;
    static constexpr int rightward = White ? 0 : 1;

    // The squares to the left and right in front of the men.
    Set left() const { return Squares::template step<leftward>(men_); }
    Set right() const { return Squares::template step<rightward>(men_); }

    // The men that can move in direction d, where they have these squares in front.
    template <int d>
    Bits movers(Set front) const {
        return asBits(men_ & Squares::template step<oppositeDirection(d)>(front & empty_));
    }

    struct KingSurvey {
        int moves = 0;        // the kings' non-capturing ones
        bool capture = false; // some king has one
    };

    // Out of line, and with copies: without kings nothing need be kept in memory for it.
    [[gnu::noinline]] static KingSurvey surveyKings(Set kings, Set enemy, Set empty) {
        KingSurvey found;
        Set hit{};
        forEachDirection([&](auto d) {
            // No two kings see the same square: the nearer hides it from the farther.
            const Set view = Rules.flyingKings ? Squares::template view<d>(kings, empty)
                                               : Squares::template step<d>(kings) & empty;
            const Set from = Rules.flyingKings ? kings | view : kings;
            hit |= from & Squares::template jumpFrom<d>(enemy, empty);
            found.moves += countBits(view);
        });
        found.capture = !isEmpty(hit);
        return found;
    }

    static BitMove<N> quietMove(int from, int to) {
        return {0, 0, static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(to)};
    }

    template <int d>
    BitMove<N> *listRay(BitMove<N> *end, int from) const {
        const Bits empty = asBits(empty_);
        Bits target = Squares::template step<d>(Squares::bit(from)) & empty;
        while (target != 0) {
            *end++ = quietMove(from, lowestBit(target));
            target = Rules.flyingKings ? Squares::template step<d>(target) & empty : 0;
        }
        return end;
    }

    const BitPosition<N> &position_;
    const Set enemy_;
    const Set kings_;
    const Set men_;
    const Set empty_;
    KingSurvey survey_;
};

#endif
