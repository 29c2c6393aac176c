#include "platform/displaysetup.h"

#include <QGuiApplication>
#include <QScreen>

#include <optional>
#include <vector>

namespace {

constexpr QSize formSize(240, 320);
// From this many pixels on, in width and height, two screen pixels a form pixel are still tiny.
constexpr int veryLargeScreen = 1440;

constexpr const char *fontDpi = "QT_FONT_DPI";
constexpr const char *scaleFactor = "QT_SCALE_FACTOR";
constexpr const char *screenScaleFactors = "QT_SCREEN_SCALE_FACTORS";

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
QSize primaryScreenSize(int argc, char **argv) {
    const HiddenVariable session("SESSION_MANAGER");
    const HiddenVariable launch("DESKTOP_STARTUP_ID");
    std::vector<char *> arguments(argv, argv + argc);
    arguments.push_back(nullptr);
    const QGuiApplication onlooker(argc, arguments.data());
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->size() : QSize();
}

} // namespace

int formScaleFactor(QSize screen) {
    const int shortSide = qMin(screen.width(), screen.height());
    if (shortSide >= veryLargeScreen)
        return 3;
    const QSize doubled = formSize * 2;
    return screen.width() >= doubled.width() && screen.height() >= doubled.height() ? 2 : 1;
}

void prepareDisplay(int argc, char **argv) {
    // Read once by the toolkit, so it has to be there before the screen is looked at.
    if (!qEnvironmentVariableIsSet(fontDpi))
        qputenv(fontDpi, "72");
    if (qEnvironmentVariableIsSet(scaleFactor) || qEnvironmentVariableIsSet(screenScaleFactors))
        return;
    qputenv(scaleFactor, QByteArray::number(formScaleFactor(primaryScreenSize(argc, argv))));
}
