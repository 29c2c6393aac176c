// RecordingHost: a host that records what it is asked and answers as told.
#ifndef TESTS_SUPPORT_RECORDINGHOST_H
#define TESTS_SUPPORT_RECORDINGHOST_H

#include "base/host.h"

#include <functional>
#include <vector>

// In force from construction to destruction. Time stands still unless a test moves `now` or lets
// every reading of the clock take `msPerReading`.
class RecordingHost : public Host {
public:
    struct Box {
        BoxKind kind;
        QString title;
        QString text;
        BoxButtons buttons = BoxButtons::Ok;
        bool operator==(const Box &) const = default;
    };

    std::vector<Box> boxes;
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
                    QWidget *) override {
        boxes.push_back({kind, title, text, buttons});
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

private:
    Host *previous_;
};

#endif
