// The transposition table, looked at as a whole.
#ifndef TOOLS_COMMON_TABLEFAULT_H
#define TOOLS_COMMON_TABLEFAULT_H

#include <QString>

class hashTable;

// What is wrong with the table, empty when nothing is: every stored position is found where it is,
// and they are as many as the table says.
QString tableFault(const hashTable &table);

#endif
