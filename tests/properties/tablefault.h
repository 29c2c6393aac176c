// The transposition table, looked at as a whole.
#ifndef TESTS_PROPERTIES_TABLEFAULT_H
#define TESTS_PROPERTIES_TABLEFAULT_H

#include "search/hashtable.h"

#include <string>

// What is wrong with the table, empty when nothing is: every stored position is found where it is,
// and they are as many as the table says.
inline std::string tableFault(const hashTable &table) {
    int occupied = 0;
    for (int i = 0; i < table.size; ++i) {
        if (table.Tempty[i])
            continue;
        ++occupied;
        unsigned slot = 0;
        if (table.find(&table.Tboards[i], slot) != 1 || slot != static_cast<unsigned>(i))
            return "a stored position is not found";
    }
    return occupied == table.count ? "" : "the table's count is wrong";
}

#endif
