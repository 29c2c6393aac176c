#include "rules/xy.h"

int XY::B_SIZE = 8;
