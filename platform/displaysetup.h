// What the forms' 240 x 320 pixels become on the screen at hand.
#ifndef PLATFORM_DISPLAYSETUP_H
#define PLATFORM_DISPLAYSETUP_H

#include <QSize>

// The main form's pixels, and at the same time the screen for which all forms are laid out.
inline constexpr QSize formSize(240, 320);

// How large the window shall be: as suits the screen, half as large again as far as that fits, or
// two thirds of it.
enum class WindowSize { Suitable, Larger, Smaller };

// The screen's pixels a pixel of a form, in quarter steps and never below 1. Suitable are 3 on very
// large screens, 2 where 480 x 640 pixels fit, otherwise what leaves room for a title bar. `screen`
// is the whole screen, `free` what panels leave of it (1 for empty sizes), in the units that the
// desktop gives to programs; a scale of its own comes on top.
double formScaleFactor(QSize screen, QSize free, WindowSize wish = WindowSize::Suitable);

// Sets the toolkit's environment for the forms: fonts at 72 dots an inch, whatever the desktop has
// set, and the scale factor. Of what is set already a factor stays, unless the wish is another than
// Suitable. Must run before the application object is made; looks at the screen through a
// short-lived one of its own, to which it hands a copy of the arguments.
void prepareDisplay(int argc, char **argv, WindowSize wish = WindowSize::Suitable);

// Whether forms can be drawn at the factor: a quarter step from 1 to 8.
bool isFormScale(double factor);
// Puts such a factor in place of the one that suits the screen.
void chooseFormScale(double factor);

#endif
