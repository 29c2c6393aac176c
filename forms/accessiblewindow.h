// What the main form is to screen readers.
#ifndef FORMS_ACCESSIBLEWINDOW_H
#define FORMS_ACCESSIBLEWINDOW_H

// Lets every MainForm be a window, with its Announcer as the last child. As built, a plain widget
// is not even that.
void installAccessibleWindow();

#endif
