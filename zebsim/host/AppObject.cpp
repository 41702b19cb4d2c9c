#include "AppObject.h"

#include "Preferences.h"
#include "SaveOrders.h"
#include "TextKey.h"
#include "Translator.h"
#include "VideoTrials.h"

QString AppObject::style() const {
    return m_prefs.value(QStringLiteral("env/style")).toString();
}

QString AppObject::translate(const QString& text) const {
    return m_translator.translate(text);
}

QString AppObject::formatFault(const QString& format) const {
    return ::formatFault(format);
}

QString AppObject::videoFault(const QString& kind, const QString& codec, double rate, bool isLossless) {
    VideoOptions options;
    options.codec = codec;
    options.rate = rate;
    options.isLossless = isLossless;
    const auto known = VideoTrials::installed().knownFault(kind, options);
    if (known) {
        return *known;
    }
    const QString key = QStringLiteral("%1 %2 %3 %4").arg(kind, codec).arg(rate).arg(isLossless);
    if (!m_asked.contains(key)) {
        m_asked.insert(key);
        ++m_trying;
        m_trials.start([this, kind, options] {
            VideoTrials::installed().fault(kind, options);
            QMetaObject::invokeMethod(
                this, [this] { --m_trying; }, Qt::QueuedConnection);
        });
    }
    return m_translator.translate(TextKey("It is being tried whether such a video can be made."));
}
