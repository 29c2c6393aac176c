// LiveHost: real events and real time, boxes recorded and answered as told.
#ifndef TESTS_RIG_LIVEHOST_H
#define TESTS_RIG_LIVEHOST_H

#include "tests/support/recordinghost.h"

#include <QCoreApplication>
#include <QWidget>

#include <string>
#include <utility>

// A box as one line, with all that makes it what it is.
inline std::string boxText(BoxKind kind, const QString &title, const QString &text,
                           BoxButtons buttons, const QWidget *parent) {
    constexpr const char *kinds[] = {"information", "warning", "critical"};
    return std::string(kinds[static_cast<int>(kind)]) +
           (parent != nullptr ? " of the window: " : ": ") + title.toStdString() + ": " +
           text.toStdString() + (buttons == BoxButtons::Ok ? " [Ok]\n" : " [Ok Cancel]\n");
}

inline const std::string gameOverBox = "warning of the window: Game Over: Game Over [Ok]\n";
inline const std::string newGameBox =
    "warning of the window: confirm: confirm NewGame [Ok Cancel]\n";

class LiveHost : public RecordingHost {
public:
    bool messageBox(BoxKind kind, const QString &title, const QString &text, BoxButtons buttons,
                    QWidget *parent) override {
        shown_ += boxText(kind, title, text, buttons, parent);
        return RecordingHost::messageBox(kind, title, text, buttons, parent);
    }
    void processEvents() override {
        QCoreApplication::processEvents();
        RecordingHost::processEvents();
    }
    qint64 clockMs() override { return Host::clockMs(); }

    // The boxes since the last call.
    std::string takeBoxes() {
        boxes.clear();
        return std::exchange(shown_, {});
    }

private:
    std::string shown_;
};

#endif
