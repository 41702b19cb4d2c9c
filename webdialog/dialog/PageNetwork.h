#pragma once

#include <QNetworkAccessManager>

/// Network of a page: serves resources and `data:` addresses, answers everything else as not found.
class PageNetwork : public QNetworkAccessManager {
    Q_OBJECT

public:
    using QNetworkAccessManager::QNetworkAccessManager;

    /// Whether the page may have what stands under `url`.
    static bool isServed(const QUrl& url);

protected:
    QNetworkReply* createRequest(Operation op, const QNetworkRequest& request, QIODevice* outgoingData) override;
};
