// What the forms' 240 x 320 pixels become on the screen at hand.
#ifndef PLATFORM_DISPLAYSETUP_H
#define PLATFORM_DISPLAYSETUP_H

#include <QSize>

// The whole number of screen pixels that one pixel of a form takes on a screen of `screen` pixels:
// 3 on very large screens, 2 where 480 x 640 pixels fit, otherwise 1 (also for an empty size).
int formScaleFactor(QSize screen);

// Sets the toolkit's environment for the forms: fonts at 72 dots an inch and the scale factor of
// the primary screen. What the user has set in the environment stays. Must run before the
// application object is made; looks at the screen through a short-lived one of its own, to which
// it hands a copy of the arguments.
void prepareDisplay(int argc, char **argv);

#endif
