#include "forms/mainform.h"

#include "forms/accessiblewindow.h"
#include "forms/announcer.h"
#include "forms/formfonts.h"
#include "platform/displaysetup.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QWindow>

namespace {

// "As high or wide as it likes" in the forms' terms.
constexpr int unlimited = 32767;

constexpr int smallPoints = 8;
constexpr int forwardPoints = 9;

// Not the button's own shortcut, which presses it for a tenth of a second first. A key that is held
// down counts once: by its repeats it would answer the question that NewGame asks, or break off the
// other side's thinking as well. The toolkit passes over buttons that are hidden or disabled. Who
// hears the button's name need not hear it again.
void addKeys(QPushButton *button, const QList<QKeySequence> &keys) {
    auto *shortcut = new QShortcut(button);
    shortcut->setKeys(keys);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    const QString names = QKeySequence::listToString(keys, QKeySequence::NativeText);
    const QString spoken = button->accessibleName();
    button->setToolTip(
        QStringLiteral("%1 (%2)").arg(spoken.isEmpty() ? button->text() : spoken, names));
    if (button->accessibleDescription().isEmpty())
        button->setAccessibleDescription(names);
}

} // namespace

MainForm::MainForm(QWidget *parent, const char *name, WFlags fl)
    : QWidget(parent, fl), announcer(new Announcer(this)) {
    installAccessibleWindow();
    setUpWindow(name);
    addUpperRow();
    addLowerRow();
    setFonts();
    nameControls();
    giveKeys();
}

MainForm::~MainForm() = default;

bool MainForm::event(QEvent *e) {
    if (e->type() == QEvent::Resize)
        centreControls();
    const bool handled = QWidget::event(e);
    if (e->type() == QEvent::ApplicationFontChange)
        setFonts();
    // The toolkit does not hand it on; without it window managers round the size to whole pixels of
    // the form, counted from nowhere.
    if (e->type() == QEvent::WinIdChange && windowHandle() != nullptr)
        windowHandle()->setBaseSize(baseSize());
    return handled;
}

QPoint MainForm::formOrigin() const {
    return {qMax(width() - formSize.width(), 0) / 2, qMax(height() - formSize.height(), 0) / 2};
}

// They have been placed for the origin before.
void MainForm::centreControls() {
    const QPoint shift = formOrigin() - controlsOrigin_;
    controlsOrigin_ += shift;
    for (QWidget *control :
         std::initializer_list<QWidget *>{btnSettings, Layout8->parentWidget(), btnAbout, btnBreak,
                                          btnForce, btnNewGame, labelScore, lblThinking})
        control->move(control->pos() + shift);
}

// What the button that has the focus has no use for itself: the toolkit leaves Return to dialogs.
void MainForm::keyPressEvent(QKeyEvent *e) {
    auto *button = qobject_cast<QPushButton *>(focusWidget());
    const bool isReturn = e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter;
    if (isReturn && button != nullptr && !e->isAutoRepeat())
        button->click();
    else
        QWidget::keyPressEvent(e);
}

void MainForm::setUpWindow(const char *name) {
    setObjectName(QString::fromUtf8(name != nullptr ? name : "MainForm"));
    resize(formSize);
    setMinimumSize(240, 310);
    setMaximumSize(formSize);
    setBaseSize(formSize);
    setWindowFlag(Qt::WindowMaximizeButtonHint, false); // there is nothing to fill a screen with
    QSizePolicy policy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    policy.setHeightForWidth(sizePolicy().hasHeightForWidth());
    setSizePolicy(policy);
    setWindowTitle(tr("tavlora v1.0.3"));
}

