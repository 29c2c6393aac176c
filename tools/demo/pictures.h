// The pictures of the game in docs/.
#ifndef TOOLS_DEMO_PICTURES_H
#define TOOLS_DEMO_PICTURES_H

class GameWindow;
class QString;

// Opens the window and takes its picture three times: as start.png at the start, as settings.png
// with the settings dialog open, and as capture.png while a man takes five, after a short game
// between two people. All by taps; false, told on standard output, as soon as something does not
// happen. The pictures go to `folder`, which must exist.
bool takePictures(GameWindow &game, const QString &folder);

#endif
