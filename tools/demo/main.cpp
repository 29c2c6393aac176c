// The driver of the demonstration: works the real program on the display in DISPLAY.
#include "tools/demo/gamewindow.h"
#include "tools/demo/onemove.h"
#include "tools/demo/pictures.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments == QStringList{"--probe"}) {
        return XDisplay().isConnected() ? 0 : 1;
    }
    const bool pictures = arguments.value(0) == "--pictures";
    if (pictures) {
        arguments.removeFirst();
    }
    if (arguments.size() < 2) {
        QTextStream(stderr)
            << "usage: tavlora-demo PICTURE PROGRAM [ARGUMENT...]            one move, a picture\n"
               "       tavlora-demo --pictures FOLDER PROGRAM [ARGUMENT...]  those of docs/\n"
               "       tavlora-demo --probe                                  is there an X "
               "display?\n";
        return 2;
    }
    GameWindow game(arguments[1], arguments.mid(2));
    return (pictures ? takePictures : playOneMove)(game, arguments[0]) ? 0 : 1;
}
