// Dice: the one source of chance; equal seeds, equal throws.
#ifndef TESTS_MONKEY_DICE_H
#define TESTS_MONKEY_DICE_H

#include <random>
#include <vector>

// The library's distributions differ between libraries, the generator does not.
class Dice {
public:
    explicit Dice(unsigned seed) : generator_(seed) {}

    // 0 to n - 1; n must not be 0.
    int below(int n) { return static_cast<int>(generator_() % static_cast<unsigned>(n)); }
    int between(int least, int most) { return least + below(most - least + 1); }
    bool oneIn(int n) { return below(n) == 0; }
    template <class Item>
    const Item &pick(const std::vector<Item> &items) {
        return items[static_cast<std::size_t>(below(static_cast<int>(items.size())))];
    }

private:
    std::mt19937 generator_;
};

#endif
