#include "platform/displaysetup.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>
#include <optional>
#include <vector>

namespace {

// At quarter steps every pixel of a form keeps clear edges, and larger windows fit no screen.
constexpr int stepsAPixel = 4;
constexpr double largestFactor = 8;
// What title bars take of the screen's height.
constexpr int titleBar = 40;
// From this many pixels on, in width and height, two screen pixels a form pixel are still tiny.
constexpr int veryLargeScreen = 1440;

constexpr const char *fontDpi = "QT_FONT_DPI";
constexpr const char *scaleFactor = "QT_SCALE_FACTOR";

// Takes a variable out of the environment for as long as it lives.
class HiddenVariable {
public:
    explicit HiddenVariable(const char *variable) : name_(variable) {
        if (qEnvironmentVariableIsSet(name_))
            value_ = qgetenv(name_);
        qunsetenv(name_);
    }
    ~HiddenVariable() {
        if (value_)
            qputenv(name_, *value_);
    }
    HiddenVariable(const HiddenVariable &) = delete;
    HiddenVariable &operator=(const HiddenVariable &) = delete;

private:
    const char *name_;
    std::optional<QByteArray> value_;
};

// The toolkit tells the screen's size only to an application object. This one goes before the real
// one comes; the desktop's session and launch feedback are not for it.
double factorForThisScreen(int argc, char **argv, WindowSize wish) {
    const HiddenVariable session("SESSION_MANAGER");
    const HiddenVariable launch("DESKTOP_STARTUP_ID");
    const HiddenVariable factorBefore(scaleFactor);
    std::vector<char *> arguments(argv, argv + argc);
    arguments.push_back(nullptr);
    const QGuiApplication onlooker(argc, arguments.data());
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? formScaleFactor(screen->size(), screen->availableSize(), wish) : 1;
}

double quarterStep(double factor) {
    return qMax(std::floor(factor * stepsAPixel) / stepsAPixel, 1.0);
}

double largestThatFits(QSize space) {
    return quarterStep(
        qMin(double(space.width()) / formSize.width(), double(space.height()) / formSize.height()));
}

QSize belowTitleBar(QSize space) {
    return space - QSize(0, titleBar);
}

double suitableFactor(QSize screen, QSize free) {
    if (qMin(screen.width(), screen.height()) >= veryLargeScreen)
        return 3;
    return largestThatFits(free) >= 2 ? 2 : largestThatFits(belowTitleBar(free));
}

} // namespace

double formScaleFactor(QSize screen, QSize free, WindowSize wish) {
    const double suitable = suitableFactor(screen, free);
    switch (wish) {
    case WindowSize::Larger:
        return qMax(suitable,
                    qMin(quarterStep(suitable * 3 / 2), largestThatFits(belowTitleBar(free))));
    case WindowSize::Smaller:
        return quarterStep(suitable * 2 / 3);
    case WindowSize::Suitable:
        break;
    }
    return suitable;
}

void prepareDisplay(int argc, char **argv, WindowSize wish) {
    // Read once by the toolkit, so it has to be there before the screen is looked at.
    qputenv(fontDpi, "72");
    if (wish != WindowSize::Suitable || !qEnvironmentVariableIsSet(scaleFactor))
        chooseFormScale(factorForThisScreen(argc, argv, wish));
}

bool isFormScale(double factor) {
    return factor == quarterStep(factor) && factor <= largestFactor;
}

void chooseFormScale(double factor) {
    qputenv(scaleFactor, QByteArray::number(factor));
}
