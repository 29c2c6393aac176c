// Journal: what happened, for replaying and for telling.
#ifndef TESTS_MONKEY_JOURNAL_H
#define TESTS_MONKEY_JOURNAL_H

#include <cstdint>
#include <cstdlib>
#include <deque>
#include <iostream>
#include <string>

// The events of one run. Its hash covers every line: runs with equal hashes went the same way.
class Journal {
public:
    // For a run of `limit` events. With `trace` every line goes to standard output at once.
    Journal(unsigned seed, int limit, bool trace) : seed_(seed), limit_(limit), trace_(trace) {}

    // A new event, in words.
    void event(const std::string &what) { add(std::to_string(++events_) + " " + what); }
    // Something that follows from it.
    void note(const std::string &what) { add("    " + what); }

    // What is not as it must be, after the last events, on standard error. Ends the program with
    // status 1: event loops are running that nothing sensible could be done in any more.
    [[noreturn]] void fail(const std::string &fault) const {
        std::cerr << "seed " << seed_ << ", event " << events_ << ". The last ones:\n";
        for (const std::string &line : last_)
            std::cerr << line << '\n';
        std::cerr << "broken:\n"
                  << fault << "\nreplay: tavlora-monkey --seed " << seed_ << " --events " << limit_
                  << " --trace" << std::endl;
        std::_Exit(1);
    }

    bool isOver() const { return events_ >= limit_; }
    std::uint64_t hash() const { return hash_; }

private:
    void add(const std::string &line) {
        constexpr std::uint64_t prime = 1099511628211U;
        for (const char letter : line)
            hash_ = (hash_ ^ static_cast<unsigned char>(letter)) * prime;
        if (trace_)
            std::cout << line << std::endl;
        last_.push_back(line);
        if (last_.size() > 40)
            last_.pop_front();
    }

    unsigned seed_;
    int limit_;
    bool trace_;
    int events_ = 0;
    std::uint64_t hash_ = 14695981039346656037U; // FNV-1a
    std::deque<std::string> last_;
};

#endif
