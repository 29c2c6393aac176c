// BitCaptures: one listing of the captures of a bit position.
#ifndef BITS_BITCAPTURES_H
#define BITS_BITCAPTURES_H

#include "bits/bitjumps.h"
#include "rules/capturelimit.h"

// Appends the legal captures of one side to a stack in the order of generation: by piece in square
// order, then depth first, the directions in their order.
template <int N, const RuleTraits &Rules, bool White>
class BitCaptures {
    using Squares = DarkSquares<N>;
    using Bits = typename Squares::Bits;
    using Stack = MoveStack<BitMove<N>>;
    using Jumps = BitJumps<N, Rules, White>;

public:
    // `kingCaptures`: some flying king has a capture. Out of line, that a caller in a position
    // without captures need keep nothing in memory for it.
    [[gnu::noinline]] static void list(const BitPosition<N> &p, bool kingCaptures, Stack &stack,
                                       ListingWatch &watch) {
        const Jumps jumps(p);
        if (kingCaptures || jumps.canGoOn())
            BitCaptures(p, stack, watch).listSequences(jumps.capturers());
        else
            jumps.list(stack, watch);
    }

private:
    BitCaptures(const BitPosition<N> &p, Stack &stack, ListingWatch &watch)
        : kings_(asBits(p.template side<White>() & p.kings)),
          enemy_(asBits(p.template side<!White>())), empty_(asBits(p.empty())), stack_(stack),
          watch_(watch), first_(stack.size()) {}

    // `jumpers` are the pieces whose first jump is a short one. Out of line for the same reason.
    [[gnu::noinline]] void listSequences(Bits jumpers) {
        for (Bits rest = jumpers | kings_; rest != 0;) {
            from_ = takeLowest(rest);
            const Bits start = Squares::bit(from_);
            landing_ = empty_ | start;
            if ((kings_ & start) == 0)
                shortSequences<false>(start, 0, 1);
            else if constexpr (Rules.flyingKings)
                flyingSequences(from_, enemy_, 1, nowhere);
            else
                shortSequences<true>(start, 0, 1);
        }
    }

    // A sequence is complete: keeps it unless longer ones are known; a longer one drops the others.
    void complete(int to, Bits taken, int jumps) {
        if constexpr (Rules.maximumCapture) {
            if (jumps < most_)
                return;
            if (jumps > most_)
                stack_.cut(first_);
            most_ = jumps;
        }
        stack_.append({taken, 0, static_cast<std::uint8_t>(from_), static_cast<std::uint8_t>(to)});
    }

    // Depth-first over the jumps of a man or a short-stepping king that stands on `at`, jump number
    // `level` coming next. Jumped pieces stay and block until the move is over.
    template <bool King>
    void shortSequences(Bits at, Bits taken, int level) {
        if (level > 1 && watch_.countJump())
            return;
        if (level > maxCaptureLevel) {
            CaptureLimitScope::exceeded(King ? Rules.kingCapture : Rules.manCapture);
            return;
        }
        bool found = false;
        forEachDirection([&](auto d) {
            if constexpr (Jumps::template jumps<King, d>) {
                const Bits over = Squares::template step<d>(at) & enemy_ & ~taken;
                const Bits land = Squares::template step<d>(over) & landing_;
                if (land != 0) {
                    found = true;
                    shortSequences<King>(land, taken | over, level + 1);
                }
            }
        });
        if (!found && level > 1)
            complete(lowestBit(at), taken, level - 1);
    }

    // Whether the flying king on `at` can go on, jump number `level` coming next; lists how. From
    // most squares nothing is left to jump on any diagonal, which one look tells. `prey` are
    // the pieces not yet jumped, `back` is the direction of the last that was.
    [[gnu::always_inline]] bool flyingSequences(int at, Bits prey, int level, int back) {
        if (level > 1 && watch_.countJump())
            return true;
        const Bits victims = prey & Squares::cross[static_cast<unsigned>(at)];
        return victims != 0 && flyingJumps(at, prey, victims, level, back);
    }

    // A flying king may land on any free square behind the piece it jumps; squares from which it
    // can go on exclude the others.
    bool flyingJumps(int at, Bits prey, Bits victims, int level, int back) {
        bool found = false;
        const Bits blockers = ~landing_;
        forEachDirection([&](auto d) {
            if (d == back)
                return;
            const Bits over = Squares::template nearest<d>(at, blockers) & victims;
            const Bits first = Squares::template step<d>(over) & landing_;
            if (first == 0)
                return;
            found = true;
            const Bits left = prey & ~over;
            bool continued = false;
            for (Bits land = first; land != 0; land = Squares::template step<d>(land) & landing_)
                continued |=
                    flyingSequences(lowestBit(land), left, level + 1, oppositeDirection(d));
            for (Bits land = continued ? 0 : first; land != 0;
                 land = Squares::template step<d>(land) & landing_)
                complete(lowestBit(land), enemy_ & ~left, level);
        });
        return found;
    }

    static constexpr int nowhere = -1;

    const Bits kings_;
    const Bits enemy_;
    const Bits empty_;
    Stack &stack_;
    ListingWatch &watch_;
    const std::size_t first_; // of this listing's captures on the stack
    Bits landing_ = 0;        // empty squares, and the capturing piece's start square
    int from_ = 0;
    int most_ = 0; // pieces taken by the longest capture so far
};

#endif
