#include "tools/common/tablefault.h"

#include "search/hashtable.h"

QString tableFault(const hashTable &table) {
    int occupied = 0;
    for (int i = 0; i < table.size; ++i) {
        if (table.Tempty[i])
            continue;
        ++occupied;
        unsigned int slot = 0;
        if (table.find(&table.Tboards[i], slot) != 1 || slot != static_cast<unsigned>(i))
            return "a stored position is not found";
    }
    return occupied == table.count ? QString() : "the table's count is wrong";
}
