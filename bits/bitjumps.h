// BitJumps: the short jumps of one side of a bit position.
#ifndef BITS_BITJUMPS_H
#define BITS_BITJUMPS_H

#include "bits/bitposition.h"
#include "bits/movestack.h"
#include "rules/ruletraits.h"
#include "search/listingwatch.h"

// Which pieces that jump from square to square, men and short-stepping kings, can begin a capture
// in which direction. Most captures are a single jump, and these are listed without a search.
template <int N, const RuleTraits &Rules, bool White>
class BitJumps {
    using Squares = DarkSquares<N>;
    using Bits = typename Squares::Bits;
    using Set = typename Squares::Set;

public:
    explicit BitJumps(const BitPosition<N> &p)
        : enemy_(p.template side<!White>()), empty_(p.empty()), men_(p.template men<White>()),
          kings_(Rules.flyingKings ? Set{} : p.template side<White>() & p.kings) {
        forEachDirection([&](auto d) {
            const Set jumpers = jumps<false, d> ? men_ | kings_ : kings_;
            capturers_[d] = asBits(jumpers & places<d>());
        });
    }

    // Whether such a man or king jumps in direction d.
    template <bool King, int d>
    static constexpr bool jumps = King || Rules.menCaptureBackwards ||
                                  (White ? d == 0 || d == 3 : d == 1 || d == 2);

    // The pieces that can capture.
    Bits capturers() const { return capturers_[0] | capturers_[1] | capturers_[2] | capturers_[3]; }

    // Some piece can jump again after its first jump. What that has changed does not matter: back
    // over the jumped piece lies the start square, and onto that only a fourth jump leads.
    bool canGoOn() const {
        return goesOn<false>(men_) || (!isEmpty(kings_) && goesOn<true>(kings_));
    }

    // Appends the captures of a position where none can go on.
    void list(MoveStack<BitMove<N>> &stack, ListingWatch &watch) const {
        for (Bits rest = capturers(); rest != 0;) {
            const int from = takeLowest(rest);
            forEachDirection([&](auto d) {
                constexpr int stride = Squares::stride(d);
                if (hasBit(capturers_[d], from) && !watch.countJump())
                    stack.append({Squares::bit(from + stride), 0, static_cast<std::uint8_t>(from),
                                  static_cast<std::uint8_t>(from + 2 * stride)});
            });
        }
    }

private:
    // Where a piece has something to jump in direction d.
    template <int d>
    Set places() const {
        return Squares::template jumpFrom<d>(enemy_, empty_);
    }

    template <bool King>
    bool goesOn(Set pieces) const {
        Set landings{};
        Set goOn{};
        forEachDirection([&](auto d) {
            if constexpr (jumps<King, d>) {
                const Set from = pieces & places<d>();
                landings |= Squares::template step<d>(Squares::template step<d>(from));
                goOn |= places<d>();
            }
        });
        return !isEmpty(landings & goOn);
    }

    const Set enemy_;
    const Set empty_;
    const Set men_;
    const Set kings_;
    Bits capturers_[4];
};

#endif
