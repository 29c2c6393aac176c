// One move of the real program and the computer's answer.
#ifndef TOOLS_DEMO_ONEMOVE_H
#define TOOLS_DEMO_ONEMOVE_H

class GameWindow;
class QString;

// Opens the window, taps a white man and one of its targets, waits for the computer's answer, saves
// a picture of the window as `picturePath` and closes it. What happened is read from the window's
// pixels and told on standard output. False as soon as something does not happen.
bool playOneMove(GameWindow &game, const QString &picturePath);

#endif
