// How soon the window answers while the computer thinks, in milliseconds on a quiet machine.

#include "tests/app/thinking.h"

#include "platform/guihost.h"

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

namespace {

constexpr qint64 breakLimitMs = 100;
constexpr qint64 repaintLimitMs = 50;
constexpr qint64 closeLimitMs = 100;
// From the first moments of a search, with all that it sets up, to where its tree is large.
constexpr int delaysMs[] = {0, 3, 40, 250, 1300};

// Asks for a repaint of the board every few milliseconds. A request counts from when it was due:
// the search may also hold up the asking.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget *board) {
        board->installEventFilter(this);
        timer_.setTimerType(Qt::PreciseTimer);
        connect(&timer_, &QTimer::timeout, board, [board] { board->update(); });
        timer_.start(requestMs);
        sinceLast_.start();
    }
    qint64 longestMs() const { return longest_; }
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Paint)
            longest_ = std::max(longest_, sinceLast_.restart() - requestMs);
        return false;
    }

private:
    static constexpr int requestMs = 10;
    QTimer timer_;
    QElapsedTimer sinceLast_;
    qint64 longest_ = 0;
};

} // namespace

// Boxes and events are those of the program.
class ResponseTimeTest : public ThinkingTest {
protected:
    ResponseTimeTest() { setHost(&realHost); }
    ~ResponseTimeTest() override { setHost(&host); }

    // Has the computer think; the time from `act`, so long after the beginning, to the end of the
    // search.
    qint64 endMsAfter(const std::function<void()> &act, int delayMs) {
        QElapsedTimer sinceAct;
        QTimer::singleShot(delayMs, Qt::PreciseTimer, &game, [&] {
            sinceAct.start();
            act();
        });
        press(game.btnForce);
        return sinceAct.isValid() ? sinceAct.elapsed() : -1;
    }

    GuiHost realHost;
};

TEST_P(ResponseTimeTest, BreakAndRepaint) {
    for (const int delayMs : delaysMs) {
        SCOPED_TRACE(testing::Message() << delayMs << " ms after the search has begun");
        place(GetParam().position, humans);
        const PaintWatch watch(game.pView->viewport());
        const qint64 ms = endMsAfter([this] { press(game.btnBreak); }, delayMs);
        EXPECT_GE(ms, 0) << "the search was over before BREAK";
        EXPECT_LE(ms, breakLimitMs);
        EXPECT_LE(watch.longestMs(), repaintLimitMs);
        std::printf("%s, after %d ms: BREAK %lld ms, repaint %lld ms\n", GetParam().name, delayMs,
                    ms, watch.longestMs());
        land();
    }
}

TEST_P(ResponseTimeTest, Close) {
    const qint64 ms = endMsAfter([this] { game.close(); }, 3000);
    EXPECT_GE(ms, 0) << "the search was over before";
    EXPECT_LE(ms, closeLimitMs);
    std::printf("%s: close %lld ms\n", GetParam().name, ms);
}

INSTANTIATE_TEST_SUITE_P(, ResponseTimeTest, testing::ValuesIn(thinkings), thinkingName);
