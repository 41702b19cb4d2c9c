#include "Preferences.h"

#include "FactoryValues.h"

#include <QByteArray>
#include <QFile>
#include <QStandardPaths>

#include <array>
#include <charconv>

namespace {

/// What a key was called before, and what holds its value now.
const QList<QPair<const char*, QList<const char*>>> renamedKeys = {{"save/folder", {"export/dir", "layout/dir"}},
                                                                   {"save/format", {"export/format", "layout/format"}},
                                                                   {"snapshot/folder", {"snap/dir"}},
                                                                   {"snapshot/format", {"snap/format"}}};

/// The INI form is text alone: a value that is not text, under a key without a factory value, has its type beside it.
const QString typeGroup = QStringLiteral("types/");

QString defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) % QStringLiteral("/zebsim.ini");
}

QString freeCorruptName(const QString& path) {
    QString name = path % QStringLiteral(".corrupt");
    for (int i = 2; QFile::exists(name); ++i) {
        name = QStringLiteral("%1.corrupt-%2").arg(path).arg(i);
    }
    return name;
}

/// `value` as a value of this type; `otherwise` when it can't be one.
QVariant convertedTo(int type, QVariant value, const QVariant& otherwise) {
    return value.convert(type) ? value : otherwise;
}

/// The shortest number that reads as `value`: 33.33, and not the 33.3300018310547 that the nearest `float` stands for.
double decimalOf(float value) {
    std::array<char, 32> text{};
    const char* end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    return QByteArray(text.data(), int(end - text.data())).toDouble();
}

}  // namespace

Preferences::Preferences(const QString& path)
    : m_settings(std::make_unique<WholeSettings>(path.isEmpty() ? defaultPath() : path)) {
    // A section is parsed, and may show its damage, only when somebody asks for it.
    m_settings->allKeys();
    if (m_settings->status() == QSettings::FormatError) {
        keepCorruptFileAside();
    } else if (m_settings->status() == QSettings::AccessError) {
        m_problem = QStringLiteral("The preference file %1 can't be opened; nothing will be stored.").arg(this->path());
    }
    renameKeys();
    m_values = factoryValues();
    for (const QString& key : m_settings->allKeys()) {
        if (!key.startsWith(typeGroup)) {
            m_values.insert(key, stored(key));
        }
    }
}

void Preferences::renameKeys() {
    for (const auto& [before, keys] : renamedKeys) {
        const QString old = QLatin1String(before);
        if (!m_settings->contains(old)) {
            continue;
        }
        for (const char* key : keys) {
            if (!m_settings->contains(QLatin1String(key))) {
                m_settings->setValue(QLatin1String(key), m_settings->value(old));
            }
        }
        m_settings->remove(old);
    }
}

void Preferences::keepCorruptFileAside() {
    const QString file = path();
    const QString kept = freeCorruptName(file);
    m_settings.reset();
    const bool moved = QFile::rename(file, kept);
    m_problem = moved ? QStringLiteral(
                            "The preference file %1 is damaged. It was kept as %2, and the factory settings "
                            "are in use.")
                            .arg(file, kept)
                      : QStringLiteral("The preference file %1 is damaged and could not be renamed.").arg(file);
    m_settings = std::make_unique<WholeSettings>(file);
}

QVariant Preferences::stored(const QString& key) const {
    const QVariant value = m_settings->value(key);
    const auto factory = factoryValues().find(key);
    if (factory != factoryValues().end()) {
        return convertedTo(factory->userType(), value, *factory);
    }
    const int type = QMetaType::type(m_settings->value(typeGroup % key).toByteArray().constData());
    return type == QMetaType::UnknownType ? value : convertedTo(type, value, value);
}

void Preferences::takeStored(const QString& key) {
    if (m_settings->contains(key)) {
        m_values.insert(key, stored(key));
    } else if (factoryValues().contains(key)) {
        m_values.insert(key, factoryValues().value(key));
    } else {
        m_values.remove(key);
    }
}

QVariant Preferences::value(const QString& key, const QVariant& defaultValue) const {
    return m_values.value(key, defaultValue);
}

void Preferences::setValue(const QString& key, const QVariant& value) {
    // A float would be stored as a binary blob.
    QVariant storable = value.userType() == QMetaType::Float ? decimalOf(value.toFloat()) : value;
    const auto factory = factoryValues().find(key);
    if (factory != factoryValues().end()) {
        storable = convertedTo(factory->userType(), storable, *factory);
        m_values.insert(key, storable);
    } else {
        m_values.insert(key, value);
        if (value.type() != QVariant::String) {
            m_settings->setValue(typeGroup % key, QString::fromLatin1(value.typeName()));
        } else {
            m_settings->remove(typeGroup % key);
        }
    }
    m_settings->setValue(key, storable);
}
