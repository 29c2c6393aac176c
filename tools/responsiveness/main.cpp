// tavlora-responsiveness: how soon the window answers while the computer thinks, and how soon it is
// gone, measured from outside on the X display in DISPLAY.

#include "tools/common/commandline.h"
#include "tools/responsiveness/scenarios.h"
#include "tools/responsiveness/stopwatch.h"
#include "tools/responsiveness/timing.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <map>

namespace {

constexpr double breakLimit = 100;
constexpr double paintLimit = 50;
constexpr double closeLimit = 100;

QTextStream &out() {
    static QTextStream stream(stdout);
    return stream;
}

class Measurement {
public:
    explicit Measurement(const QCommandLineParser &options)
        : game_(options.positionalArguments().value(0)), quick_(options.isSet("quick")),
          subject_(QCoreApplication::applicationDirPath() + "/tavlora-subject") {}

    bool canMeasure() const { return display_.canTap(); }
    void run();
    // Tells the table; false when a limit times `factor` was missed or nothing was measured.
    bool tell(double factor) const;

private:
    void thinking(const Scenario &scenario, int delay);
    void closingSubject(const Scenario &scenario, int delay);
    void closingGame(const QString &when, const std::vector<QPoint> &taps, int delay);
    void closingGames();
    void add(const QString &what, double limit, std::optional<double> ms, bool mayMiss = false);

    struct Row {
        double limit = 0;
        Samples samples;
    };

    XDisplay display_;
    QString game_;
    bool quick_;
    QString subject_;
    std::map<QString, Row> rows_;
    int failures_ = 0;
};

void Measurement::add(const QString &what, double limit, std::optional<double> ms, bool mayMiss) {
    if (ms) {
        rows_[what].limit = limit;
        rows_[what].samples.add(*ms);
    } else if (!mayMiss) {
        ++failures_;
        out() << "not seen: " << what << Qt::endl;
    }
}

// A search that ends before BREAK is pressed tells nothing.
void Measurement::thinking(const Scenario &scenario, int delay) {
    Stopwatch run(display_, subject_, scenario.arguments());
    if (!run.windowAppears() || !run.told("thinks"))
        return add(scenario.name, 0, {});
    sleepMs(delay);
    constexpr int coveredFrom = 200;
    const std::optional<double> uncovered = delay > coveredFrom ? run.uncover() : std::nullopt;
    const std::optional<double> answered = run.pressBreak();
    add("BREAK: " + scenario.name, breakLimit, answered, true);
    if (delay > coveredFrom)
        add("uncovered: " + scenario.name, paintLimit, uncovered, !answered);
    add("repaint: " + scenario.name, paintLimit, run.told("painted"));
}

void Measurement::closingSubject(const Scenario &scenario, int delay) {
    Stopwatch run(display_, subject_, scenario.arguments());
    if (run.windowAppears() && run.told("thinks")) {
        sleepMs(delay);
        add("close, thinking: " + scenario.name, closeLimit, run.close());
    }
}

void Measurement::closingGame(const QString &when, const std::vector<QPoint> &taps, int delay) {
    constexpr int reactionMs = 40;
    Stopwatch run(display_, game_, {});
    if (!run.windowAppears())
        return add(when, closeLimit, {});
    sleepMs(reactionMs * 5);
    for (const QPoint &at : taps) {
        run.tap(at);
        sleepMs(reactionMs);
    }
    sleepMs(delay);
    add("close, " + when, closeLimit, run.close());
}

// The game as it is started: 10 x 10, five seconds a move.
void Measurement::closingGames() {
    const QPoint man(131, 149), target(108, 126), forceMove(160, 246);
    closingGame("waiting", {}, 100);
    closingGame("entering a move", {man}, 100);
    closingGame("in flight", {man, target}, 20);
    for (const int delay : {300, 1500, 3000})
        closingGame("thinking, the start of a game", {forceMove}, delay);
}

void Measurement::run() {
    const std::vector<int> delays = quick_ ? std::vector{0, 250} : std::vector{0, 3, 40, 250, 1300};
    for (const Scenario &scenario : quick_ ? fewScenarios() : allScenarios()) {
        for (const int delay : delays)
            thinking(scenario, delay);
        closingSubject(scenario, quick_ ? 200 : 1000);
        if (!quick_)
            closingSubject(scenario, 6000);
    }
    if (!quick_)
        closingGames();
    else
        closingGame("waiting", {}, 100);
}

bool Measurement::tell(double factor) const {
    bool good = failures_ == 0 && !rows_.empty();
    out() << "milliseconds: least, median, most (limit), samples\n";
    for (const auto &[what, row] : rows_) {
        const Samples &s = row.samples;
        const bool missed = s.most() > row.limit * factor;
        good = good && !missed;
        out() << qSetFieldWidth(48) << Qt::left << what << qSetFieldWidth(0) << Qt::fixed
              << qSetRealNumberPrecision(1) << s.least() << ", " << s.median() << ", " << s.most()
              << " (" << row.limit << "), " << s.count() << (missed ? "  MISSED" : "") << '\n';
    }
    return good;
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("tavlora-responsiveness");
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Presses BREAK, covers and uncovers the window and closes it while the computer thinks, "
        "and\n"
        "tells how long each took. Exits with status 1 when a limit was missed.");
    parser.addOptions({{"quick", "A few seconds' worth only."},
                       {"factor", "Allow so many times the limits, 1 if not given.", "f", "1"}});
    parser.addPositionalArgument("game", "The game's program.");
    if (const std::optional<int> status = parseCommandLine(parser))
        return *status;
    bool good = false;
    const double factor = parser.value("factor").toDouble(&good);
    if (!good || factor <= 0)
        return fail("--factor wants a number above 0");
    if (parser.positionalArguments().size() != 1)
        return fail("the game's program is wanted");
    Measurement measurement(parser);
    if (!measurement.canMeasure())
        return fail("there is no X display with the XTEST extension");
    measurement.run();
    return measurement.tell(factor) ? 0 : 1;
}
