// BitMoveGenerator: moves of a bit position, in the order and number of the rule engines'.
#ifndef BITS_BITMOVEGENERATOR_H
#define BITS_BITMOVEGENERATOR_H

#include "bits/bitposition.h"
#include "bits/movestack.h"
#include "rules/capturelimit.h"
#include "rules/ruletraits.h"
#include "search/listingwatch.h"

#include <type_traits>

// Lists and counts the moves of one side of one position, by one rule set. The position is not
// changed; moves go on top of a stack that the caller keeps.
template <int N, const RuleTraits &Rules, bool White>
class BitMoveGenerator {
    using Squares = DarkSquares<N>;
    using Bits = typename Squares::Bits;
    using Stack = MoveStack<BitMove<N>>;

public:
    explicit BitMoveGenerator(const BitPosition<N> &p)
        : own_(p.template side<White>()), enemy_(p.template side<!White>()), kings_(own_ & p.kings),
          men_(own_ & ~p.kings), empty_(p.empty()) {}

    // Some own piece can capture. To be asked first.
    bool canCapture() {
        const bool byKing = surveyKings();
        return byKing || manCapturers() != 0;
    }

    // Number of non-capturing moves; to be asked after canCapture().
    int countQuiet() const {
        return countBits(left() & empty_) + countBits(right() & empty_) + kingMoves_;
    }

    // Appends the non-capturing moves: by piece in square order; a man's left target first, a
    // king's directions in their order and outwards.
    void listQuiet(Stack &stack) const {
        constexpr int toLeft = White ? Squares::half : Squares::half + 1;
        constexpr int toRight = White ? Squares::half + 1 : Squares::half;
        constexpr int leftward = White ? 3 : 2;
        constexpr int rightward = White ? 0 : 1;
        const Bits canLeft =
            men_ & Squares::template step<oppositeDirection(leftward)>(left() & empty_);
        const Bits canRight =
            men_ & Squares::template step<oppositeDirection(rightward)>(right() & empty_);
        for (Bits rest = canLeft | canRight | kings_; rest != 0;) {
            const int from = takeLowest(rest);
            if (hasBit(canLeft, from))
                append(stack, from, from - toLeft, 0);
            if (hasBit(canRight, from))
                append(stack, from, from + toRight, 0);
            if (hasBit(kings_, from))
                listKing(stack, from);
        }
    }

    // Appends the legal captures in the order of generation: all of them, or under a watch.
    void listCaptures(Stack &stack) {
        ListingWatch unwatched;
        listCaptures(stack, unwatched);
    }
    void listCaptures(Stack &stack, ListingWatch &watch) {
        watch_ = &watch;
        first_ = stack.size();
        most_ = 0;
        for (Bits rest = manCapturers() | kings_; rest != 0;) {
            from_ = takeLowest(rest);
            const Bits start = Squares::bit(from_);
            landing_ = empty_ | start;
            if ((kings_ & start) == 0)
                manSequences(stack, start, 0, 1);
            else if constexpr (Rules.flyingKings)
                flyingSequences(stack, from_, 0, 1);
            else
                shortKingSequences(stack, start, 0, 1);
        }
    }

private:
    template <class Use>
    static void forEachDirection(Use use) {
        use(std::integral_constant<int, 0>());
        use(std::integral_constant<int, 1>());
        use(std::integral_constant<int, 2>());
        use(std::integral_constant<int, 3>());
    }

    static constexpr bool isForward(int d) { return White ? d == 0 || d == 3 : d == 1 || d == 2; }

    // The squares to the left and right in front of the men.
    Bits left() const {
        return White ? Squares::template step<3>(men_) : Squares::template step<2>(men_);
    }
    Bits right() const {
        return White ? Squares::template step<0>(men_) : Squares::template step<1>(men_);
    }

    // Those of `pieces` that can make a short jump.
    template <bool AllDirections>
    Bits jumpers(Bits pieces) const {
        Bits found = 0;
        forEachDirection([&](auto d) {
            if constexpr (AllDirections || isForward(d)) {
                constexpr int back = oppositeDirection(d);
                const Bits victims = enemy_ & Squares::template step<back>(empty_);
                found |= Squares::template step<back>(victims);
            }
        });
        return found & pieces;
    }

    Bits manCapturers() const { return jumpers<Rules.menCaptureBackwards>(men_); }

    // The free squares that the kings see in direction d. No two kings see the same one: the nearer
    // hides it from the farther.
    template <int d>
    Bits kingView() const {
        Bits front = Squares::template step<d>(kings_) & empty_;
        Bits view = front;
        while (Rules.flyingKings && front != 0) {
            front = Squares::template step<d>(front) & empty_;
            view |= front;
        }
        return view;
    }

