#include "rules/legalmove.h"

LegalMove::LegalMove(const XY &from, const XY &to) {
    path.resize(2);
    path[0] = from;
    path[1] = to;
}

void LegalMove::insPath(const XY &square, int i) {
    path.resize(i + 1);
    path[i] = square;
}

void LegalMove::insTaken(const XY &square, int i) {
    taken.resize(i + 1);
    taken[i] = square;
}

int LegalMove::comparePart(const QArray<XY> *part, XY &next) const {
    if (part->size() > path.size())
        return 0;
    for (unsigned i = 0; i < part->size(); ++i) {
        if (!((*part)[i] == path[i]))
            return 0;
    }
    if (part->size() == path.size())
        return 2;
    next = path[part->size()];
    return 1;
}

void LegalMove::ToString(QString &s) const {
    s = XYtoString(from()) + "->" + XYtoString(to());
}

QString LegalMove::XYtoString(const XY &square) {
    return QString("(%1,%2)").arg(square.x).arg(square.y);
}
