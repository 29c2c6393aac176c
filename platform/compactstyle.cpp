#include "platform/compactstyle.h"

#include <QDialogButtonBox>
#include <QPainter>
#include <QStyleOption>

CompactStyle::CompactStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void CompactStyle::drawControl(ControlElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const {
    if (element != CE_FocusFrame) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setPen(QPen(option->palette.color(QPalette::Highlight), 2));
    painter->drawRect(option->rect.adjusted(1, 1, -1, -1));
    painter->restore();
}

int CompactStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returnData) const {
    switch (hint) {
    case SH_DialogButtonLayout:
        return QDialogButtonBox::WinLayout;
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}
