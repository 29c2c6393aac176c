// fsettings: the layout of the settings dialog.
#ifndef FORMS_FSETTINGS_H
#define FORMS_FSETTINGS_H

#include "platform/wflags.h"

#include <QDialog>
#include <QStringList>

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;

// The items of the players' combo box.
enum PlayersItem { humanComputer = 0, humanHuman = 1, computerComputer = 2 };

// Four rows of a label and a combo box, and a check box. It keeps no choice of its own and has no
// OK or Cancel: those come from the window system. The children belong to the dialog.
class fsettings : public QDialog {
    Q_OBJECT

public:
    // `name` is the object name; null stands for "fsettings".
    explicit fsettings(QWidget *parent = nullptr, const char *name = nullptr, bool modal = false,
                       WFlags fl = WFlags());
    ~fsettings() override;

    QLabel *TextLabel1_2;
    QComboBox *cmbRules;
    QLabel *TextLabel1_2_2;
    QComboBox *cmbSize;
    QLabel *TextLabel1;
    QComboBox *cmbLevel;
    QLabel *TextLabelP;
    QComboBox *cmbPlayers;
    QCheckBox *chGiveAway;

protected:
    QVBoxLayout *formLayout;
    QHBoxLayout *rulesLayout;
    QHBoxLayout *sizeLayout;
    QHBoxLayout *levelLayout;
    QHBoxLayout *playersLayout;

    // Sets all choosers to what they show as built.
    void showDefaults();
    // Sets the children's fonts again when the application's font changes.
    bool event(QEvent *e) override;

private:
    QLabel *addLabel(const char *name, const QString &text);
    QComboBox *addCombo(const char *name, const QLabel *label, const QStringList &items,
                        const QString &toolTip);
    QHBoxLayout *addRow(QLabel *label, QComboBox *combo);
    void addRulesAndSize();
    void addLevelAndPlayers();
    void setFonts();
    void alignChoosers();
};

#endif
