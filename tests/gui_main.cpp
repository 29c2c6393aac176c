// The main of every test that shows widgets: the program's own application object, so that the
// forms have the style, fonts and dialog controls that they are shipped with.
#include "platform/qpeapplication.h"

#include <gtest/gtest.h>

namespace {

// A developer's own settings must not move pixels or change texts that tests look at.
void prepareToolkit() {
    qputenv("QT_SCALE_FACTOR", "1");
    qunsetenv("QT_STYLE_OVERRIDE");
    for (const char *language : {"LANGUAGE", "LC_ALL", "LANG"})
        qputenv(language, "C");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace

int main(int argc, char *argv[]) {
    testing::InitGoogleTest(&argc, argv);
    prepareToolkit();
    const QPEApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
