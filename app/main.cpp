// The program: its command line, one application object, one main window, the event loop.

#include "app/draughts.h"
#include "platform/commandline.h"
#include "platform/qpeapplication.h"

int main(int argc, char **argv) {
    if (const std::optional<int> status = obeyCommandLine(argc, argv))
        return *status;
    QPEApplication application(argc, argv, QPEApplication::GuiClient);
    // The window lives as long as the process; it is left to its end.
    auto *window = new Draughts(nullptr, nullptr);
    window->show();
    QObject::connect(&application, &QPEApplication::lastWindowClosed, &application,
                     &QPEApplication::quit);
    return QPEApplication::exec();
}
