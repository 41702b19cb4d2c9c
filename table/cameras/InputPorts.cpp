#include "InputPorts.h"

InputPorts InputPorts::of(int cameraType) {
    switch (cameraType) {
        case 23:
        case 25:
        case 28:
        case 29:
        case 30:
        case 31:
        case 32:
            return {5, true, 2, None};
        case 35:
            return {4, false, 8, None};
        case 36:
        case 37:
        case 38:
        case 39:
        case 40:
        case 42:
        case 43:
        case 44:
        case 46:
        case 47:
        case 50:
        case 51:
            return {5, true, 2, 7};
        case 49:
            return {5, true, 10, 7};
        default:
            return {4, false, 3, 7};
    }
}
