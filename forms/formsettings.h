// formsettings: the settings dialog with its defaults and the player's choices.
#ifndef FORMS_FORMSETTINGS_H
#define FORMS_FORMSETTINGS_H

#include "forms/fsettings.h"

// The fields follow what the player picks while the dialog is open; items that the program sets do
// not change them. They keep their values when the dialog is rejected: whoever ran it puts them
// back. Who plays is not stored, it is read from cmbPlayers.
class formsettings : public fsettings {
    Q_OBJECT

public:
    // `name` is the object name; null stands for "fsettings".
    explicit formsettings(QWidget *parent = nullptr, const char *name = nullptr,
                          bool modal = false);

    int rulesIndex = 0; // item of cmbRules
    int sizeIndex = 0;  // item of cmbSize
    int levelIndex = 0; // item of cmbLevel
    bool giveAway = false;

public slots:
    // What a fresh dialog shows: in the widgets and in the fields.
    void setDefaults();
    void setRules(int i);
    void setBSize(int i);
    void setLevel(int i);
    // `state` is a Qt::CheckState; the undecided one changes nothing.
    void setGiveAway(int state);
};

#endif
