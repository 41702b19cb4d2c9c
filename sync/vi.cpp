#include "vi.h"

#include "VisaLibrary.h"

#include <QDebug>

#include <array>
#include <stdexcept>
#include <utility>

namespace {

constexpr int ReplyBytes = 1024;

/// Without a library the call fails as a missing library does in VISA.
template <typename Function, typename... Arguments>
std::int32_t call(Function* function, Arguments... arguments) {
    constexpr std::int32_t libraryNotFound = -1073807202;
    return function != nullptr ? function(arguments...) : libraryNotFound;
}

QString statusText() {
    return QString::number(VisaLibrary::instance().status);
}

/// Keeps what a call has answered. Whether that is a success: sessions take no warning, for one may be half open.
bool isDone(std::int32_t status) {
    VisaLibrary::instance().status = status;
    return status == 0;
}

/// The same for commands and replies, which have come through when there is a warning.
void require(std::int32_t status, const QString& function, const QString& rest = {}) {
    VisaLibrary::instance().status = status;
    if (status >= 0) {
        return;
    }
    const QString text = QStringLiteral("visa.dll error, function: %1 error:%2%3").arg(function, statusText(), rest);
    throw std::runtime_error(text.toStdString());
}

void logWarning(const QString& function, const QString& viCall, const QString& rest = {}) {
    qWarning().noquote() << QStringLiteral("visa.dll error, function: %1 vifunc: %2 error: %3%4")
                                .arg(function, viCall, statusText(), rest);
}

}  // namespace

namespace vi {

bool open(const QString& resource) {
    VisaLibrary& visa = VisaLibrary::instance();
    if (!isDone(call(visa.calls().openDefaultRM, &visa.manager))) {
        logWarning(QStringLiteral("vi::open"), QStringLiteral("viOpenDefaultRM"));
        return false;
    }
    if (!isDone(call(visa.calls().open, visa.manager, resource.toUtf8().constData(), 0, 0, &visa.session))) {
        logWarning(QStringLiteral("vi::open"), QStringLiteral("viOpen"), QStringLiteral(" constr: ") % resource);
        return false;
    }
    return true;
}

void close() {
    VisaLibrary& visa = VisaLibrary::instance();
    const auto closeOne = [&visa](std::uint32_t& object, const QString& viCall) {
        if (object == 0) {
            return;
        }
        if (!isDone(call(visa.calls().close, std::exchange(object, 0)))) {
            logWarning(QStringLiteral("vi::close"), viCall);
        }
    };
    closeOne(visa.session, QStringLiteral("viClose (1)"));
    closeOne(visa.manager, QStringLiteral("viClose (2)"));
}

void clear() {
    const VisaLibrary& visa = VisaLibrary::instance();
    require(call(visa.calls().clear, visa.session), QStringLiteral("vi::clear"));
}

void sendCommandString(const QString& command) {
    const VisaLibrary& visa = VisaLibrary::instance();
    require(call(visa.calls().print, visa.session, command.toUtf8().constData()),
            QStringLiteral("vi::sendCommandString"), QStringLiteral(" command:") % command);
}

QString recvString() {
    const VisaLibrary& visa = VisaLibrary::instance();
    // One more than is asked for: a library may or may not end a full reply with a zero.
    std::array<char, ReplyBytes + 1> buffer{};
    require(call(visa.calls().scan, visa.session, "%1024t", buffer.data()), QStringLiteral("vi::recvString"));
    return QString::fromUtf8(buffer.data(), static_cast<int>(qstrnlen(buffer.data(), ReplyBytes)));
}

}  // namespace vi
