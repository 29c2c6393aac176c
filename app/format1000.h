// format1000: numbers in groups of three digits.
#ifndef APP_FORMAT1000_H
#define APP_FORMAT1000_H

#include <QString>

// The digits of |n| in groups of three from the right, every group of three digits and followed by
// a space, "-" in front of a negative number: 1234567 gives "001 234 567 ", -5 gives "-005 ". Zero
// gives the empty string.
QString format1000(int n);

#endif
