#include "PictureSink.h"

#include "FileClaims.h"
#include "FileError.h"
#include "TextKey.h"
#include "WholeFile.h"

#include <utility>

namespace {

void writeWhole(const QString& file, const QByteArray& bytes) {
    if (bytes.isEmpty()) {
        throw FileError(file, TextKey("the picture has no such form"));
    }
    const QString reason = writeWholeFile(file, bytes);
    if (!reason.isEmpty()) {
        throw FileError(file, reason);
    }
}

}  // namespace

PictureSink::PictureSink(FileClaims& claims, SaveFormat format, QString stem)
    : m_claims(claims), m_format(std::move(format)), m_stem(std::move(stem)) {}

bool PictureSink::write(SavedFrame frame) {
    const QString file = m_stem % QLatin1Char('_') % frame.number % QLatin1Char('.') % m_format.suffix;
    if (!m_claims.claim(file)) {
        return false;
    }
    try {
        writeWhole(file, m_format.encoded(std::move(frame.picture), frame.metadata));
    } catch (...) {
        m_claims.release();
        throw;
    }
    m_claims.keep();
    return true;
}
