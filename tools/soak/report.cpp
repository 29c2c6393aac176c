#include "tools/soak/report.h"

#include "tools/common/positionline.h"

#include <QFile>

#include <algorithm>

#include <unistd.h>

void GameTable::add(const GameSetup &setup, const GameOutcome &outcome) {
    const QString name = nameOf(setup.rules) + (setup.giveAway ? " give-away" : "");
    Row &row = rows_[{name, setup.size}];
    ++row.games;
    const bool whiteStuck = outcome.end == GameOutcome::End::WhiteMovesNoMore;
    if (outcome.end == GameOutcome::End::Cut)
        ++row.cut;
    else
        ++(whiteStuck == setup.giveAway ? row.whiteWon : row.blackWon);
    row.plies += outcome.plies;
    row.longest = std::max(row.longest, outcome.plies);
    row.nodes += outcome.nodes;
}

void GameTable::print(QTextStream &out) const {
    out << "rules                     size  games  white  black    cut  plies/game  longest  "
           "nodes/ply\n";
    Row all;
    for (const auto &[key, row] : rows_) {
        printRow(out, key.first.leftJustified(24) + QString::number(key.second).rightJustified(6),
                 row);
        all.games += row.games;
        all.whiteWon += row.whiteWon;
        all.blackWon += row.blackWon;
        all.cut += row.cut;
        all.plies += row.plies;
        all.longest = std::max(all.longest, row.longest);
        all.nodes += row.nodes;
    }
    printRow(out, QString("all").leftJustified(30), all);
}

void GameTable::printRow(QTextStream &out, const QString &name, const Row &row) {
    out << name
        << QString::asprintf("%7d%7d%7d%7d%12lld%9d%11lld\n", row.games, row.whiteWon, row.blackWon,
                             row.cut, row.plies / std::max(row.games, 1), row.longest,
                             row.nodes / std::max<qint64>(row.plies, 1));
}

void TimeTable::add(int requestedSeconds, const Thought &thought) {
    thoughts_.push_back({1000 * requestedSeconds, thought});
}

void TimeTable::print(QTextStream &out) const {
    qint64 used = 0;
    qint64 requested = 0;
    int over = 0;
    for (const Timed &t : thoughts_) {
        used += t.thought.usedMs;
        requested += t.requestedMs;
        over += t.thought.usedMs > t.thought.budgetMs;
    }
    out << count() << " moves, " << used << " ms used of " << requested << " ms requested, " << over
        << " moves above their budget\n"
        << "                      min    10%    25%    50%    75%    90%    95%    99%    max\n";
    printDistribution(out, "used, ms", [](const Timed &t) { return t.thought.usedMs; });
    printDistribution(out, "budget, ms", [](const Timed &t) { return t.thought.budgetMs; });
    printDistribution(out, "used/requested, %", [](const Timed &t) {
        return qint64{100} * t.thought.usedMs / t.requestedMs;
    });
    printDistribution(out, "used/budget, %", [](const Timed &t) { return t.percent(); });
    printDistribution(out, "depth, plies", [](const Timed &t) { return t.thought.depth; });
}

qint64 TimeTable::worstPercent() const {
    qint64 worst = 0;
    for (const Timed &t : thoughts_)
        worst = std::max(worst, t.percent());
    return worst;
}

template <class Figure>
void TimeTable::printDistribution(QTextStream &out, const char *name, Figure figure) const {
    std::vector<qint64> figures;
    for (const Timed &t : thoughts_)
        figures.push_back(figure(t));
    std::sort(figures.begin(), figures.end());
    out << QString(name).leftJustified(18);
    for (const int percent : {0, 10, 25, 50, 75, 90, 95, 99, 100}) {
        const std::size_t at = (figures.size() - 1) * static_cast<unsigned>(percent) / 100;
        out << QString::number(figures[at]).rightJustified(7);
    }
    out << '\n';
}

long residentKb() {
    QFile file("/proc/self/statm");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLong() * (sysconf(_SC_PAGESIZE) / 1024);
}
