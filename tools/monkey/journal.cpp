#include "tools/monkey/journal.h"

#include <QTextStream>

#include <cstdlib>

namespace {

constexpr std::size_t linesKept = 40;

} // namespace

void Journal::event(const QString &what) {
    ++events_;
    add(QString("%1 %2").arg(events_).arg(what));
}

void Journal::note(const QString &what) {
    add("    " + what);
}

void Journal::add(const QString &line) {
    constexpr std::uint64_t prime = 1099511628211U;
    for (const QChar letter : line)
        hash_ = (hash_ ^ letter.unicode()) * prime;
    if (trace_)
        QTextStream(stdout) << line << '\n';
    last_.push_back(line);
    if (last_.size() > linesKept)
        last_.pop_front();
}

void Journal::fail(const QString &fault, const QString &expected) const {
    {
        QTextStream out(stderr);
        out << "seed " << seed_ << ", event " << events_ << ". The last ones:\n";
        for (const QString &line : last_)
            out << line << '\n';
        out << "broken: " << fault << '\n' << "expected:\n" << expected;
        out << "replay: tavlora-monkey --seed " << seed_ << " --events " << limit_ << " --trace\n";
    }
    std::_Exit(1);
}
