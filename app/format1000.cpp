#include "app/format1000.h"

QString format1000(int n) {
    constexpr int group = 1000;
    QString groups;
    for (qint64 rest = qAbs<qint64>(n); rest > 0; rest /= group)
        groups.prepend(QStringLiteral("%1 ").arg(rest % group, 3, 10, QLatin1Char('0')));
    return n < 0 ? QLatin1Char('-') + groups : groups;
}
