// Texts as careless users write them: a good one, changed here and there.
#ifndef TESTS_PROPERTIES_EDITEDTEXT_H
#define TESTS_PROPERTIES_EDITEDTEXT_H

#include "tests/properties/bytes.h"

#include <string>
#include <vector>

// Up to six changes, to be made when the text is known; three bytes each.
class Edits {
public:
    explicit Edits(Bytes &bytes) : changes_(static_cast<std::size_t>(bytes.below(7))) {
        for (Change &c : changes_)
            c = {bytes.take(), bytes.take(), bytes.take()};
    }

    // Somewhere a part of the text is written twice, or gives way to a word that readers stumble
    // over.
    std::string of(std::string text) const {
        constexpr const char *words[] = {"",
                                         " ",
                                         "\n",
                                         "wm",
                                         "bK",
                                         "--",
                                         "//idx,score\n",
                                         "0",
                                         "-1",
                                         "1e999",
                                         "2147483647",
                                         "-2147483648",
                                         "4294967295",
                                         "7",
                                         "\xe2\x80\x83",
                                         "--last",
                                         "#",
                                         "12",
                                         "polish",
                                         "--rules",
                                         "--depth",
                                         "\t",
                                         "/dev/zero",
                                         "99"};
        for (const Change &c : changes_) {
            const std::size_t at = text.size() * static_cast<std::size_t>(c.place) / 256;
            const auto length = static_cast<std::size_t>(c.kind / 2);
            if (c.kind % 2 == 1)
                text.insert(at, text.substr(at, length));
            else
                text.replace(at, length % 16, words[c.word % 24]);
        }
        return text;
    }

private:
    struct Change {
        int place = 0, kind = 0, word = 0;
    };
    std::vector<Change> changes_;
};

#endif
