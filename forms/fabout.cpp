#include "forms/fabout.h"

#include "forms/formfonts.h"
#include "forms/image0.xpm"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QSpacerItem>
#include <QVBoxLayout>

namespace {

constexpr int formMargin = 11;
constexpr int formSpacing = 6;
constexpr int creditsPoints = 10;

QSpacerItem *newSpacer() {
    return new QSpacerItem(20, 20, QSizePolicy::Expanding, QSizePolicy::Minimum);
}

} // namespace

fabout::fabout(QWidget *parent, const char *name, bool modal, WFlags fl) : QDialog(parent, fl) {
    setObjectName(QString::fromUtf8(name != nullptr ? name : "fabout"));
    setModal(modal);
    resize(220, 224);
    setMinimumSize(220, 200);
    setMaximumSize(220, 260);
    setWindowTitle(tr("About"));
    formLayout = new QVBoxLayout(this);
    formLayout->setContentsMargins(formMargin, formMargin, formMargin, formMargin);
    formLayout->setSpacing(formSpacing);

    addTitle();
    addPicture();
    addCredits();
    setFonts();
}

fabout::~fabout() = default;

bool fabout::event(QEvent *e) {
    const bool handled = QDialog::event(e);
    if (e->type() == QEvent::ApplicationFontChange)
        setFonts();
    return handled;
}

void fabout::addTitle() {
    TextLabel1 = new QLabel(tr("Tavlora v 1.0.3"), this);
    TextLabel1->setObjectName(QStringLiteral("TextLabel1"));
    TextLabel1->setAlignment(Qt::AlignCenter);
    formLayout->addWidget(TextLabel1);
}

// Centred in its row, the picture keeps its own size, and so its pixels, in a higher dialog.
void fabout::addPicture() {
    pictureLayout = new QHBoxLayout;
    pictureLayout->setContentsMargins(0, 0, 0, 0);
    pictureLayout->setSpacing(formSpacing);
    formLayout->addLayout(pictureLayout);

    PixmapLabel1 = new QLabel(this);
    PixmapLabel1->setObjectName(QStringLiteral("PixmapLabel1"));
    PixmapLabel1->setPixmap(QPixmap(image0_data));
    PixmapLabel1->setScaledContents(true);
    PixmapLabel1->setAccessibleName(tr("A king and a man on the board"));
    pictureLayout->addItem(newSpacer());
    pictureLayout->addWidget(PixmapLabel1, 0, Qt::AlignVCenter);
    pictureLayout->addItem(newSpacer());
}

void fabout::addCredits() {
    TextLabel6 = new QLabel(tr("A game of draughts for one, two or no players. "
                               "Rules, search and drawing by the Tavlora project; "
                               "windows and painting by Qt."),
                            this);
    TextLabel6->setObjectName(QStringLiteral("TextLabel6"));
    TextLabel6->setWordWrap(true);
    formLayout->addWidget(TextLabel6);
}

void fabout::setFonts() {
    formfonts::setFamily(TextLabel1, QStringLiteral("adobe-helvetica"));
    formfonts::setBold(TextLabel1);
    formfonts::setPointSize(TextLabel6, creditsPoints);
}
