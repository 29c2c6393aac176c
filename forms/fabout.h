// fabout: the about box.
#ifndef FORMS_FABOUT_H
#define FORMS_FABOUT_H

#include "platform/wflags.h"

#include <QDialog>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

// The program's name and version, a picture and the credits. The children belong to the dialog.
class fabout : public QDialog {
    Q_OBJECT

public:
    // `name` is the object name; null stands for "fabout".
    explicit fabout(QWidget *parent = nullptr, const char *name = nullptr, bool modal = false,
                    WFlags fl = WFlags());
    ~fabout() override;

    QLabel *TextLabel1;   // title
    QLabel *PixmapLabel1; // picture
    QLabel *TextLabel6;   // credits

protected:
    QVBoxLayout *formLayout;
    QHBoxLayout *pictureLayout;

    // Sets the title's and the credits' fonts again when the application's font changes.
    bool event(QEvent *e) override;

private:
    void addTitle();
    void addPicture();
    void addCredits();
    void setFonts();
};

#endif
