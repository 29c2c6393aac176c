#include "base/host.h"

#include <QCoreApplication>
#include <QTextStream>

#include <chrono>
#include <cstdio>
#include <ctime>
#include <thread>

namespace {

Host displayFreeHost;
Host *installed = &displayFreeHost;

} // namespace

bool Host::messageBox(BoxKind, const QString &title, const QString &text, BoxButtons, QWidget *) {
    QTextStream(stderr) << title << ": " << text << '\n';
    return true;
}

void Host::processEvents() {
    constexpr qint64 pauseNs = 1000000;
    if (QCoreApplication::instance() == nullptr ||
        (sinceEvents_.isValid() && sinceEvents_.nsecsElapsed() < pauseNs))
        return;
    QCoreApplication::processEvents();
    sinceEvents_.start();
}

void Host::beep() {}

void Host::pause(int microseconds) {
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
}

qint64 Host::clockMs() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

unsigned int Host::seed() {
    return static_cast<unsigned int>(std::time(nullptr));
}

Host &host() {
    return *installed;
}

Host *setHost(Host *replacement) {
    Host *previous = installed;
    installed = replacement != nullptr ? replacement : &displayFreeHost;
    return previous;
}

void substituteDisplayFreeHost(Host *substitute) {
    if (installed == &displayFreeHost)
        setHost(substitute);
}
