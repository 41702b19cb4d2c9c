#include "MediumLabel.h"

#include "TextKey.h"
#include "WholeFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPasswordDigestor>
#include <QRandomGenerator>

#include <stdexcept>

namespace {

constexpr qint64 MostBytes = 4 << 20;
constexpr int Rounds = 20000;
constexpr int HashBytes = 32;
constexpr int SaltWords = 4;

const QString Mark = QStringLiteral("zebsim");
const QString Kind = QStringLiteral("medium");

QByteArray hashOf(const QString& password, const QByteArray& salt) {
    return QPasswordDigestor::deriveKeyPbkdf2(QCryptographicHash::Sha256, password.toUtf8(), salt, Rounds, HashBytes);
}

QByteArray bytesOf(const QJsonObject& owner, const char* member) {
    return QByteArray::fromHex(owner.value(QLatin1String(member)).toString().toLatin1());
}

QString hexOf(const QByteArray& bytes) {
    return QString::fromLatin1(bytes.toHex());
}

[[noreturn]] void fail(const QString& path, const QString& reason) {
    throw std::runtime_error(QString(QDir::toNativeSeparators(path) % QStringLiteral(": ") % reason).toStdString());
}

/// Of a medium that was in the hands of others: a link would lead out of it.
QByteArray bytesIn(const QString& path) {
    QByteArray bytes;
    const QString why =
        QFileInfo(path).isSymLink() ? QString(TextKey("it is a link")) : readPlainFile(path, MostBytes + 1, bytes);
    if (!why.isEmpty()) {
        fail(path, why);
    }
    if (bytes.size() > MostBytes) {
        fail(path, TextKey("it is too large"));
    }
    return bytes;
}

}  // namespace

const QString& MediumLabel::fileName() {
    static const QString name = QStringLiteral(".zebsim-medium");
    return name;
}

MediumLabel MediumLabel::read(const QString& folder) {
    const QString path = QDir(folder).filePath(fileName());
    MediumLabel label;
    if (!QFileInfo::exists(path) && !QFileInfo(path).isSymLink()) {
        return label;
    }
    const QJsonObject whole = QJsonDocument::fromJson(bytesIn(path)).object();
    const QJsonObject password = whole.value(QLatin1String("password")).toObject();
    label.m_salt = bytesOf(password, "salt");
    label.m_hash = bytesOf(password, "hash");
    if (whole.value(Mark).toString() != Kind || (!password.isEmpty() && label.m_hash.size() != HashBytes)) {
        fail(path, TextKey("it is damaged"));
    }
    label.erased = std::max<qint64>(0, whole.value(QLatin1String("erased")).toVariant().toLongLong());
    const QVariantHash names = whole.value(QLatin1String("names")).toObject().toVariantHash();
    for (auto name = names.begin(); name != names.end(); ++name) {
        label.names.insert(name.key(), name->toString());
    }
    return label;
}

void MediumLabel::write(const QString& folder) const {
    QJsonObject whole{{Mark, Kind}, {QStringLiteral("version"), 1}, {QStringLiteral("erased"), double(erased)}};
    if (hasPassword()) {
        whole.insert(QStringLiteral("password"),
                     QJsonObject{{QStringLiteral("salt"), hexOf(m_salt)}, {QStringLiteral("hash"), hexOf(m_hash)}});
    }
    QJsonObject named;
    for (auto name = names.begin(); name != names.end(); ++name) {
        named.insert(name.key(), *name);
    }
    whole.insert(QStringLiteral("names"), named);
    const QString path = QDir(folder).filePath(fileName());
    const bool isLink = QFileInfo(path).isSymLink();
    const QString reason =
        isLink ? QString(TextKey("it is a link")) : writeWholeFile(path, QJsonDocument(whole).toJson());
    if (!reason.isEmpty()) {
        fail(path, reason);
    }
}

bool MediumLabel::fits(const QString& password) const {
    return !hasPassword() || hashOf(password, m_salt) == m_hash;
}

void MediumLabel::setPassword(const QString& password) {
    m_salt.clear();
    m_hash.clear();
    if (password.isEmpty()) {
        return;
    }
    quint32 words[SaltWords];
    QRandomGenerator::system()->fillRange(words);
    m_salt = QByteArray(reinterpret_cast<const char*>(words), sizeof words);
    m_hash = hashOf(password, m_salt);
}
