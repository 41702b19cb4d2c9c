#include "SettingsRoundTrip.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size) {
    const QString fault = faultOfSettings(QByteArray(reinterpret_cast<const char*>(data), int(size)));
    if (!fault.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(fault));
        std::abort();
    }
    return 0;
}
