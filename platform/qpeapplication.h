// QPEApplication: the application object of the handheld's window system, on a desktop.
#ifndef PLATFORM_QPEAPPLICATION_H
#define PLATFORM_QPEAPPLICATION_H

#include "platform/dialogcontrols.h"
#include "platform/formwindows.h"
#include "platform/translations.h"

#include <QApplication>

// Makes a desktop fit for the forms: prepares the display (see displaysetup.h), tells the desktop
// who the program is (see programidentity.h), takes a compact style and 9 points for the default
// font (also for one that the desktop's theme brings later), gives modal form dialogs their
// controls (see dialogcontrols.h), lets them be maximised on Wayland (see formwindows.h),
// speaks the user's language (see translations.h) and provides real boxes (see guihost.h).
class QPEApplication : public QApplication {
    Q_OBJECT

public:
    // A program that draws windows on a display that someone else runs: the only kind there is.
    enum Type { GuiClient };

    // `argc` and `argv` must outlive the application.
    QPEApplication(int &argc, char **argv, Type type = GuiClient);

protected:
    bool event(QEvent *e) override;

private:
    void keepPointSize();

    DialogControls dialogControls_;
    MaximisedSizes maximisedSizes_;
    Translations translations_;
};

#endif
