#include "MediumKind.h"

#include "Rig.h"
#include "TextKey.h"

#include <QStringList>

#include <algorithm>

const std::vector<MediumKind>& mediumKinds() {
    static const std::vector<MediumKind> kinds = {
        {RigMedium::SdCard, QStringLiteral("sd"), TextKey("SD card"), true, false, false},
        {zeb::QuikDrive, QStringLiteral("quikDrive"), TextKey("QUIK Drive"), false, true, true},
        {zeb::CFast, QStringLiteral("cfast"), TextKey("CFast"), false, true, false}};
    return kinds;
}

const MediumKind* mediumKind(const QString& word) {
    const std::vector<MediumKind>& kinds = mediumKinds();
    const auto found =
        std::find_if(kinds.begin(), kinds.end(), [&word](const MediumKind& kind) { return kind.word == word; });
    return found != kinds.end() ? &*found : nullptr;
}

QString mediumWords() {
    QStringList words;
    for (const MediumKind& kind : mediumKinds()) {
        words.append(kind.word);
    }
    return words.join(QStringLiteral(", "));
}
