// Texts as careless users write them: a good one, changed here and there.
#ifndef TESTS_PROPERTIES_EDITEDTEXT_H
#define TESTS_PROPERTIES_EDITEDTEXT_H

#include "tests/properties/bytes.h"

#include <string>
#include <vector>

// Changes of a text that was not written yet. Reads up to 18 bytes.
class Edits {
public:
    explicit Edits(Bytes &bytes) {
        for (int left = bytes.below(7); left > 0; --left)
            edits_.push_back({bytes.take(), bytes.take(), bytes.take()});
    }

    // At each place some of the text goes, is written twice or gives way to a word that readers
    // stumble over.
    std::string of(std::string text) const {
        static const std::string words[] = {"",
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
        for (const Edit &e : edits_) {
            const std::size_t at = text.size() * static_cast<std::size_t>(e.place) / 256;
            const auto length = static_cast<std::size_t>(e.kind / 2);
            const std::string &word = words[static_cast<std::size_t>(e.word) % std::size(words)];
            if (e.kind % 2 == 0)
                text.replace(at, e.word < 128 ? length : 1, word);
            else
                text.insert(at, text.substr(at, length));
        }
        return text;
    }

private:
    struct Edit {
        int place, kind, word;
    };
    std::vector<Edit> edits_;
};

#endif
