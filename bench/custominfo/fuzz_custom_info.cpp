#include "CustomInfoRoundTrip.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int MostItems = 16;

/// Names, values and units, one behind the other, as UTF-16 with a separator between.
QList<QVariantMap> itemsOf(const QByteArray& bytes) {
    const QString text(reinterpret_cast<const QChar*>(bytes.constData()), bytes.size() / int(sizeof(QChar)));
    QList<QVariantMap> items;
    for (const QString& part : text.split(QChar(0x1E)).mid(0, MostItems)) {
        const int third = part.size() / 3;
        items.append({{QStringLiteral("name"), QString(QLatin1Char('n') + part.left(third))},
                      {QStringLiteral("value"), part},
                      {QStringLiteral("unit"), part.mid(third)},
                      {QStringLiteral("display"), third % 2 == 0}});
    }
    return items;
}

}  // namespace

/// An odd first byte makes texts of the rest, for the writer; else all is a file, for the reader.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    const bool isText = size > 0 && data[0] < 8 && data[0] % 2 == 1;
    const QString fault = isText ? faultOfWriting(itemsOf(bytes.mid(1)), TableDialect) : faultOfReading(bytes);
    if (!fault.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(fault));
        std::abort();
    }
    return 0;
}
