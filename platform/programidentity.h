// Who the program is to the desktop.
#ifndef PLATFORM_PROGRAMIDENTITY_H
#define PLATFORM_PROGRAMIDENTITY_H

// Ties the application's windows to its desktop file (packaging/tavlora.desktop), by which desktops
// find name and menu entry, and gives them the program's icon: the desktop theme's when the program
// is installed, one built into the program otherwise. For an application object that exists.
void identifyProgram();

#endif
