// RecordingHost: a host that records what it is asked and answers as told.
#ifndef TESTS_SUPPORT_RECORDINGHOST_H
#define TESTS_SUPPORT_RECORDINGHOST_H

#include "base/host.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

// A box as one line, with all that makes it what it is.
inline std::string boxText(BoxKind kind, const QString &title, const QString &text,
                           BoxButtons buttons, const QWidget *parent) {
    constexpr const char *kinds[] = {"information", "warning", "critical"};
    return std::string(kinds[static_cast<int>(kind)]) +
           (parent != nullptr ? " of the window: " : ": ") + title.toStdString() + ": " +
           text.toStdString() + (buttons == BoxButtons::Ok ? " [Ok]\n" : " [Ok Cancel]\n");
}

// In force from construction to destruction. Time stands still unless a test moves `now` or lets
// every reading of the clock take `msPerReading`.
class RecordingHost : public Host {
public:
    std::string boxes;              // all of them, as boxText() tells them
    bool answer = true;             // what closes every box: true is Ok
    std::function<void()> onBox;    // runs while a box is open
    std::function<void()> onEvents; // runs inside every processEvents()
    std::vector<int> pauses;        // microseconds
    int beeps = 0;
    int eventRounds = 0;
    qint64 now = 1000;
    qint64 msPerReading = 0;
    unsigned int fixedSeed = 1;

    RecordingHost() : previous_(setHost(this)) {}
    ~RecordingHost() override { setHost(previous_); }

    bool messageBox(BoxKind kind, const QString &title, const QString &text, BoxButtons buttons,
                    QWidget *parent) override {
        boxes += boxText(kind, title, text, buttons, parent);
        if (onBox)
            onBox();
        return answer;
    }
    void processEvents() override {
        ++eventRounds;
        if (onEvents)
            onEvents();
    }
    void beep() override { ++beeps; }
    void pause(int microseconds) override { pauses.push_back(microseconds); }
    qint64 clockMs() override { return now += msPerReading; }
    unsigned int seed() override { return fixedSeed; }
    // The boxes since the last call.
    std::string takeBoxes() { return std::exchange(boxes, {}); }

private:
    Host *previous_;
};

#endif
