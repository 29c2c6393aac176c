// Announcer: what a screen reader is to say of its own accord.
#ifndef FORMS_ANNOUNCER_H
#define FORMS_ANNOUNCER_H

#include <QObject>
#include <QStringList>
#include <QTimer>

class QWidget;

// A notification in the accessible tree of a window, of which it is a child without a place on the
// screen. The toolkit has no announcements yet; what screen readers speak all the same is a
// notification that begins to show. What happens is noted and told in one go when the player can
// act on it: readers drop what they are saying for the next announcement.
class Announcer : public QObject {
    Q_OBJECT

public:
    // Belongs to the window, whose accessible interface has to list it as a child.
    explicit Announcer(QWidget *window);

    // Kept for the next announcement.
    void note(const QString &sentence);
    // Says the notes and then this, unless something else is noted or announced within half a
    // second. The notes are said with that then: one thing at once would cut the other off. Where
    // two notes wait already it is said at once: of the computer's games against itself.
    void announceLater(const QString &sentence);
    // Says the notes and then this.
    void announce(const QString &sentence);
    // As announce(), but without notes it does not say the same again.
    void remind(const QString &sentence);

    // The last announcement.
    QString text() const { return text_; }

private:
    QTimer later_;
    QString laterSentence_;
    QStringList notes_;
    QString sentence_; // what `text_` ends with
    QString text_;
};

#endif
