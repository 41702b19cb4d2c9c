#pragma once

#include <QString>

/// Digits that the numbers in a name have at least; a number with none is left out.
struct NumberDigits {
    int camera = 0;
    int head = 0;
    int session = 0;
};

/// The numbers as they stand in names, each with zeros before it up to its digits, as "C01H1S0001".
QString numberText(int camera, int head, int session, int cameraDigits, int headDigits, int sessionDigits);
