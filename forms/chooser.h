// Chooser: a combo box that is heard with its label and its choice.
#ifndef FORMS_CHOOSER_H
#define FORMS_CHOOSER_H

#include <QComboBox>

// Readers that find a label's relation to a combo box say the label and leave out the choice, and
// do not speak of another choice without a value. This one has both in its name, takes and tells
// the index as its value, of whose changes the toolkit tells, and goes on by one or back by one as
// an action. A choice made so is the player's: it is activated.
class Chooser : public QComboBox {
    Q_OBJECT

public:
    // `label` is what stands before it on the form.
    Chooser(const QString &label, QWidget *parent);

    // As if the player had picked it; an index that is no item is ignored.
    void pick(int index);
};

#endif
