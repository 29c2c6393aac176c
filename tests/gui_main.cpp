// The main of every test that shows widgets.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>

namespace {

// The forms are laid out for a screen of 72 dpi; a developer's own setting must not move pixels
// that tests look at.
void prepareToolkit() {
    qputenv("QT_FONT_DPI", "72");
    qunsetenv("QT_SCALE_FACTOR");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

} // namespace

int main(int argc, char *argv[]) {
    testing::InitGoogleTest(&argc, argv);
    prepareToolkit();
    QApplication application(argc, argv);
    QFont font = QApplication::font();
    font.setPointSize(9);
    QApplication::setFont(font);
    return RUN_ALL_TESTS();
}