    // Counts the kings' non-capturing moves; true when some king can capture.
    bool surveyKings() {
        if (kings_ == 0)
            return false;
        Bits hit = 0;
        forEachDirection([&](auto d) {
            constexpr int back = oppositeDirection(d);
            const Bits view = kingView<d>();
            const Bits from = Rules.flyingKings ? kings_ | view : kings_;
            const Bits victims = enemy_ & Squares::template step<back>(empty_);
            hit |= Squares::template step<d>(from) & victims;
            kingMoves_ += countBits(view);
        });
        return hit != 0;
    }

    static void append(Stack &stack, int from, int to, Bits taken) {
        stack.append({taken, 0, static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(to)});
    }

    template <int d>
    void listRay(Stack &stack, int from) const {
        Bits target = Squares::template step<d>(Squares::bit(from)) & empty_;
        while (target != 0) {
            append(stack, from, lowestBit(target), 0);
            target = Rules.flyingKings ? Squares::template step<d>(target) & empty_ : 0;
        }
    }

    void listKing(Stack &stack, int from) const {
        forEachDirection([&](auto d) { listRay<d>(stack, from); });
    }

    // A sequence is complete: keeps it unless longer ones are known; a longer one drops the others.
    void complete(Stack &stack, int to, Bits taken, int jumps) {
        if constexpr (Rules.maximumCapture) {
            if (jumps < most_)
                return;
            if (jumps > most_)
                stack.cut(first_);
            most_ = jumps;
        }
        append(stack, from_, to, taken);
    }

    // Depth-first over the jumps of a short-stepping piece that stands on `at`, jump number `level`
    // coming next. Jumped pieces stay and block until the move is over.
    template <bool AllDirections, class Continue>
    bool shortJumps(Stack &stack, Bits at, Bits taken, int level, Continue next) {
        bool found = false;
        forEachDirection([&](auto d) {
            if constexpr (AllDirections || isForward(d)) {
                const Bits over = Squares::template step<d>(at) & enemy_ & ~taken;
                const Bits land = Squares::template step<d>(over) & landing_;
                if (land != 0) {
                    found = true;
                    next(land, taken | over);
                }
            }
        });
        if (!found && level > 1)
            complete(stack, lowestBit(at), taken, level - 1);
        return found;
    }

    void manSequences(Stack &stack, Bits at, Bits taken, int level) {
        if (level > 1 && watch_->countJump())
            return;
        if (level > maxCaptureLevel) {
            CaptureLimitScope::exceeded(Rules.manCapture);
            return;
        }
        shortJumps<Rules.menCaptureBackwards>(stack, at, taken, level, [&](Bits land, Bits all) {
            manSequences(stack, land, all, level + 1);
        });
    }

    void shortKingSequences(Stack &stack, Bits at, Bits taken, int level) {
        if (level > 1 && watch_->countJump())
            return;
        if (level > maxCaptureLevel) {
            CaptureLimitScope::exceeded(Rules.kingCapture);
            return;
        }
        shortJumps<true>(stack, at, taken, level, [&](Bits land, Bits all) {
            shortKingSequences(stack, land, all, level + 1);
        });
    }

    // A flying king may land on any free square behind the piece it jumps; squares from which it
    // can go on exclude the others.
    bool flyingSequences(Stack &stack, int at, Bits taken, int level) {
        if (level > 1 && watch_->countJump())
            return true;
        bool found = false;
        const Bits blockers = Squares::all & ~landing_;
        const Bits victims = enemy_ & ~taken;
        forEachDirection([&](auto d) {
            const Bits over = Squares::template nearest<d>(at, blockers) & victims;
            const Bits first = Squares::template step<d>(over) & landing_;
            if (first == 0)
                return;
            found = true;
            bool continued = false;
            for (Bits land = first; land != 0; land = Squares::template step<d>(land) & landing_)
                continued |= flyingSequences(stack, lowestBit(land), taken | over, level + 1);
            for (Bits land = continued ? 0 : first; land != 0;
                 land = Squares::template step<d>(land) & landing_)
                complete(stack, lowestBit(land), taken | over, level);
        });
        return found;
    }

    const Bits own_;
    const Bits enemy_;
    const Bits kings_;
    const Bits men_;
    const Bits empty_;
    int kingMoves_ = 0;
    Bits landing_ = 0; // empty squares, and the capturing piece's start square
    int from_ = 0;
    std::size_t first_ = 0; // of this listing's captures on the stack
    ListingWatch *watch_ = nullptr;
    int most_ = 0; // pieces taken by the longest capture so far
};

#endif
