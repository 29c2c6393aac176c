// What the program wants from the machine it runs on besides drawing: boxes, events, sounds and
// time.
#ifndef BASE_HOST_H
#define BASE_HOST_H

#include <QElapsedTimer>
#include <QString>

class QWidget;

// The kinds of message box; they differ in icon only.
enum class BoxKind { Information, Warning, Critical };

// The button row of a message box. Ok comes first and is the default.
enum class BoxButtons { Ok, OkCancel };

// The one seam between the program and its surroundings. All code, widgets included, reports and
// waits through `host()`. This base class needs no display and no application object: messages go
// to standard error and are taken as confirmed, events are processed where there is an application,
// the beep does nothing, the pause and the clock are the real ones. Canvases bring a host with real
// boxes (platform/guihost.h); tests install one that records what it is asked and answers as told.
class Host {
public:
    virtual ~Host() = default;

    // Shows a modal box and returns when it is closed: true for Ok, false for Cancel or Escape.
    // `parent` may be null.
    virtual bool messageBox(BoxKind kind, const QString &title, const QString &text,
                            BoxButtons buttons = BoxButtons::Ok, QWidget *parent = nullptr);
    // Handles the toolkit's pending events; slots run inside the call. Enters the toolkit when a
    // millisecond has passed since the last time, and else returns at once: a search asks some
    // forty thousand times a second, entering costs more than a microsecond, a look at the clock a
    // fortieth of that, and nobody can tell a click answered a millisecond later.
    virtual void processEvents();
    virtual void beep();
    // Blocks for so many microseconds.
    virtual void pause(int microseconds);
    // A monotonic clock in milliseconds, from an arbitrary start.
    virtual qint64 clockMs();
    // A seed for the random generator: the current time in seconds.
    virtual unsigned int seed();

private:
    QElapsedTimer sinceEvents_; // invalid until events are processed for the first time
};

// The host in force; the display-free one until another is installed.
Host &host();

// Installs `replacement` (not owned; null brings the display-free host back) and returns the host
// that was in force.
Host *setHost(Host *replacement);

// Installs `substitute` (not owned) unless some host has been installed.
void substituteDisplayFreeHost(Host *substitute);

#endif
