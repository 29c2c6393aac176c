#include "platform/qpeapplication.h"

#include "platform/compactstyle.h"
#include "platform/displaysetup.h"
#include "platform/guihost.h"
#include "platform/programidentity.h"

#include <QFont>

namespace {

constexpr int defaultPointSize = 9;

// To be called on the way into the toolkit's constructor, which reads the environment.
int &withDisplayPrepared(int &argc, char **argv) {
    prepareDisplay(argc, argv);
    return argc;
}

} // namespace

QPEApplication::QPEApplication(int &argc, char **argv, Type)
    : QApplication(withDisplayPrepared(argc, argv), argv) {
    GuiHost::provide();
    identifyProgram();
    if (!qEnvironmentVariableIsSet("QT_STYLE_OVERRIDE"))
        setStyle(new CompactStyle);
    QFont defaultFont = font();
    defaultFont.setPointSize(defaultPointSize);
    setFont(defaultFont);
    installEventFilter(&dialogControls_);
}
