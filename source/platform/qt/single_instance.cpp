// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "single_instance.h"

#include <unistd.h>

#include <QDataStream>
#include <QLocalServer>
#include <QLocalSocket>

#include "xdg_folders.h"

namespace quindar {

namespace {

constexpr int kConnectMs = 1000;
constexpr int kExchangeMs = 2000;
// A request is the word "open" then the file's path, each as a QString in the stream.
const char *kOpenRequest = "open";

}  // namespace

QString SingleInstance::defaultServerName() {
    return QString::fromStdString(xdg_runtime_dir()) + QStringLiteral("/quindar-") +
           QString::number(::getuid());
}

SingleInstance::SingleInstance(QString serverName, QObject *parent)
    : QObject(parent), serverName_(std::move(serverName)) {}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::claim(const QString &file) {
    if (listen()) return true;
    // A running instance that is slow to answer is still running: only a socket that refuses
    // the connection is what a program that died left behind.
    if (handOver(file)) return false;
    QLocalServer::removeServer(serverName_);
    return listen();
}

bool SingleInstance::listen() {
    auto *server = new QLocalServer(this);
    if (!server->listen(serverName_)) {
        delete server;
        return false;
    }
    server_ = server;
    connect(server_, &QLocalServer::newConnection, this, &SingleInstance::readConnection);
    return true;
}

bool SingleInstance::handOver(const QString &file) {
    QLocalSocket socket;
    socket.connectToServer(serverName_);
    if (!socket.waitForConnected(kConnectMs)) return false;
    QByteArray request;
    QDataStream out(&request, QIODevice::WriteOnly);
    out << QString::fromLatin1(kOpenRequest) << file;
    socket.write(request);
    socket.waitForBytesWritten(kExchangeMs);
    // The first instance answers once it has the request, so it is not lost with this process;
    // one that is busy past the wait may miss it, but is not mistaken for a dead one.
    socket.waitForReadyRead(kExchangeMs);
    socket.disconnectFromServer();
    return true;
}

void SingleInstance::readConnection() {
    while (QLocalSocket *socket = server_->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            QDataStream stream(socket);
            stream.startTransaction();
            QString word;
            QString file;
            stream >> word >> file;
            if (!stream.commitTransaction()) return;  // the rest is still on its way
            socket->write("ok");
            socket->flush();
            if (word == QLatin1String(kOpenRequest)) emit activationRequested(file);
        });
    }
}

}  // namespace quindar
