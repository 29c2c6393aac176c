#include "forms/announcer.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QWidget>

#include <utility>

namespace {

constexpr int holdMs = 500;

class Notification : public QAccessibleObject {
public:
    explicit Notification(Announcer *announcer) : QAccessibleObject(announcer) {}

    QAccessibleInterface *parent() const override {
        return QAccessible::queryAccessibleInterface(object()->parent());
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QWindow *window() const override { return parent()->window(); }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? static_cast<Announcer *>(object())->text() : QString();
    }
};

QAccessibleInterface *newNotification(const QString &, QObject *object) {
    auto *announcer = qobject_cast<Announcer *>(object);
    return announcer != nullptr ? new Notification(announcer) : nullptr;
}

void tell(QObject *object, QAccessible::Event what) {
    QAccessibleEvent event(object, what);
    QAccessible::updateAccessibility(&event);
}

} // namespace

Announcer::Announcer(QWidget *window) : QObject(window) {
    QAccessible::installFactory(newNotification);
    later_.setSingleShot(true);
    later_.setInterval(holdMs);
    connect(&later_, &QTimer::timeout, this, [this] { announce(laterSentence_); });
}

void Announcer::note(const QString &sentence) {
    later_.stop();
    notes_ << sentence;
}

void Announcer::announceLater(const QString &sentence) {
    laterSentence_ = sentence;
    if (notes_.size() < 2)
        later_.start();
    else
        announce(sentence);
}

// Readers that keep a copy of the name renew it when they are told to.
void Announcer::announce(const QString &sentence) {
    note(sentence);
    sentence_ = sentence;
    text_ = std::exchange(notes_, {}).join(QLatin1Char(' '));
    tell(this, QAccessible::NameChanged);
    tell(this, QAccessible::ObjectShow);
}

void Announcer::remind(const QString &sentence) {
    later_.stop();
    if (!notes_.isEmpty() || sentence != sentence_)
        announce(sentence);
}
