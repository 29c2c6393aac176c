#include "platform/qpeapplication.h"

#include "platform/compactstyle.h"
#include "platform/displaysetup.h"
#include "platform/guihost.h"
#include "platform/programidentity.h"

#include <QEvent>
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
    keepPointSize();
    installEventFilter(&dialogControls_);
    if (platformName().startsWith("wayland"))
        installEventFilter(&maximisedSizes_);
}

bool QPEApplication::event(QEvent *e) {
    const bool handled = QApplication::event(e);
    if (e->type() == QEvent::ApplicationFontChange)
        keepPointSize();
    return handled;
}

void QPEApplication::keepPointSize() {
    QFont ours = font();
    if (ours.pointSize() == defaultPointSize)
        return;
    ours.setPointSize(defaultPointSize);
    setFont(ours);
}
