#include "search/hashtable.h"

#include "base/host.h"
#include "search/score.h"

#include <QIODevice>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <limits>
#include <new>

namespace {

constexpr char indexLineMark[] = "//idx,score";

template <class T>
std::unique_ptr<T[]> allocate(int entries, const char *failure) {
    std::unique_ptr<T[]> array(new (std::nothrow) T[static_cast<unsigned>(entries)]);
    if (array == nullptr)
        host().messageBox(BoxKind::Information, "hashTable ", failure);
    return array;
}

// Bounds that differ from each other and that no window reaches.
void setUnreachableWindow(board &b) {
    b.hashAlpha = std::numeric_limits<int>::max();
    b.hashBeta = b.hashAlpha - 1;
}

// A position line of n x n squares: six fields, the last one two letters a square.
bool isPositionLine(const QString &line, int n) {
    const QStringList fields = line.split(' ', Qt::SkipEmptyParts);
    return !line.contains(indexLineMark) && fields.size() == 6 && fields[0].toInt() == n &&
           fields[5].size() == 2 * n * n;
}

} // namespace

hashTable::hashTable(int entries)
    : size(entries), count(0), Tboards(allocate<board>(entries, "can NOT alloc Tboards")),
      Tscore(allocate<int>(entries, "can NOT alloc Tscore")),
      Tempty(allocate<bool>(entries, "can NOT alloc Tempty")) {
    clear();
}

hashTable::~hashTable() = default;

void hashTable::clear() {
    count = 0;
    if (Tempty != nullptr)
        std::fill_n(Tempty.get(), size, true);
}

unsigned int hashTable::HKey(const board *b) const {
    return size > 0 ? b->HKey() % static_cast<unsigned int>(size) : 0;
}

bool hashTable::areEqual(const board *a, const board *b) {
    if (a->size != b->size)
        return false;
    for (int x = 0; x < a->size; ++x) {
        for (int y = 0; y < a->size; ++y) {
            if (((a->squares[x][y] ^ b->squares[x][y]) & codePiece) != 0)
                return false;
        }
    }
    return true;
}

int hashTable::find(const board *b, unsigned int &idx) const {
    idx = 0;
    const auto isSame = [&](unsigned int slot) { return areEqual(b, &Tboards[slot]); };
    if (!usable() || !probe(HKey(b), isSame, idx))
        return -1;
    return Tempty[idx] ? 0 : 1;
}

void hashTable::place(unsigned int idx, const board *b) {
    if (Tempty[idx])
        ++count;
    Tempty[idx] = false;
    Tscore[idx] = b->hashScore;
    Tboards[idx] = *b;
}

int hashTable::insert(const board *b) {
    unsigned int idx = 0;
    const int found = find(b, idx);
    if (found == -1 || (found == 1 && b->hashHorizon <= Tboards[idx].hashHorizon))
        return 0;
    if (found == 0) {
        place(idx, b);
        return 1;
    }
    // The stored position stays; its record is replaced.
    board &stored = Tboards[idx];
    Tscore[idx] = b->hashScore;
    stored.hashScore = b->hashScore;
    stored.hashHorizon = b->hashHorizon;
    stored.hashAlpha = b->hashAlpha;
    stored.hashBeta = b->hashBeta;
    return 1;
}

int hashTable::insert(const board *b, unsigned int idx) {
    if (!usable() || b->hashAlpha == b->hashBeta)
        return 0;
    place(idx, b);
    return 1;
}

void hashTable::chooseScore(const board *b, Score &s) const {
    unsigned int idx = 0;
    if (find(b, idx) == 1 && Tboards[idx].hashHorizon > s.depth)
        s.set(Tboards[idx].hashScore, Tboards[idx].hashHorizon);
}

void hashTable::chooseNegScore(const board *b, Score &s) const {
    unsigned int idx = 0;
    if (find(b, idx) == 1 && Tboards[idx].hashHorizon > s.depth)
        s.set(-Tboards[idx].hashScore, Tboards[idx].hashHorizon);
}

int hashTable::toStream(QTextStream &ts) const {
    ts << size << ' ' << count << '\n';
    for (int i = 0; usable() && i < size; ++i) {
        if (!Tempty[i])
            appendOneElement(ts, i);
    }
    return 1;
}

void hashTable::appendOneElement(QTextStream &ts, int i) const {
    ts << i << ' ' << Tscore[i] << indexLineMark << '\n';
    Tboards[i].toStream(ts);
}

int hashTable::fromStream(QTextStream &ts, int n) {
    board scratch(n);
    while (!ts.atEnd()) {
        QString line = ts.readLine();
        if (!isPositionLine(line, n))
            continue;
        QTextStream fields(&line, QIODevice::ReadOnly);
        scratch.fromStream(fields);
        setUnreachableWindow(scratch);
        insert(&scratch, HKey(&scratch));
    }
    return 0;
}
