// VirtualHost: the application's host with a clock that only moves when the program does something.
#ifndef TOOLS_MONKEY_VIRTUALHOST_H
#define TOOLS_MONKEY_VIRTUALHOST_H

#include "platform/guihost.h"

#include <functional>

// Boxes are real. The clock goes on by `roundMs` each time events are processed, so that a search
// of a minute takes a few thousand nodes; nothing sounds and nothing waits. In force from
// construction to destruction.
class VirtualHost : public GuiHost {
    Q_OBJECT

public:
    static constexpr qint64 roundMs = 300;

    VirtualHost() : previous_(setHost(this)) {}
    ~VirtualHost() override { setHost(previous_); }

    std::function<unsigned()> onSearch; // returns the engine's seed
    std::function<void()> onEvents;     // inside a search
    std::function<void(const QString &title, const QString &text)> onBox;
    std::function<void(bool confirmed)> onAnswer;

    bool messageBox(BoxKind kind, const QString &title, const QString &text, BoxButtons buttons,
                    QWidget *parent) override {
        onBox(title, text);
        const bool confirmed = GuiHost::messageBox(kind, title, text, buttons, parent);
        onAnswer(confirmed);
        return confirmed;
    }
    void processEvents() override {
        now_ += roundMs;
        onEvents();
    }
    void beep() override {}
    void pause(int microseconds) override { now_ += microseconds / 1000; }
    qint64 clockMs() override { return now_; }
    unsigned int seed() override { return onSearch(); }

private:
    Host *previous_;
    qint64 now_ = 0;
};

#endif
