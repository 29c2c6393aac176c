// Journal: what happened, for replaying and for telling.
#ifndef TOOLS_MONKEY_JOURNAL_H
#define TOOLS_MONKEY_JOURNAL_H

#include <QString>

#include <cstdint>
#include <deque>

// The events of one run. Its hash covers every line: runs with equal hashes went the same way.
class Journal {
public:
    // For a run of `limit` events. With `trace` every line goes to standard output at once.
    Journal(unsigned seed, int limit, bool trace) : seed_(seed), limit_(limit), trace_(trace) {}

    // A new event, in words.
    void event(const QString &what);
    // Something that follows from it.
    void note(const QString &what);
    // What is not as it must be, after the last events, on standard error. Ends the program with
    // status 1: event loops are running that nothing sensible could be done in any more.
    [[noreturn]] void fail(const QString &fault, const QString &expected) const;

    int events() const { return events_; }
    std::uint64_t hash() const { return hash_; }

private:
    void add(const QString &line);

    unsigned seed_;
    int limit_;
    bool trace_;
    int events_ = 0;
    std::uint64_t hash_ = 14695981039346656037U; // FNV-1a
    std::deque<QString> last_;
};

#endif