QPushButton *MainForm::addButton(QWidget *owner, const char *name, const QString &text) {
    auto *button = new QPushButton(text, owner);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

void MainForm::addUpperRow() {
    btnSettings = addButton(this, "btnSettings", tr("Settings"));
    btnSettings->setGeometry(185, 235, 50, 22);
    btnSettings->setMaximumSize(50, unlimited);

    auto *steps = new QWidget(this);
    steps->setObjectName(QStringLiteral("Layout8"));
    steps->setGeometry(0, 235, 48, 24);
    Layout8 = new QHBoxLayout(steps);
    Layout8->setContentsMargins(0, 0, 0, 0);
    Layout8->setSpacing(6);
    btnPrev = addButton(steps, "btnPrev", tr("<<"));
    btnPrev->setMaximumSize(20, 22);
    Layout8->addWidget(btnPrev);
    btnFwd = addButton(steps, "btnFwd", tr(">>"));
    btnFwd->setMaximumSize(20, 22);
    Layout8->addWidget(btnFwd);

    btnAbout = addButton(this, "btnAbout", tr("About"));
    btnAbout->setGeometry(85, 235, 40, 22);
    btnAbout->setMaximumSize(40, unlimited);
    addBreak();

    btnForce = addButton(this, "btnForce", tr("Force Move"));
    btnForce->setGeometry(130, 235, 60, 22);
    btnForce->setMaximumSize(60, 22);
    btnForce->setFlat(false);
}

void MainForm::addBreak() {
    // While it shows, the other buttons are disabled: with the focus on it, Space would press it.
    btnBreak = addButton(this, "btnBreak", tr("BREAK"));
    btnBreak->setGeometry(55, 235, 40, 22);
    btnBreak->setMaximumSize(40, 22);
    btnBreak->setEnabled(true);
    btnBreak->setFocusPolicy(Qt::NoFocus);
}

void MainForm::addLowerRow() {
    btnNewGame = addButton(this, "btnNewGame", tr("NewGame"));
    btnNewGame->setGeometry(0, 260, 60, 22);
    btnNewGame->setMaximumSize(60, unlimited);

    labelScore = new QLabel(tr(" 12/12"), this);
    labelScore->setObjectName(QStringLiteral("labelScore"));
    labelScore->setGeometry(69, 261, 34, 22);
    labelScore->setAlignment(Qt::AlignCenter);
    labelScore->setToolTip(tr("On Board"));

    lblThinking = new QLabel(tr("**** THINKING ****"), this);
    lblThinking->setObjectName(QStringLiteral("lblThinking"));
    lblThinking->setGeometry(115, 260, 115, 22);
    lblThinking->setMaximumSize(150, unlimited);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(lblThinking->sizePolicy().hasHeightForWidth());
    lblThinking->setSizePolicy(policy);
    lblThinking->setScaledContents(false);
    lblThinking->setAlignment(Qt::AlignCenter);
}

void MainForm::setFonts() {
    for (QPushButton *button : {btnSettings, btnPrev, btnAbout, btnBreak, btnForce, btnNewGame})
        formfonts::setPointSize(button, smallPoints);
    formfonts::setPointSize(btnFwd, forwardPoints);
    formfonts::setBold(lblThinking);
}

// What the texts alone do not tell those who hear them.
void MainForm::nameControls() {
    btnPrev->setAccessibleName(tr("One move back"));
    btnFwd->setAccessibleName(tr("One move forward"));
    btnBreak->setAccessibleDescription(
        tr("Plays the best move found so far; so does the Escape key."));
    btnForce->setAccessibleDescription(tr("Lets the computer move for the side to move."));
}

void MainForm::giveKeys() {
    addKeys(btnPrev, {Qt::CTRL | Qt::Key_Z, Qt::ALT | Qt::Key_Left});
    addKeys(btnFwd, {Qt::CTRL | Qt::Key_Y, Qt::ALT | Qt::Key_Right});
    addKeys(btnAbout, {Qt::Key_F1});
    addKeys(btnBreak, {Qt::Key_Escape});
    addKeys(btnNewGame, {Qt::CTRL | Qt::Key_N});
    auto *quit = new QShortcut(Qt::CTRL | Qt::Key_Q, this);
    connect(quit, &QShortcut::activated, this, &QWidget::close);
}

// Each is put right behind the board. Put behind one another they could stay where they are: the
// toolkit leaves alone what follows on the other round the circle, though the window, where Tab
// begins, lies between them.
void MainForm::orderControls(QWidget *board) {
    for (QWidget *control : {btnNewGame, btnSettings, btnForce, btnAbout, btnFwd, btnPrev})
        setTabOrder(board, control);
}
