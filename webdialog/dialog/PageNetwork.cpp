#include "PageNetwork.h"

#include <QDebug>
#include <QNetworkRequest>
#include <QUrl>

bool PageNetwork::isServed(const QUrl& url) {
    return url.scheme() == QLatin1String("qrc") || url.scheme() == QLatin1String("data");
}

QNetworkReply* PageNetwork::createRequest(Operation op, const QNetworkRequest& request, QIODevice* outgoingData) {
    if (isServed(request.url())) {
        return QNetworkAccessManager::createRequest(op, request, outgoingData);
    }
    qWarning() << "Page request refused:" << request.url().toString();
    // A resource that is not there fails without a look at the network.
    return QNetworkAccessManager::createRequest(GetOperation, QNetworkRequest(QUrl(QStringLiteral("qrc:/refused"))),
                                                nullptr);
}
