#include "PlainState.h"

#include "CustomInfo.h"

#include <QMap>
#include <QMetaProperty>
#include <QPoint>
#include <QSize>
#include <QStringList>

#include <cmath>
#include <limits>

namespace {

/// Unlike a list, Qt does not register these by itself, and a property of an unknown type can't be read.
const int Numbered = qMetaTypeId<QMap<int, int>>();
const int Custom = qMetaTypeId<CustomInfo>();

[[noreturn]] void fail(const QString& reason) {
    throw StateError{{}, reason};
}

bool isNumber(const QVariant& value) {
    switch (static_cast<QMetaType::Type>(value.type())) {
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Double:
            return true;
        default:
            return false;
    }
}

double readNumber(const QVariant& value) {
    if (!isNumber(value) || !std::isfinite(value.toDouble())) {
        fail(QStringLiteral("a number is expected"));
    }
    return value.toDouble();
}

double readWhole(const QVariant& value, double lowest, double highest) {
    const double number = readNumber(value);
    if (number < lowest || number > highest || number != std::floor(number)) {
        fail(QStringLiteral("a whole number is expected, %1 is none that fits").arg(number));
    }
    return number;
}

int readInt(const QVariant& value) {
    return static_cast<int>(readWhole(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

QPoint readPair(const QVariant& value) {
    const QVariantList pair = value.toList();
    if (pair.size() != 2) {
        fail(QStringLiteral("a list of two numbers is expected"));
    }
    return {readInt(pair[0]), readInt(pair[1])};
}

QStringList readTexts(const QVariant& value) {
    if (value.type() == QVariant::StringList) {
        return value.toStringList();
    }
    QStringList texts;
    if (value.type() != QVariant::List) {
        fail(QStringLiteral("a list of texts is expected"));
    }
    for (const QVariant& text : value.toList()) {
        if (text.type() != QVariant::String) {
            fail(QStringLiteral("a list of texts is expected"));
        }
        texts.append(text.toString());
    }
    return texts;
}

QList<int> readInts(const QVariant& value) {
    if (value.type() != QVariant::List) {
        fail(QStringLiteral("a list of numbers is expected"));
    }
    QList<int> numbers;
    for (const QVariant& number : value.toList()) {
        numbers.append(readInt(number));
    }
    return numbers;
}

QMap<int, int> readNumbered(const QVariant& value) {
    if (value.type() != QVariant::Map) {
        fail(QStringLiteral("an object is expected"));
    }
    QMap<int, int> numbered;
    const QVariantMap members = value.toMap();
    for (auto member = members.begin(); member != members.end(); ++member) {
        bool isNumber = false;
        const int number = member.key().toInt(&isNumber);
        if (!isNumber) {
            fail(QStringLiteral("\"%1\" is no whole number").arg(member.key()));
        }
        numbered.insert(number, readInt(member.value()));
    }
    return numbered;
}

QVariant readAs(int type, const QVariant& value) {
    if (type == qMetaTypeId<QList<int>>()) {
        return QVariant::fromValue(readInts(value));
    }
    if (type == Numbered) {
        return QVariant::fromValue(readNumbered(value));
    }
    if (type == Custom) {
        return QVariant::fromValue(CustomInfo::fromPlain(value));
    }
    switch (type) {
        case QMetaType::Bool:
            if (value.type() != QVariant::Bool) {
                fail(QStringLiteral("true or false is expected"));
            }
            return value;
        case QMetaType::QString:
            if (value.type() != QVariant::String) {
                fail(QStringLiteral("a text is expected"));
            }
            return value;
        case QMetaType::UInt:
            return static_cast<unsigned int>(readWhole(value, 0, std::numeric_limits<unsigned int>::max()));
        case QMetaType::Int:
            return readInt(value);
        case QMetaType::Double:
            return readNumber(value);
        case QMetaType::QSize: {
            const QPoint pair = readPair(value);
            return QSize(pair.x(), pair.y());
        }
        case QMetaType::QPoint:
            return readPair(value);
        case QMetaType::QVariantMap:
            if (value.type() != QVariant::Map) {
                fail(QStringLiteral("an object is expected"));
            }
            return value;
        default:
            return readTexts(value);
    }
}

QVariantMap plainNumbered(const QMap<int, int>& numbered) {
    QVariantMap members;
    for (auto number = numbered.begin(); number != numbered.end(); ++number) {
        members.insert(QString::number(number.key()), number.value());
    }
    return members;
}

QVariant plain(const QVariant& value) {
    if (value.userType() == qMetaTypeId<QList<int>>()) {
        return value.value<QVariantList>();
    }
    if (value.userType() == Numbered) {
        return plainNumbered(value.value<QMap<int, int>>());
    }
    if (value.userType() == Custom) {
        return value.value<CustomInfo>().toPlain();
    }
    switch (static_cast<QMetaType::Type>(value.type())) {
        case QMetaType::QSize:
            return QVariantList{value.toSize().width(), value.toSize().height()};
        case QMetaType::QPoint:
            return QVariantList{value.toPoint().x(), value.toPoint().y()};
        default:
            return value;
    }
}

}  // namespace

QVariantMap readMembers(const QMetaObject& type, const void* gadget) {
    QVariantMap members;
    for (int i = 0; i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        members.insert(QString::fromLatin1(property.name()), plain(property.readOnGadget(gadget)));
    }
    return members;
}

QVariantMap readMembers(const QMetaObject& type, const void* gadget, const QStringList& names) {
    QVariantMap members;
    for (const QString& name : names) {
        const int index = type.indexOfProperty(name.toLatin1().constData());
        members.insert(name, plain(type.property(index).readOnGadget(gadget)));
    }
    return members;
}

void writeMembers(const QMetaObject& type, void* gadget, const QVariantMap& members) {
    for (auto member = members.begin(); member != members.end(); ++member) {
        try {
            const int index = type.indexOfProperty(member.key().toLatin1().constData());
            if (index < 0) {
                fail(QStringLiteral("there is no such member"));
            }
            const QMetaProperty property = type.property(index);
            property.writeOnGadget(gadget, readAs(property.userType(), member.value()));
        } catch (StateError& error) {
            error.member = member.key();
            throw;
        }
    }
}
