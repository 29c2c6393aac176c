#include "platform/compactstyle.h"

#include <QDialogButtonBox>

CompactStyle::CompactStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

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
