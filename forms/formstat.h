// formStat: the figures of the computer's last search.
#ifndef FORMS_FORMSTAT_H
#define FORMS_FORMSTAT_H

#include "platform/wflags.h"

#include <QDialog>

class QLabel;

// Captions on the left and values on the right, at fixed places. Every value reads "0" until the
// caller, who also formats the numbers, sets its text. The labels belong to the dialog.
class formStat : public QDialog {
    Q_OBJECT

public:
    // `name` is the object name; null stands for "formStat".
    explicit formStat(QWidget *parent = nullptr, const char *name = nullptr, bool modal = false,
                      WFlags fl = WFlags());
    ~formStat() override;

    QLabel *TextLabel2;
    QLabel *llTime;
    QLabel *TextLabel2_2;
    QLabel *TextLabel2_2_2;
    QLabel *lMaxLevel; // deepest level reached
    QLabel *TextLabel2_2_2_2;
    QLabel *lNodes;          // nodes searched
    QLabel *lMovesGenerated; // moves generated
    QLabel *lTime;           // thinking time
    QLabel *lScoresCalculated;
    QLabel *labelEScore; // estimated score
    QLabel *TextLabel1_2_4;

protected:
    // Makes the bold labels bold again when the application's font changes.
    bool event(QEvent *e) override;

private:
    QLabel *addLabel(const char *name, const QRect &place, const QString &text);
    void setFonts();
};

#endif
