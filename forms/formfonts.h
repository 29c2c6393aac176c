// How the forms change single properties of their widgets' fonts.
#ifndef FORMS_FORMFONTS_H
#define FORMS_FORMFONTS_H

#include <QFont>
#include <QWidget>

// Each takes the widget's font as it is, inherited properties included, and sets one property.
namespace formfonts {

inline void setPointSize(QWidget *widget, int points) {
    QFont font = widget->font();
    font.setPointSize(points);
    widget->setFont(font);
}

inline void setBold(QWidget *widget) {
    QFont font = widget->font();
    font.setWeight(QFont::Bold);
    widget->setFont(font);
}

inline void setFamily(QWidget *widget, const QString &family) {
    QFont font = widget->font();
    font.setFamily(family);
    widget->setFont(font);
}

} // namespace formfonts

#endif
