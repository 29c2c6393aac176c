#include "tools/bench/benchrun.h"

#include "eval/squaresvalue.h"
#include "search/abstractengine.h"
#include "search/bestline.h"
#include "search/hashtable.h"
#include "tools/common/positionline.h"

#include <QStringList>

#include <chrono>
#include <memory>
#include <optional>

namespace {

std::optional<BenchTask> readTask(const QString &line, QString &error) {
    QStringList fields = line.split(' ', Qt::SkipEmptyParts);
    if (fields.size() < 5) {
        error = "expected a name, the rules, normal or giveaway, a depth and a position";
        return {};
    }
    BenchTask task;
    task.name = fields.takeFirst();
    const QString rulesName = fields.takeFirst();
    const std::optional<RuleSet> rules = ruleSetOf(rulesName);
    const QString mode = fields.takeFirst();
    task.giveAway = mode == "giveaway";
    task.depth = fields.takeFirst().toInt();
    if (!rules.has_value())
        error = QString("unknown rules \"%1\"").arg(rulesName);
    else if (!task.giveAway && mode != "normal")
        error = QString("expected normal or giveaway, found \"%1\"").arg(mode);
    else if (task.depth < 1 || task.depth > mostDepth)
        error = QString("the depth must be 1 to %1").arg(mostDepth);
    else if (const auto position = readPositionLine(fields.join(' '), error)) {
        task.rules = *rules;
        task.position = *position;
        return task;
    }
    return {};
}

} // namespace

QList<BenchTask> readTasks(const QString &text, QString &error) {
    QList<BenchTask> tasks;
    int number = 0;
    for (const QString &line : text.split('\n')) {
        ++number;
        const QString content = line.section('#', 0, 0).trimmed();
        if (content.isEmpty())
            continue;
        const std::optional<BenchTask> task = readTask(content, error);
        if (!task.has_value()) {
            error = QString("line %1: %2").arg(number).arg(error);
            break;
        }
        tasks.append(*task);
    }
    return tasks;
}

BenchResult runTask(const BenchTask &task, bool straightforward) {
    BenchResult result;
    result.statistic.scoreNoise = 1;
    result.statistic.giveAway = task.giveAway;
    if (task.seconds > 0)
        result.statistic.setReqTime(task.seconds);
    else
        result.statistic.setReqDepth(task.depth);

    board position = task.position;
    XY::B_SIZE = position.size;
    SquaresValue squareValues(position.size, false);
    hashTable table(benchHashSlots);
    AbstractEngine::setSQV(&squareValues);
    AbstractEngine::setHashTable(&table);
    AbstractEngine::eventLoop = 0;
    const auto engine = newEngine(task.rules, &position, 1, &result.statistic, position.size);
    engine->deepSearchAllowed = !straightforward;

    Score score(0, -1);
    BestLine line;
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    const LegalMove *best = engine->getBestMove(score, line);
    result.microseconds =
        std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start).count();
    if (best != nullptr)
        best->ToString(result.move);
    result.score = score.value;
    result.depth = engine->depth / 10;
    line.asString(result.line);
    AbstractEngine::setSQV(nullptr);
    AbstractEngine::setHashTable(nullptr);
    return result;
}

void Signature::add(const BenchResult &result) {
    addText(result.move);
    addText(result.line);
    const thinkStatistic &s = result.statistic;
    for (const int number : {result.score, s.scoresCalculated, s.nodes, s.cutoffs,
                             s.senselessSacrifices, s.hashHits, s.movesGenerated, s.maxLevel})
        addNumber(number);
}

QString Signature::text() const {
    return QString("%1").arg(hash_, 16, 16, QChar('0'));
}

void Signature::addText(const QString &text) {
    for (const char c : text.toLatin1())
        addByte(static_cast<unsigned char>(c));
}

void Signature::addNumber(int number) {
    const auto bits = static_cast<unsigned>(number);
    for (int shift = 0; shift < 32; shift += 8)
        addByte(static_cast<unsigned char>(bits >> shift));
}

void Signature::addByte(unsigned char byte) {
    constexpr quint64 prime = 0x100000001b3U;
    hash_ = (hash_ ^ byte) * prime;
}
