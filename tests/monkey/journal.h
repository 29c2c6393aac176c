// Journal: what happened, for replaying and for telling.
#ifndef TESTS_MONKEY_JOURNAL_H
#define TESTS_MONKEY_JOURNAL_H

#include <cstdlib>
#include <deque>
#include <functional>
#include <iostream>
#include <string>

// The events of one run. Its hash covers every line: runs with equal hashes went the same way.
class Journal {
public:
    // For a run of `limit` events. With `trace` every line goes to standard output at once.
    Journal(unsigned seed, int limit, bool trace) : seed_(seed), limit_(limit), trace_(trace) {}

    // A new event, in words.
    void event(const std::string &what) { note(std::to_string(++events_) + " " + what); }
    // Something that follows from it.
    void note(const std::string &line) {
        hash_ = hash_ * 31 + std::hash<std::string>()(line);
        if (trace_)
            std::cout << line << std::endl;
        last_.push_back(line);
        if (last_.size() > 40)
            last_.pop_front();
    }

    // What is not as it must be, after the last events, on standard error. Ends the program with
    // status 1: event loops are running that nothing sensible could be done in any more.
    [[noreturn]] void fail(const std::string &fault) const {
        for (const std::string &line : last_)
            std::cerr << line << '\n';
        std::cerr << "broken:\n"
                  << fault << "\nreplay: tavlora-monkey --seed " << seed_ << " --events " << limit_
                  << " --trace" << std::endl;
        std::_Exit(1);
    }

    bool isOver() const { return events_ >= limit_; }
    std::size_t hash() const { return hash_; }

private:
    unsigned seed_;
    int limit_;
    bool trace_;
    int events_ = 0;
    std::size_t hash_ = 0;
    std::deque<std::string> last_;
};

#endif
