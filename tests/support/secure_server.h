#pragma once

#include "platform/text/text.h"

#include <QFile>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QSslSocket>
#include <stdexcept>

namespace tests {

/// A server with a certificate that only the tests have signed.
struct SecureServer {
    SecureServer() {
        QFile certificate_file(QStringLiteral(ZENT_FIXTURES "/tls/loopback.pem"));
        QFile key_file(QStringLiteral(ZENT_FIXTURES "/tls/loopback.key"));
        if (!certificate_file.open(QIODevice::ReadOnly) || !key_file.open(QIODevice::ReadOnly))
            throw std::runtime_error("no certificate");
        certificate = QSslCertificate(&certificate_file);
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(certificate);
        configuration.setPrivateKey(QSslKey(&key_file, QSsl::Ec));
        server.setSslConfiguration(configuration);
        QObject::connect(&server, &QTcpServer::pendingConnectionAvailable, [this] {
            auto* client = server.nextPendingConnection();
            QObject::connect(client, &QTcpSocket::readyRead, client, [this, client] {
                if (!client->readAll().contains("\r\n\r\n")) return;
                ++requests;
                client->write("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\nsecret");
            });
        });
        if (!server.listen(QHostAddress::LocalHost)) throw std::runtime_error("no server");
    }
    platform::Text url() const {
        return u"https://127.0.0.1:" + platform::decimal(server.serverPort()) + u"/";
    }

    int requests = 0;
    QSslCertificate certificate;
    QSslServer server;
};

}  // namespace tests
